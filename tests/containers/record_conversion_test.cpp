#include "containers/record_conversion.h"
#include "support/bits.h"
#include "support/caller_memory.h"

using namespace korvel::test;

namespace
{

using numbers = std::vector<double>;

template <class T>
std::vector<T> column(const cST_MVect<T>& table, std::size_t j)
{
    const matrix<T>& elements = table.Vectors[j].Vect;
    return {elements.data, elements.data + elements.nbElem};
}

template <class T>
void fill(cST_MVect<T>& table, const std::vector<std::vector<T>>& columns, const texts& labels)
{
    for (std::size_t j = 0; j < columns.size(); ++j) {
        std::copy(columns[j].begin(), columns[j].end(), table.Vectors[j].Vect.data);
        table.CLabels[static_cast<int>(j)] = labels[j];
    }
}

texts labelsOf(const cST_MVect<double>& table)
{
    return {table.CLabels.data, table.CLabels.data + table.CLabels.nbElem};
}

/** A table of texts that reads as numbers: three rows, two columns. */
class RecordConversion : public ::testing::Test
{
protected:
    RecordConversion()
    {
        fill<text>(words, {{u"1", u"2,5", u""}, {u"-4", u"1,5e2", u"6"}}, {u"a", u"b"});
        for (cST_Vect<double>& each : numeric.Vectors) {
            std::fill_n(each.Vect.data, 5, 100.0);
        }
    }

    cST_MVect<text> words{3, 2};
    cST_MVect<double> numeric{5, 4};
};

} // namespace

TEST_F(RecordConversion, ReadsNumbersAndMissingCells)
{
    EXPECT_EQ(Convert_MVectStrToMVectDbl_ST(1, 3, 1, 2, 3, 2, 1, 1, words, u",", numeric), 0);
    EXPECT_EQ(column(numeric, 0), (numbers{1.0, 2.5, MISSING_DBL, 100.0, 100.0}));
    EXPECT_EQ(column(numeric, 1), (numbers{-4.0, 150.0, 6.0, 100.0, 100.0}));
    EXPECT_EQ(column(numeric, 2), numbers(5, 100.0));
    EXPECT_EQ(labelsOf(numeric), (texts{u"a", u"b", u"", u""}));
    EXPECT_EQ(numeric.nbcols, 4);
    EXPECT_EQ(numeric.nbrowsmax, 5);
}

TEST_F(RecordConversion, PutsTheBlockAtItsPlace)
{
    EXPECT_EQ(Convert_MVectStrToMVectDbl_ST(2, 3, 2, 2, 2, 1, 4, 3, words, u",", numeric), 0);
    EXPECT_EQ(column(numeric, 2), (numbers{100.0, 100.0, 100.0, 150.0, 6.0}));
    for (const std::size_t j : {0u, 1u, 3u}) {
        EXPECT_EQ(column(numeric, j), numbers(5, 100.0));
    }
    EXPECT_EQ(labelsOf(numeric), (texts{u"", u"", u"b", u""}));
}

TEST_F(RecordConversion, StopsAtATextThatIsNoNumberAndTouchesNothing)
{
    for (const char16_t* bad : {u"1.5", u"1,5,0", u"--1", u"+-1", u"x"}) {
        words.Vectors[1].Vect[2] = bad;
        EXPECT_EQ(Convert_MVectStrToMVectDbl_ST(1, 3, 1, 2, 3, 2, 1, 1, words, u",", numeric), -1);
        EXPECT_EQ(column(numeric, 0), numbers(5, 100.0));
        EXPECT_EQ(column(numeric, 1), numbers(5, 100.0));
        EXPECT_EQ(labelsOf(numeric), texts(4, u""));
    }
    // The same text outside the rows that are read does no harm.
    EXPECT_EQ(Convert_MVectStrToMVectDbl_ST(1, 2, 1, 2, 2, 2, 1, 1, words, u",", numeric), 0);
}

TEST_F(RecordConversion, StopsAtATextThatWouldNotBeKeptEither)
{
    words.Vectors[0].Vect[2] = u"x";
    EXPECT_EQ(Convert_MVectStrToMVectDbl_ST(1, 3, 1, 1, 1, 1, 1, 1, words, u",", numeric), -1);
}

TEST_F(RecordConversion, CopiesTheWholeBlockEvenWhereTheSourceDoesNotFillIt)
{
    EXPECT_EQ(Convert_MVectStrToMVectDbl_ST(1, 2, 1, 1, 3, 2, 2, 1, words, u",", numeric), 0);
    EXPECT_EQ(column(numeric, 0), (numbers{100.0, 1.0, 2.5, 0.0, 100.0}));
    EXPECT_EQ(column(numeric, 1), (numbers{100.0, 0.0, 0.0, 0.0, 100.0}));
    EXPECT_EQ(labelsOf(numeric), (texts{u"a", u"", u"", u""}));
}

TEST_F(RecordConversion, KeepsOnlyWhatLiesInTheBlock)
{
    EXPECT_EQ(Convert_MVectStrToMVectDbl_ST(1, 3, 1, 2, 2, 1, 1, 1, words, u",", numeric), 0);
    EXPECT_EQ(column(numeric, 0), (numbers{1.0, 2.5, 100.0, 100.0, 100.0}));
    EXPECT_EQ(column(numeric, 1), numbers(5, 100.0));
    // Labels follow the source's columns.
    EXPECT_EQ(labelsOf(numeric), (texts{u"a", u"b", u"", u""}));
}

TEST_F(RecordConversion, DropsWhatLiesOutsideTheTarget)
{
    EXPECT_EQ(Convert_MVectStrToMVectDbl_ST(1, 3, 1, 2, 3, 2, 4, 4, words, u",", numeric), 0);
    EXPECT_EQ(column(numeric, 3), (numbers{100.0, 100.0, 100.0, 1.0, 2.5}));
    EXPECT_EQ(labelsOf(numeric), (texts{u"", u"", u"", u"a"}));

    EXPECT_EQ(Convert_MVectStrToMVectDbl_ST(1, 3, 1, 2, 3, 2, 0, 0, words, u",", numeric), 0);
    EXPECT_EQ(column(numeric, 0), (numbers{150.0, 6.0, 100.0, 100.0, 100.0}));
    EXPECT_EQ(labelsOf(numeric), (texts{u"b", u"", u"", u"a"}));
}

TEST_F(RecordConversion, TakesCellsOutsideTheSourceForEmptyOnes)
{
    EXPECT_EQ(Convert_MVectStrToMVectDbl_ST(3, 4, 2, 3, 2, 2, 1, 1, words, u",", numeric), 0);
    EXPECT_EQ(column(numeric, 0), (numbers{6.0, MISSING_DBL, 100.0, 100.0, 100.0}));
    EXPECT_EQ(column(numeric, 1), (numbers{MISSING_DBL, MISSING_DBL, 100.0, 100.0, 100.0}));
}

TEST_F(RecordConversion, OfNothingWritesTheEmptyBlock)
{
    EXPECT_EQ(Convert_MVectStrToMVectDbl_ST(2, 1, 2, 1, 1, 1, 1, 1, words, u",", numeric), 0);
    EXPECT_EQ(column(numeric, 0), (numbers{0.0, 100.0, 100.0, 100.0, 100.0}));
    EXPECT_EQ(Convert_MVectStrToMVectDbl_ST(1, 0, 1, 0, 0, 0, 1, 1, words, u",", numeric), 0);
    EXPECT_EQ(column(numeric, 1), numbers(5, 100.0));
    EXPECT_EQ(labelsOf(numeric), texts(4, u""));
}

TEST_F(RecordConversion, RendersNumbersWithoutDecimals)
{
    cST_MVect<double> source(3, 2);
    fill<double>(source, {{2.5, -3.75, MISSING_DBL}, {1e22, 0.0, -0.4}}, {u"p", u"q"});
    EXPECT_EQ(Convert_MVectDblToMVectStr_ST(1, 3, 1, 2, 3, 2, 1, 1, source, words), 0);
    EXPECT_EQ(column(words, 0), (texts{u"2", u"-4", u"-2e+308"}));
    EXPECT_EQ(column(words, 1), (texts{u"10000000000000000000000", u"0", u"-0"}));
    EXPECT_EQ(words.CLabels[0], u"p");
    EXPECT_EQ(words.CLabels[1], u"q");
}

TEST_F(RecordConversion, RendersABlockAtItsPlace)
{
    cST_MVect<double> source(3, 2);
    fill<double>(source, {{1.0, 2.0, 3.0}, {4.0, 5.0, 6.0}}, {u"p", u"q"});
    EXPECT_EQ(Convert_MVectDblToMVectStr_ST(2, 2, 2, 2, 2, 1, 2, 1, source, words), 0);
    EXPECT_EQ(column(words, 0), (texts{u"1", u"5", u""}));
    EXPECT_EQ(column(words, 1), (texts{u"-4", u"1,5e2", u"6"}));
    EXPECT_EQ(words.CLabels[0], u"q");
    EXPECT_EQ(words.CLabels[1], u"b");

    EXPECT_EQ(Convert_MVectDblToMVectStr_ST(3, 4, 1, 1, 2, 1, 1, 1, source, words), 0);
    EXPECT_EQ(column(words, 0), (texts{u"3", u"-1", u""}));
}

TEST_F(RecordConversion, ReturnsToTheCallersRecords)
{
    caller_memory caller;
    ST_MVect from = caller.table({caller.column(u"", texts{u"1", u"", u"3,5"})}, {u"x"});
    ST_MVect to = caller.table({caller.column(u"", numbers{9.0, 9.0, 9.0})}, {u"old"});
    {
        cST_MVect<text> source(&from);
        cST_MVect<double> target(&to);
        EXPECT_EQ(Convert_MVectStrToMVectDbl_ST(1, 3, 1, 1, 3, 1, 1, 1, source, u",", target), 0);
    }
    EXPECT_EQ(numbersIn<double>(columnOf(to, 0).Vect), (numbers{1.0, MISSING_DBL, 3.5}));
    EXPECT_EQ(textsIn(to.CLabels), texts{u"x"});
    {
        cST_MVect<double> source(&to);
        cST_MVect<text> target(&from);
        EXPECT_EQ(Convert_MVectDblToMVectStr_ST(1, 3, 1, 1, 3, 1, 1, 1, source, target), 0);
    }
    EXPECT_EQ(textsIn(columnOf(from, 0).Vect), (texts{u"1", u"-2e+308", u"4"}));
    EXPECT_TRUE(caller.guardsIntact());
}
