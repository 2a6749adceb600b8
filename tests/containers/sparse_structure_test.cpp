#include "containers/sparse_matrix.h"

#include "support/guarded.h"
#include "support/sparse_tables.h"

#include <algorithm>
#include <limits>

using korvel::test::guarded;
using korvel::test::tableOf;

namespace
{

using flags = std::vector<bool>;

/** Marks a flag that has not been written; the check is made on the bytes. */
constexpr unsigned char unwritten = 2;

struct structure {
    flags colEmpty;
    flags rowEmpty;
    flags rowDiagOnly;
};

structure pointerForm(matrixSparse& m, int rows, int cols)
{
    const auto room = [](int count) {
        return guarded<unsigned char>(
            std::vector<unsigned char>(static_cast<std::size_t>(std::max(count, 0)), unwritten));
    };
    const auto pointer = [](guarded<unsigned char>& array) { return reinterpret_cast<bool*>(array.data()); };
    const auto read = [](const guarded<unsigned char>& array) {
        const std::vector<unsigned char> bytes = valuesOf(array);
        EXPECT_EQ(std::count(bytes.begin(), bytes.end(), unwritten), 0);
        return flags(bytes.begin(), bytes.end());
    };
    auto colEmpty = room(cols);
    auto rowEmpty = room(rows);
    auto rowDiagOnly = room(std::max(rows, cols));
    m.calcStrucInfo(rows, cols, pointer(colEmpty), pointer(rowEmpty), pointer(rowDiagOnly), 77, -77);
    return {read(colEmpty), read(rowEmpty), read(rowDiagOnly)};
}

structure vectorForm(matrixSparse& m, int rows, int cols, int rowOffset, int colOffset)
{
    structure s{{false, true, false}, {true, false}, {true, true, true, true, true, true}};
    m.calcStrucInfo(rows, cols, s.colEmpty, s.rowEmpty, s.rowDiagOnly, rowOffset, colOffset);
    return s;
}

matrixSparse squareTable()
{
    matrix<double> dense = tableOf({
        {5.0, 0.0, 0.0, 0.0}, // the diagonal alone
        {0.0, 0.0, 1.0, 0.0}, // one entry, not on the diagonal
        {0.0, 0.0, 0.0, 0.0},
        {2.0, 0.0, 0.0, 3.0}, // the diagonal and another
    });
    return matrixSparse(&dense);
}

} // namespace

TEST(SparseStructure, TellsTheWholeSquareTable)
{
    matrixSparse m = squareTable();
    const structure s = pointerForm(m, 4, 4);
    EXPECT_EQ(s.colEmpty, (flags{false, true, false, false}));
    EXPECT_EQ(s.rowEmpty, (flags{false, false, true, false}));
    EXPECT_EQ(s.rowDiagOnly, (flags{true, false, false, false}));
    const structure v = vectorForm(m, 4, 4, 0, 0);
    EXPECT_EQ(v.colEmpty, s.colEmpty);
    EXPECT_EQ(v.rowEmpty, s.rowEmpty);
    EXPECT_EQ(v.rowDiagOnly, s.rowDiagOnly);
}

TEST(SparseStructure, ADiagonalFirstEntryIsNotEnough)
{
    matrixSparse m(1, 2, 0.0, false);
    m.setElement(0, 1, 1.0);
    m.setElement(0, 0, 1.0); // now the first of its row
    m.nbcols = 1;
    EXPECT_EQ(pointerForm(m, 1, 1).rowDiagOnly, (flags{false}));
}

TEST(SparseStructure, ClearsTheLargerCountOfDiagonalFlagsWhenTheCountsDiffer)
{
    matrixSparse m = squareTable();
    const structure wide = pointerForm(m, 2, 5);
    EXPECT_EQ(wide.rowDiagOnly, (flags{false, false, false, false, false}));
    EXPECT_EQ(wide.rowEmpty, (flags{false, false}));
    EXPECT_EQ(wide.colEmpty, (flags{false, true, false, false, true}));
    const structure tall = pointerForm(m, 4, 1);
    EXPECT_EQ(tall.rowDiagOnly, (flags{false, false, false, false}));
    EXPECT_EQ(tall.colEmpty, (flags{false})) << "entries of further columns are passed over";

    const structure block = vectorForm(m, 2, 5, 0, 0);
    EXPECT_EQ(block.rowDiagOnly, (flags{false, false, false, false, false}));
    EXPECT_EQ(vectorForm(m, 4, 1, 0, 0).rowDiagOnly, (flags{false, false, false, false}));
}

TEST(SparseStructure, TheWholeTableCountsAllEntriesAndTheBlockOnlyItsOwn)
{
    matrixSparse m = squareTable();
    EXPECT_EQ(pointerForm(m, 2, 2).colEmpty, (flags{false, true}));
    EXPECT_EQ(pointerForm(m, 1, 4).colEmpty, (flags{false, true, false, false}));
    EXPECT_EQ(vectorForm(m, 1, 4, 0, 0).colEmpty, (flags{false, true, true, true}));
}

TEST(SparseStructure, RowsOfABlockCountFromItsOffset)
{
    matrixSparse m = squareTable();
    const structure s = vectorForm(m, 2, 2, 1, 0);
    EXPECT_EQ(s.rowEmpty, (flags{false, true}));
    EXPECT_EQ(s.rowDiagOnly, (flags{false, false}));
    m.setElement(2, 2, 4.0);
    EXPECT_EQ(vectorForm(m, 2, 2, 1, 0).rowDiagOnly, (flags{false, true}));
    EXPECT_EQ(vectorForm(m, 2, 2, 1, 1).rowDiagOnly, (flags{false, true}))
        << "the column offset does not matter";
    EXPECT_EQ(vectorForm(m, 2, 2, 1, 1).rowEmpty, (flags{false, false}));
}

TEST(SparseStructure, HoldsTheShiftedColumnAgainstTheUnshiftedOffset)
{
    matrix<double> dense(1, 8, 1.0);
    dense.setElement(0, 6, 0.0);
    matrixSparse m(&dense);
    // With offset 2 the entries are at shifted columns -2 to 3 and 5: 0 and 1 are below the offset, 2 and 3
    // are not, 4 is the zero.
    EXPECT_EQ(vectorForm(m, 1, 6, 0, 2).colEmpty, (flags{true, true, false, false, true, false}));
    EXPECT_EQ(vectorForm(m, 1, 3, 0, 2).colEmpty, (flags{true, true, false}));
    EXPECT_EQ(vectorForm(m, 1, 3, 0, 0).colEmpty, (flags{false, false, false}));
    // Nothing is at shifted column 0 or 1, and nothing may be written before them.
    EXPECT_EQ(vectorForm(m, 1, 4, 0, -2).colEmpty, (flags{true, true, false, false}));
    m.setElement(0, -3, 1.0);
    EXPECT_EQ(vectorForm(m, 1, 4, 0, -2).colEmpty, (flags{true, true, false, false}));
}

TEST(SparseStructure, RowsAndColumnsOutsideTheTableAreEmpty)
{
    matrixSparse m = squareTable();
    const structure s = pointerForm(m, 6, 6);
    EXPECT_EQ(s.colEmpty, (flags{false, true, false, false, true, true}));
    EXPECT_EQ(s.rowEmpty, (flags{false, false, true, false, true, true}));
    EXPECT_EQ(s.rowDiagOnly, (flags{true, false, false, false, false, false}));
    const structure before = vectorForm(m, 2, 2, -1, 0);
    EXPECT_EQ(before.rowEmpty, (flags{true, false}));
    EXPECT_EQ(before.rowDiagOnly, (flags{false, true}));
    constexpr int largest = std::numeric_limits<int>::max();
    EXPECT_EQ(vectorForm(m, 2, 2, largest, largest).rowEmpty, (flags{true, true}));
}

TEST(SparseStructure, PassesOverStoredColumnsOutsideAndTablesThatOnlyReserve)
{
    matrixSparse m(2, 2, 0.0, true);
    EXPECT_EQ(pointerForm(m, 2, 2).colEmpty, (flags{true, true}));
    m.setElement(0, -1, 1.0);
    m.setElement(1, 2, 1.0);
    const structure s = pointerForm(m, 2, 2);
    EXPECT_EQ(s.colEmpty, (flags{true, true}));
    EXPECT_EQ(s.rowEmpty, (flags{false, false}));
    EXPECT_EQ(vectorForm(m, 2, 2, 0, 0).colEmpty, (flags{true, true}));
}

TEST(SparseStructure, CountsBelowOneDescribeNothing)
{
    matrixSparse m = squareTable();
    const structure none = pointerForm(m, 0, 0);
    EXPECT_TRUE(none.colEmpty.empty());
    EXPECT_TRUE(none.rowEmpty.empty());
    EXPECT_TRUE(none.rowDiagOnly.empty());
    EXPECT_TRUE(pointerForm(m, -1, -1).rowEmpty.empty());
    EXPECT_TRUE(vectorForm(m, 0, 0, 0, 0).rowDiagOnly.empty());
    const structure noColumns = vectorForm(m, 1, -1, 0, 0);
    EXPECT_TRUE(noColumns.colEmpty.empty());
    EXPECT_EQ(noColumns.rowEmpty.size(), 1u);
    EXPECT_EQ(noColumns.rowDiagOnly, (flags{false}));
    EXPECT_EQ(vectorForm(m, -1, 2, 0, 0).colEmpty, (flags{true, true}));
    EXPECT_TRUE(vectorForm(m, -2, -3, 0, 0).rowDiagOnly.empty());
}
