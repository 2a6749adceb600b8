#include "containers/record_copies.h"
#include "support/bits.h"
#include "support/caller_memory.h"

#include <limits>

using namespace korvel::test;

namespace
{

using numbers = std::vector<double>;

/** A table of its own in which each cell is unlike all others. */
cST_MVect<double> numbered(int rows, int cols, double first)
{
    cST_MVect<double> table(rows, cols);
    for (cST_Vect<double>& column : table.Vectors) {
        for (int i = 0; i < rows; ++i) {
            column.Vect[i] = first++;
        }
    }
    return table;
}

numbers column(const cST_MVect<double>& table, std::size_t j)
{
    const matrix<double>& elements = table.Vectors[j].Vect;
    return {elements.data, elements.data + elements.nbElem};
}

} // namespace

TEST(RecordCopies, DuplicatesTheRowsAndColumnsThatTheSourceCounts)
{
    cST_MVect<double> src = numbered(3, 3, 1.0);
    cST_MVect<double> dst = numbered(4, 3, 100.0);
    src.nbcols = 2;
    src.nbrowsmax = 2;
    src.Vectors[0].Vect[1] = std::numeric_limits<double>::quiet_NaN();
    src.Vectors[1].Vect[0] = MISSING_DBL;
    MV_DuplicateMVect(src, dst);
    EXPECT_SAME_BITS(dst.Vectors[0].Vect[0], 1.0);
    EXPECT_SAME_BITS(dst.Vectors[0].Vect[1], std::numeric_limits<double>::quiet_NaN());
    EXPECT_SAME_BITS(dst.Vectors[0].Vect[2], 102.0);
    EXPECT_EQ(column(dst, 1), (numbers{MISSING_DBL, 5.0, 106.0, 107.0}));
    EXPECT_EQ(column(dst, 2), (numbers{108.0, 109.0, 110.0, 111.0}));
    EXPECT_EQ(dst.nbcols, 3);
    EXPECT_EQ(dst.nbrowsmax, 4);
}

TEST(RecordCopies, DuplicatesNothingOfNothing)
{
    cST_MVect<double> src = numbered(2, 2, 1.0);
    cST_MVect<double> dst = numbered(2, 2, 100.0);
    src.nbrowsmax = 0;
    MV_DuplicateMVect(src, dst);
    src.nbrowsmax = 2;
    src.nbcols = 0;
    MV_DuplicateMVect(src, dst);
    EXPECT_EQ(column(dst, 0), (numbers{100.0, 101.0}));
    EXPECT_EQ(column(dst, 1), (numbers{102.0, 103.0}));
}

TEST(RecordCopies, CopyTheLowerTriangleOfTheSmallerTable)
{
    cST_MVect<double> src = numbered(4, 4, 1.0);
    cST_MVect<double> dst = numbered(3, 3, 100.0);
    M_DuplicateMVDblTriang_ST(src, dst);
    EXPECT_EQ(column(dst, 0), (numbers{1.0, 101.0, 102.0}));
    EXPECT_EQ(column(dst, 1), (numbers{5.0, 6.0, 105.0}));
    EXPECT_EQ(column(dst, 2), (numbers{9.0, 10.0, 11.0}));

    cST_MVect<double> larger = numbered(5, 5, 200.0);
    M_DuplicateMVDblTriang_ST(dst, larger);
    EXPECT_EQ(column(larger, 2), (numbers{9.0, 10.0, 11.0, 213.0, 214.0}));
    EXPECT_EQ(column(larger, 3), (numbers{215.0, 216.0, 217.0, 218.0, 219.0}));
    EXPECT_EQ(larger.nbcols, 5);
}

TEST(RecordCopies, ReadAndWriteATriangleWithinBounds)
{
    cST_MVect<double> src(0, 0);
    src.Vectors.emplace_back().Vect = matrix<double>(1, 1, 7.0);
    src.Vectors.emplace_back().Vect = matrix<double>(1, 1, 8.0);
    src.nbcols = 3;
    cST_MVect<double> dst = numbered(2, 3, 100.0);
    M_DuplicateMVDblTriang_ST(src, dst);
    EXPECT_EQ(column(dst, 0), (numbers{7.0, 101.0}));
    EXPECT_EQ(column(dst, 1), (numbers{8.0, -1.0}));
    EXPECT_EQ(column(dst, 2), (numbers{-1.0, -1.0}));
    EXPECT_SAME_BITS(dst.Vectors[2].Vect.oobValue, -1.0);
}

TEST(RecordCopies, FillColumnsFromADenseTable)
{
    numbers cells{1.0, 2.0, 3.0, 4.0, 5.0, 6.0};
    matrix<double> m(3, 2, cells.data(), true);
    cST_MVect<double> mv = numbered(4, 3, 100.0);
    CopyDblToMV(m, 3, 2, mv);
    EXPECT_EQ(column(mv, 0), (numbers{1.0, 2.0, 3.0, 103.0}));
    EXPECT_EQ(column(mv, 1), (numbers{4.0, 5.0, 6.0, 107.0}));
    EXPECT_EQ(column(mv, 2), (numbers{108.0, 109.0, 110.0, 111.0}));
    EXPECT_EQ(mv.nbcols, 3);
    EXPECT_EQ(mv.nbrowsmax, 4);
    EXPECT_EQ(cells, (numbers{1.0, 2.0, 3.0, 4.0, 5.0, 6.0}));
}

TEST(RecordCopies, TakeTheFirstRowsOfEachColumn)
{
    numbers cells{1.0, 2.0, 3.0, 4.0, 5.0, 6.0};
    matrix<double> m(3, 2, cells.data(), true);
    cST_MVect<double> mv = numbered(2, 2, 100.0);
    CopyDblToMV(m, 2, 2, mv);
    EXPECT_EQ(column(mv, 0), (numbers{1.0, 2.0}));
    EXPECT_EQ(column(mv, 1), (numbers{4.0, 5.0}));
}

TEST(RecordCopies, RepeatTheLastColumnBeyondTheTable)
{
    numbers cells{1.0, 2.0, 3.0, 4.0};
    matrix<double> m(2, 2, cells.data(), true);
    cST_MVect<double> mv = numbered(2, 4, 100.0);
    CopyDblToMV(m, 2, 4, mv);
    EXPECT_EQ(column(mv, 1), (numbers{3.0, 4.0}));
    EXPECT_EQ(column(mv, 2), (numbers{3.0, 4.0}));
    EXPECT_EQ(column(mv, 3), (numbers{3.0, 4.0}));
}

TEST(RecordCopies, FillWithZerosWhatTheTableDoesNotHave)
{
    matrix<double> none;
    cST_MVect<double> mv = numbered(2, 2, 100.0);
    CopyDblToMV(none, 2, 1, mv);
    EXPECT_EQ(column(mv, 0), (numbers{0.0, 0.0}));
    EXPECT_EQ(column(mv, 1), (numbers{102.0, 103.0}));

    numbers cells{1.0, 2.0};
    matrix<double> m(1, 2, cells.data(), true);
    CopyDblToMV(m, 2, 2, mv);
    EXPECT_EQ(column(mv, 0), (numbers{1.0, 0.0}));
    EXPECT_EQ(column(mv, 1), (numbers{2.0, 0.0}));
}

TEST(RecordCopies, DropElementsForWhichThereIsNoRoom)
{
    numbers cells{1.0, 2.0, 3.0, 4.0, 5.0, 6.0};
    matrix<double> m(3, 2, cells.data(), true);
    caller_memory caller;
    ST_MVect record = caller.table({caller.column(u"", numbers{0.0})}, {u""});
    {
        cST_MVect<double> mv(&record);
        CopyDblToMV(m, 3, 2, mv);
        EXPECT_SAME_BITS(mv.Vectors[0].Vect.oobValue, 3.0);
    }
    EXPECT_EQ(numbersIn<double>(columnOf(record, 0).Vect), numbers{1.0});
    EXPECT_TRUE(caller.guardsIntact());
}

TEST(RecordCopies, CopyNothingForCountsBelowOne)
{
    numbers cells{1.0};
    matrix<double> m(1, 1, cells.data(), true);
    cST_MVect<double> mv = numbered(1, 1, 100.0);
    CopyDblToMV(m, 0, 1, mv);
    CopyDblToMV(m, -3, 1, mv);
    CopyDblToMV(m, 1, 0, mv);
    CopyDblToMV(m, 1, -1, mv);
    EXPECT_EQ(column(mv, 0), numbers{100.0});
}
