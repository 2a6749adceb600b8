#include "containers/sparse_matrix.h"

#include "support/allocations.h"
#include "support/sparse_tables.h"

#include <cmath>
#include <limits>
#include <map>
#include <new>
#include <stdexcept>
#include <type_traits>
#include <utility>

using korvel::test::sameStorage;

namespace
{

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();
const double belowZeroTest = std::nextafter(1e-18, 0.0);
const double aboveZeroTest = std::nextafter(1e-18, 1.0);

using positions = std::vector<int>;
using numbers = std::vector<double>;

} // namespace

TEST(SparseMatrix, KeepsItsFieldsInTheOrderThatSiblingsKnow)
{
    static_assert(!std::is_polymorphic_v<matrixSparse>);
    const matrixSparse m;
    const auto offset = [&](const auto& field) {
        return reinterpret_cast<const char*>(&field) - reinterpret_cast<const char*>(&m);
    };
    EXPECT_EQ(offset(m.nbrows), 0);
    EXPECT_EQ(offset(m.nbcols), 4);
    EXPECT_EQ(offset(m.nnz), 8);
    EXPECT_EQ(offset(m.colIndex), 16);
    EXPECT_EQ(offset(m.rowStart), 40);
    EXPECT_EQ(offset(m.values), 64);
    EXPECT_EQ(sizeof m, 88u);
}

TEST(SparseMatrix, StartsEmpty)
{
    matrixSparse m;
    EXPECT_TRUE(sameStorage(m, {}));
    EXPECT_TRUE(m.rowStart.empty());
    EXPECT_EQ(m.getElement(0, 0), 0.0);
    EXPECT_EQ(m.getElement(1, 0), -1.0);
    EXPECT_EQ(m.getElement(0, 1), -1.0);
    m.setElement(0, 0, 5.0);
    EXPECT_TRUE(sameStorage(m, {}));
    EXPECT_EQ(m.to_matrix().nbrows, 0);
}

TEST(SparseMatrix, ReadsMinusOneOnlyPastTheCounts)
{
    matrixSparse m(2, 3, 0.0, false);
    EXPECT_EQ(m.getElement(1, 2), 0.0);
    EXPECT_EQ(m.getElement(2, 0), 0.0) << "an index equal to the count passes";
    EXPECT_EQ(m.getElement(0, 3), 0.0);
    EXPECT_EQ(m.getElement(3, 0), -1.0);
    EXPECT_EQ(m.getElement(0, 4), -1.0);
    EXPECT_EQ(m.getElement(-1, 0), 0.0);
    EXPECT_EQ(m.getElement(0, -1), 0.0);
    EXPECT_EQ(m.getElement(std::numeric_limits<int>::min(), 0), 0.0);
    EXPECT_EQ(m.vbget(4, 1), -1.0);
    EXPECT_EQ(m.vbget(1, 5), -1.0);
    EXPECT_EQ(m.vbget(3, 1), 0.0);
}

TEST(SparseMatrix, CountsFromOneInVbgetAndVbset)
{
    matrixSparse m(2, 2, 0.0, false);
    m.vbset(1, 2, 7.0);
    EXPECT_EQ(m.getElement(0, 1), 7.0);
    EXPECT_EQ(m.vbget(1, 2), 7.0);
    m.vbset(4, 1, 7.0);
    m.vbset(1, 4, 7.0);
    EXPECT_EQ(m.nnz, 1);
}

TEST(SparseMatrix, InsertsAtTheFrontOfTheRow)
{
    matrixSparse m(3, 4, 0.0, false);
    m.setElement(1, 0, 1.0);
    m.setElement(1, 2, 2.0);
    m.setElement(2, 3, 3.0);
    m.setElement(0, 1, 4.0);
    m.setElement(1, 1, 5.0);
    EXPECT_EQ(m.nnz, 5);
    EXPECT_EQ(m.rowStart, (positions{0, 1, 4, 5}));
    EXPECT_EQ(m.colIndex, (positions{1, 1, 2, 0, 3}));
    EXPECT_EQ(m.values, (numbers{4.0, 5.0, 2.0, 1.0, 3.0}));
}

TEST(SparseMatrix, OverwritesInPlace)
{
    matrixSparse m(1, 3, 0.0, false);
    m.setElement(0, 0, 1.0);
    m.setElement(0, 1, 2.0);
    m.setElement(0, 0, -9.0);
    EXPECT_EQ(m.nnz, 2);
    EXPECT_EQ(m.colIndex, (positions{1, 0}));
    EXPECT_EQ(m.values, (numbers{2.0, -9.0}));
}

TEST(SparseMatrix, TakesAnElementOutWhenItIsSetToZero)
{
    matrixSparse m(3, 2, 0.0, false);
    m.setElement(0, 0, 1.0);
    m.setElement(1, 0, 2.0);
    m.setElement(1, 1, 3.0);
    m.setElement(2, 1, 4.0);
    m.setElement(1, 0, 0.0);
    EXPECT_EQ(m.nnz, 3);
    EXPECT_EQ(m.rowStart, (positions{0, 1, 2, 3}));
    EXPECT_EQ(m.colIndex, (positions{0, 1, 1}));
    EXPECT_EQ(m.values, (numbers{1.0, 3.0, 4.0}));
    m.setElement(1, 0, 0.0);
    EXPECT_EQ(m.nnz, 3) << "an absent element stays absent";
}

TEST(SparseMatrix, SetterStoresTheThresholdAndDropsWhatIsBelow)
{
    for (const double stored : {1e-18, -1e-18, aboveZeroTest, infinity, notANumber}) {
        matrixSparse m(1, 1, 0.0, false);
        m.setElement(0, 0, stored);
        EXPECT_EQ(m.nnz, 1) << stored;
        EXPECT_SAME_BITS(m.getElement(0, 0), stored);
        m.setElement(0, 0, 2.0 * stored);
        EXPECT_EQ(m.nnz, 1) << "an element at the threshold is overwritten, not doubled";
        EXPECT_EQ(m.values.size(), 1u);
    }
    for (const double dropped : {0.0, -0.0, belowZeroTest, -belowZeroTest, 5e-324}) {
        matrixSparse m(1, 1, 0.0, false);
        m.setElement(0, 0, dropped);
        EXPECT_EQ(m.nnz, 0) << dropped;
        m.setElement(0, 0, 1.0);
        m.setElement(0, 0, dropped);
        EXPECT_EQ(m.nnz, 0) << dropped;
        EXPECT_TRUE(m.colIndex.empty());
    }
}

TEST(SparseMatrix, GivesAStoredZeroACompanionInFrontOfIt)
{
    // Products leave entries of value 0 behind.
    matrixSparse m(1, 2, 0.0, false);
    m.nnz = 2;
    m.colIndex = {1, 0};
    m.values = {8.0, 0.0};
    m.rowStart = {0, 2};
    m.setElement(0, 0, 3.0);
    EXPECT_EQ(m.nnz, 3);
    EXPECT_EQ(m.colIndex, (positions{0, 1, 0}));
    EXPECT_EQ(m.getElement(0, 0), 3.0);
    m.setElement(0, 0, 0.0);
    EXPECT_EQ(m.colIndex, (positions{1, 0}));
    m.setElement(0, 0, 0.0);
    EXPECT_EQ(m.colIndex, (positions{1})) << "a stored zero is an entry, and is taken out as one";
    EXPECT_EQ(m.nnz, 1);
}

TEST(SparseMatrix, HasNoPlaceForTheRowPastTheEndOrANegativeOne)
{
    matrixSparse m(2, 2, 0.0, false);
    m.setElement(1, 1, 6.0);
    const matrixSparse before(m);
    m.setElement(2, 0, 5.0);
    m.setElement(3, 0, 5.0);
    m.setElement(-1, 0, 5.0);
    m.vbset(0, 1, 5.0);
    m.setElement(0, 3, 5.0);
    EXPECT_TRUE(sameStorage(m, before));
    EXPECT_EQ(m.getElement(2, 0), 0.0);
}

TEST(SparseMatrix, StoresAColumnJustOutsideLikeAnyOther)
{
    matrixSparse m(2, 2, 0.0, false);
    m.setElement(0, 2, 5.0);
    m.setElement(0, -1, 6.0);
    EXPECT_EQ(m.getElement(0, 2), 5.0);
    EXPECT_EQ(m.getElement(0, -1), 6.0);
    EXPECT_EQ(m.nnz, 2);
    EXPECT_EQ(m.getElement(1, 0), 0.0) << "and not as the first column of the next row";
}

TEST(SparseMatrix, LinearAccessorsDoNothing)
{
    matrixSparse m(2, 2, 0.0, false);
    m.setElement(0, 0, 4.0);
    const matrixSparse before(m);
    for (const int k : {-1, 0, 1, 100}) {
        EXPECT_SAME_BITS(m.getElement(k), 0.0);
        EXPECT_SAME_BITS(m.vbget(k), 0.0);
        EXPECT_SAME_BITS(m.setElement(k, 5.0), 0.0);
        EXPECT_SAME_BITS(m.vbset(k, 5.0), 0.0);
    }
    EXPECT_TRUE(sameStorage(m, before));
}

TEST(SparseMatrix, FollowsAMapThroughRandomWrites)
{
    std::mt19937_64 generator(20240501);
    for (int round = 0; round < 60; ++round) {
        const int rows = 1 + static_cast<int>(generator() % 9);
        const int cols = 1 + static_cast<int>(generator() % 9);
        matrixSparse m(rows, cols, 0.0, false);
        std::map<std::pair<int, int>, double> model;
        const auto expected = [&](int i, int j) {
            if (i > rows || j > cols) {
                return -1.0;
            }
            const auto found = model.find({i, j});
            return found == model.end() ? 0.0 : found->second;
        };
        for (int step = 0; step < 300; ++step) {
            const int i = static_cast<int>(generator() % static_cast<unsigned>(rows + 4)) - 1;
            const int j = static_cast<int>(generator() % static_cast<unsigned>(cols + 4)) - 1;
            constexpr std::array<double, 8> special = {0.0,   -0.0,     1e-18,  -1e-18,
                                                       9e-19, infinity, 5e-324, 0.0};
            const std::uint64_t kind = generator() % 16;
            const double v = kind < special.size() ? special[kind] : korvel::test::uniform(generator);
            if (generator() % 2 == 0) {
                m.setElement(i, j, v);
            } else {
                m.vbset(i + 1, j + 1, v);
            }
            if (i >= 0 && i < rows && j <= cols) {
                if (std::fabs(v) < 1e-18) {
                    model.erase({i, j});
                } else {
                    model[{i, j}] = v;
                }
            }
        }
        for (int i = -1; i < rows + 3; ++i) {
            for (int j = -1; j < cols + 3; ++j) {
                ASSERT_SAME_BITS(m.getElement(i, j), expected(i, j)) << i << ", " << j;
                ASSERT_SAME_BITS(m.vbget(i + 1, j + 1), expected(i, j)) << i << ", " << j;
            }
        }
        EXPECT_EQ(static_cast<std::size_t>(m.nnz), model.size());
        EXPECT_EQ(m.colIndex.size(), model.size());
        EXPECT_EQ(m.values.size(), model.size());
        ASSERT_EQ(m.rowStart.size(), static_cast<std::size_t>(rows) + 1);
        for (int i = 0; i < rows; ++i) {
            const auto inRow =
                std::count_if(model.begin(), model.end(), [&](const auto& e) { return e.first.first == i; });
            EXPECT_EQ(m.rowStart[static_cast<std::size_t>(i) + 1] - m.rowStart[static_cast<std::size_t>(i)],
                      inRow);
        }
    }
}

TEST(SparseMatrix, CopiesDeeply)
{
    matrixSparse m(2, 2, 0.0, false);
    m.setElement(0, 1, 3.0);
    matrixSparse copy(m);
    matrixSparse assigned;
    assigned = m;
    m.setElement(0, 1, 4.0);
    m.setElement(1, 1, 5.0);
    EXPECT_EQ(copy.getElement(0, 1), 3.0);
    EXPECT_EQ(copy.nnz, 1);
    EXPECT_TRUE(sameStorage(assigned, copy));
    const matrixSparse& itself = assigned;
    assigned = itself;
    EXPECT_TRUE(sameStorage(assigned, copy));
}

TEST(SparseMatrix, CopyMatToReplacesTheTarget)
{
    matrixSparse m(2, 3, 0.0, true);
    m.setElement(1, 2, 3.0);
    matrixSparse target(4, 4, 1.0, false);
    m.copyMatTo(&target);
    EXPECT_TRUE(sameStorage(target, m));
    EXPECT_EQ(target.nnz, 7) << "also of a reserved table";
    m.copyMatTo(&m);
    EXPECT_TRUE(sameStorage(m, {})) << "the target is emptied first";
}

TEST(SparseMatrix, ReInitReleasesEverything)
{
    matrixSparse m(5, 5, 1.0, false);
    m.ReInit();
    EXPECT_TRUE(sameStorage(m, {}));
    EXPECT_EQ(m.colIndex.capacity(), 0u);
    EXPECT_EQ(m.rowStart.capacity(), 0u);
    EXPECT_EQ(m.values.capacity(), 0u);
}

TEST(SparseMatrix, RedimKeepsNoEntry)
{
    matrixSparse m(2, 2, 0.0, false);
    m.setElement(0, 1, 3.0);
    m.Redim(2, 2, 0.0);
    EXPECT_TRUE(sameStorage(m, matrixSparse(2, 2, 0.0, false)));
    m.Redim(3, 1, 1e-18);
    EXPECT_TRUE(sameStorage(m, matrixSparse(3, 1, 0.0, false)));
    m.Redim(1, 3, 1.5);
    EXPECT_TRUE(sameStorage(m, matrixSparse(1, 3, 1.5, false)));
}

TEST(SparseMatrix, LaysItselfOutDensely)
{
    matrixSparse m(2, 3, 0.0, false);
    m.setElement(0, 0, 1.0);
    m.setElement(0, 2, 2.0);
    m.setElement(1, 1, 3.0);
    const matrix<double> dense = m.to_matrix();
    ASSERT_EQ(dense.nbrows, 2);
    ASSERT_EQ(dense.nbcols, 3);
    EXPECT_EQ(numbers(dense.data, dense.data + 6), (numbers{1.0, 0.0, 0.0, 3.0, 2.0, 0.0}));

    const matrix<double> larger = m.to_matrix(3, 4);
    EXPECT_EQ(numbers(larger.data, larger.data + 12),
              (numbers{1.0, 0.0, 0.0, 0.0, 3.0, 0.0, 2.0, 0.0, 0.0, 0.0, 0.0, 0.0}));
    const matrix<double> smaller = m.to_matrix(1, 1);
    ASSERT_EQ(smaller.nbElem, 1u);
    EXPECT_EQ(smaller.data[0], 1.0);
    const matrix<double> noColumns = m.to_matrix(2, 0);
    EXPECT_EQ(noColumns.nbcols, 1);
    EXPECT_EQ(numbers(noColumns.data, noColumns.data + 2), (numbers{1.0, 0.0}));
}

TEST(SparseMatrix, LeavesColumnsOutsideOutOfTheDenseTable)
{
    matrixSparse m(2, 2, 0.0, false);
    m.setElement(0, 1, 1.0);
    m.setElement(1, 2, 5.0);
    m.setElement(1, -1, 6.0);
    const matrix<double> dense = m.to_matrix();
    EXPECT_EQ(numbers(dense.data, dense.data + 4), (numbers{0.0, 0.0, 1.0, 0.0}));
    matrixSparse full(2, 2, notANumber, false);
    const matrix<double> none = full.to_matrix();
    EXPECT_EQ(numbers(none.data, none.data + 4), numbers(4));
}

TEST(SparseMatrix, TheLastOfTwoEntriesStaysInTheDenseTable)
{
    matrixSparse m(1, 2, 0.0, false);
    m.nnz = 2;
    m.colIndex = {1, 1};
    m.values = {8.0, 9.0};
    m.rowStart = {0, 2};
    EXPECT_EQ(m.getElement(0, 1), 8.0);
    EXPECT_EQ(m.to_matrix().data[1], 9.0);
}

TEST(SparseMatrix, AFailedInsertionLeavesTheTableAsItWas)
{
    matrixSparse m(2, 2, 0.0, false);
    m.setElement(1, 0, 1.0);
    m.colIndex.shrink_to_fit();
    m.values.shrink_to_fit();
    const matrixSparse before(m);
    for (const int allowed : {0, 1}) {
        {
            const korvel::test::allocation_limit limit(allowed);
            EXPECT_THROW(m.setElement(0, 1, 2.0), std::bad_alloc);
        }
        EXPECT_TRUE(sameStorage(m, before));
        m.colIndex.shrink_to_fit();
    }
    m.setElement(0, 1, 2.0);
    EXPECT_EQ(m.nnz, 2);
}
