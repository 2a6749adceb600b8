#include "containers/records.h"
#include "containers/sparse_matrix.h"

#include "reference/sparse_matrix.h"
#include "support/allocations.h"
#include "support/sparse_tables.h"

#include <cmath>
#include <limits>
#include <new>

using korvel::test::sameStorage;
using korvel::test::tableOf;

namespace
{

using positions = std::vector<int>;
using numbers = std::vector<double>;

} // namespace

TEST(SparseLoad, StoresEachRowInColumnOrder)
{
    matrix<double> dense = tableOf({{1.0, 0.0, 2.0}, {0.0, 3.0, 0.0}, {4.0, 5.0, 6.0}});
    const matrixSparse m(&dense);
    EXPECT_EQ(m.nbrows, 3);
    EXPECT_EQ(m.nbcols, 3);
    EXPECT_EQ(m.nnz, 6);
    EXPECT_EQ(m.rowStart, (positions{0, 2, 3, 6}));
    EXPECT_EQ(m.colIndex, (positions{0, 2, 1, 0, 1, 2}));
    EXPECT_EQ(m.values, (numbers{1.0, 2.0, 3.0, 4.0, 5.0, 6.0}));
}

TEST(SparseLoad, DropsTheThresholdItselfAndNaN)
{
    constexpr double infinity = std::numeric_limits<double>::infinity();
    const double above = std::nextafter(1e-18, 1.0);
    matrix<double> dense = tableOf({{1e-18, -1e-18, std::numeric_limits<double>::quiet_NaN(), -0.0},
                                    {above, -above, infinity, MISSING_DBL}});
    const matrixSparse m(&dense);
    EXPECT_EQ(m.nnz, 4);
    EXPECT_EQ(m.rowStart, (positions{0, 0, 4}));
    EXPECT_EQ(m.values, (numbers{above, -above, infinity, MISSING_DBL}));
}

TEST(SparseLoad, ReadsRowZeroAloneAsRowOne)
{
    matrix<double> dense = tableOf({{1.0, 0.0, 2.0}, {0.0, 0.0, 0.0}, {0.0, 0.0, 0.0}});
    matrixSparse m(&dense);
    EXPECT_EQ(m.rowStart, (positions{0, 0, 2, 2}));
    EXPECT_EQ(m.getElement(0, 0), 0.0);
    EXPECT_EQ(m.getElement(1, 0), 1.0);
    EXPECT_EQ(m.getElement(1, 2), 2.0);
    EXPECT_EQ(m.getElement(2, 0), 0.0);

    matrix<double> two = tableOf({{1.0}, {0.0}});
    EXPECT_EQ(matrixSparse(&two).rowStart, (positions{0, 0, 1}));
    matrix<double> one = tableOf({{1.0, 2.0}});
    EXPECT_EQ(matrixSparse(&one).rowStart, (positions{0, 2})) << "a single row has no row to go to";
}

TEST(SparseLoad, ReadsOtherEmptyRowsCorrectly)
{
    matrix<double> lastTwo = tableOf({{0.0, 0.0}, {1.0, 0.0}, {2.0, 3.0}});
    EXPECT_EQ(matrixSparse(&lastTwo).rowStart, (positions{0, 0, 1, 3}));
    matrix<double> firstTwo = tableOf({{1.0, 0.0}, {2.0, 3.0}, {0.0, 0.0}, {0.0, 0.0}});
    EXPECT_EQ(matrixSparse(&firstTwo).rowStart, (positions{0, 1, 3, 3, 3}));
    matrix<double> ends = tableOf({{1.0}, {0.0}, {0.0}, {2.0}});
    EXPECT_EQ(matrixSparse(&ends).rowStart, (positions{0, 1, 1, 1, 2}));
    matrix<double> middle = tableOf({{0.0}, {0.0}, {2.0}, {0.0}, {0.0}});
    EXPECT_EQ(matrixSparse(&middle).rowStart, (positions{0, 0, 0, 1, 1, 1}));
    matrix<double> second = tableOf({{0.0}, {2.0}});
    EXPECT_EQ(matrixSparse(&second).rowStart, (positions{0, 0, 1}));
    matrix<double> none = tableOf({{0.0}, {0.0}, {0.0}});
    EXPECT_EQ(matrixSparse(&none).rowStart, (positions{0, 0, 0, 0}));
}

TEST(SparseLoad, TakesTablesWithoutCells)
{
    matrix<double> empty;
    const matrixSparse m(&empty);
    EXPECT_EQ(m.nbrows, 0);
    EXPECT_EQ(m.nbcols, 0);
    EXPECT_EQ(m.rowStart, (positions{0}));
    double cell = 1.0;
    matrix<double> noColumns(3, 0, &cell, true);
    EXPECT_EQ(matrixSparse(&noColumns).rowStart, (positions{0, 0, 0, 0}));
    matrix<double> fewerThanNone(-1, 1, &cell, true);
    EXPECT_EQ(matrixSparse(&fewerThanNone).nnz, 0);
    matrix<double> negativeRows(-5, 3, &cell, true);
    EXPECT_EQ(matrixSparse(&negativeRows).nbrows, -5);
    EXPECT_TRUE(matrixSparse(&negativeRows).rowStart.empty());
    matrix<double> negativeColumns(3, -1, &cell, true);
    EXPECT_EQ(matrixSparse(&negativeColumns).nnz, 0);
}

TEST(SparseLoad, ReplacesWhatWasThere)
{
    matrix<double> dense = tableOf({{0.0, 1.0}, {2.0, 0.0}});
    matrixSparse m(5, 5, 1.0, false);
    m.outputSparse(&dense);
    EXPECT_TRUE(sameStorage(m, matrixSparse(&dense)));
}

TEST(SparseLoad, EqualsThePlainLoad)
{
    std::mt19937_64 generator(11);
    for (int round = 0; round < 400; ++round) {
        const int rows = 1 + static_cast<int>(generator() % 12);
        const int cols = 1 + static_cast<int>(generator() % 12);
        matrix<double> dense =
            korvel::test::randomTable(generator, rows, cols, 1 + static_cast<unsigned>(generator() % 24));
        for (std::uint64_t k = 0; k < dense.nbElem; ++k) {
            constexpr std::array<double, 4> special = {1e-18, std::numeric_limits<double>::quiet_NaN(),
                                                       -std::numeric_limits<double>::infinity(), MISSING_DBL};
            if (generator() % 20 == 0) {
                dense.data[k] = special[generator() % special.size()];
            }
        }
        const matrixSparse expected =
            korvel::reference::loadSparse(rows, cols, [&](int i, int j) { return dense.getElement(i, j); });
        ASSERT_TRUE(sameStorage(matrixSparse(&dense), expected));
    }
}

TEST(SparseLoad, ComesBackAsItWasButForRowZeroAlone)
{
    std::mt19937_64 generator(12);
    int moved = 0;
    for (int round = 0; round < 300; ++round) {
        const int rows = 1 + static_cast<int>(generator() % 6);
        const int cols = 1 + static_cast<int>(generator() % 6);
        matrix<double> dense =
            korvel::test::randomTable(generator, rows, cols, 1 + static_cast<unsigned>(generator() % 20));
        bool onlyRowZero = rows > 1;
        for (int i = 1; i < rows; ++i) {
            for (int j = 0; j < cols; ++j) {
                onlyRowZero = onlyRowZero && dense.getElement(i, j) == 0.0;
            }
        }
        matrixSparse m(&dense);
        moved += onlyRowZero && m.nnz > 0 ? 1 : 0;
        const matrix<double> back = m.to_matrix();
        for (int i = 0; i < rows; ++i) {
            for (int j = 0; j < cols; ++j) {
                const double expected = !onlyRowZero ? dense.getElement(i, j)
                                        : i == 1     ? dense.getElement(0, j)
                                                     : 0.0;
                ASSERT_SAME_BITS(back.getElement(i, j), expected) << i << ", " << j;
                ASSERT_SAME_BITS(m.getElement(i, j), expected) << i << ", " << j;
            }
        }
    }
    EXPECT_GT(moved, 5) << "the oddity was met";
}

TEST(SparseLoad, TakesATableOfColumns)
{
    cST_MVect<double> t(3, 2);
    t.Vectors[0].Vect[1] = 4.0;
    t.Vectors[1].Vect[2] = 1e-18;
    t.Vectors[1].Vect[0] = -2.0;
    matrixSparse m(5, 5, 1.0, false);
    m.outputSparse(&t);
    EXPECT_EQ(m.nbrows, 3);
    EXPECT_EQ(m.nbcols, 2);
    EXPECT_EQ(m.nnz, 2);
    EXPECT_EQ(m.rowStart, (positions{0, 1, 2, 2}));
    EXPECT_EQ(m.colIndex, (positions{1, 0}));
    EXPECT_EQ(m.values, (numbers{-2.0, 4.0}));

    t.Vectors[0].Vect[1] = 0.0;
    m.outputSparse(&t);
    EXPECT_EQ(m.rowStart, (positions{0, 0, 1, 1})) << "row 0 alone";
}

TEST(SparseLoad, ReadsAShortColumnAsItsSpareSlot)
{
    cST_MVect<double> t(3, 3);
    t.nbrowsmax = 4;
    t.Vectors[0].Vect.oobValue = 7.0;
    t.Vectors[2].Vect.oobValue = 0.0;
    matrixSparse m;
    m.outputSparse(&t);
    EXPECT_EQ(m.nbrows, 4);
    EXPECT_EQ(m.rowStart, (positions{0, 0, 0, 0, 2}));
    EXPECT_EQ(m.colIndex, (positions{0, 1}));
    EXPECT_EQ(m.values, (numbers{7.0, -1.0}));
}

TEST(SparseLoad, ReadsColumnsThatAreNotThereAsZeros)
{
    cST_MVect<double> t(2, 1);
    t.Vectors[0].Vect[1] = 5.0;
    t.nbcols = 3;
    matrixSparse m;
    m.outputSparse(&t);
    EXPECT_EQ(m.nbcols, 3);
    EXPECT_EQ(m.rowStart, (positions{0, 0, 1}));
    EXPECT_EQ(m.values, (numbers{5.0}));

    t.nbcols = 0;
    m.outputSparse(&t);
    EXPECT_EQ(m.nbcols, 0);
    EXPECT_EQ(m.nnz, 0) << "columns past the count do not belong to the table";

    cST_MVect<double> empty;
    m.outputSparse(&empty);
    EXPECT_EQ(m.nbrows, 0);
    EXPECT_EQ(m.rowStart, (positions{0}));
}

TEST(SparseLoad, ATableOfColumnsEqualsThePlainLoad)
{
    std::mt19937_64 generator(14);
    for (int round = 0; round < 200; ++round) {
        const int rows = 1 + static_cast<int>(generator() % 9);
        const int cols = 1 + static_cast<int>(generator() % 9);
        cST_MVect<double> t(rows, cols);
        for (auto& column : t.Vectors) {
            const int length = static_cast<int>(generator() % static_cast<unsigned>(rows + 2));
            column.Vect =
                korvel::test::randomTable(generator, length, 1, 1 + static_cast<unsigned>(generator() % 9));
            column.Vect.oobValue = generator() % 2 == 0 ? 0.0 : -1.0;
        }
        const auto cell = [&](int i, int j) { return t.Vectors[static_cast<std::size_t>(j)].Vect[i]; };
        matrixSparse m;
        m.outputSparse(&t);
        ASSERT_TRUE(sameStorage(m, korvel::reference::loadSparse(rows, cols, cell)));
    }
}

TEST(SparseLoad, ReservesOnce)
{
    std::mt19937_64 generator(13);
    matrix<double> dense = korvel::test::randomTable(generator, 37, 29, 3);
    matrixSparse m;
    const std::int64_t before = korvel::test::allocationCount();
    m.outputSparse(&dense);
    EXPECT_EQ(korvel::test::allocationCount() - before, 3) << "one block for each of the three arrays";
    EXPECT_EQ(m.values.capacity(), static_cast<std::size_t>(m.nnz));
    EXPECT_EQ(m.colIndex.capacity(), static_cast<std::size_t>(m.nnz));
}

TEST(SparseLoad, AFailedLoadLeavesTheTableAsItWas)
{
    matrix<double> dense = tableOf({{0.0, 1.0}, {2.0, 0.0}});
    matrixSparse m(3, 3, 1.0, false);
    const matrixSparse before(m);
    for (const int allowed : {0, 1, 2}) {
        {
            const korvel::test::allocation_limit limit(allowed);
            EXPECT_THROW(m.outputSparse(&dense), std::bad_alloc);
        }
        EXPECT_TRUE(sameStorage(m, before));
    }
}
