#include "ordering/sort_by_column.h"
#include "ordering/sort_table.h"
#include "ordering/sort_vector.h"

#include "support/bits.h"

#include <algorithm>
#include <limits>
#include <numeric>
#include <omp.h>
#include <random>
#include <vector>

namespace
{

/** The original 0-based rows in sorted order, by the standard library's stable sort. */
std::vector<int> expectedOrder(const std::vector<double>& key, int from, int to, bool descending)
{
    std::vector<int> order(key.size());
    std::iota(order.begin(), order.end(), 0);
    std::stable_sort(order.begin() + from - 1, order.begin() + to, [&](int a, int b) {
        const double x = key[static_cast<std::size_t>(a)];
        const double y = key[static_cast<std::size_t>(b)];
        return descending ? x > y : x < y;
    });
    return order;
}

template <class T>
T cellValue(std::uint64_t bits)
{
    if constexpr (korvel::is_text<T>) {
        return text(bits % 5, static_cast<char16_t>(u'a' + bits % 26));
    } else {
        return static_cast<T>(bits % 1000);
    }
}

template <class T>
matrix<T> randomTable(int rows, int cols, std::mt19937_64& random)
{
    matrix<T> table(rows, cols, T{});
    for (std::uint64_t k = 0; k < table.nbElem; ++k) {
        table.data[k] = cellValue<T>(random());
    }
    return table;
}

template <class T>
void expectRowsMoved(const matrix<T>& sorted, const matrix<T>& original, const std::vector<int>& order)
{
    for (int j = 0; j < original.nbcols; ++j) {
        for (int i = 0; i < original.nbrows; ++i) {
            ASSERT_EQ(sorted.getElement(i, j), original.getElement(order[static_cast<std::size_t>(i)], j))
                << "row " << i << " column " << j;
        }
    }
}

template <class T, class Key>
void expectTableSorts(int rows, int cols, int auxCols, std::mt19937_64& random)
{
    for (const bool descending : {false, true}) {
        for (const bool sortKey : {false, true}) {
            const int from = rows > 4 ? 3 : 1;
            const int to = rows > 4 ? rows - 1 : rows;
            const matrix<T> table = randomTable<T>(rows, cols, random);
            const matrix<T> aux = randomTable<T>(rows, auxCols, random);
            matrix<Key> key(rows, 1, Key{});
            std::vector<double> keys(static_cast<std::size_t>(rows));
            for (int i = 0; i < rows; ++i) {
                keys[static_cast<std::size_t>(i)] = static_cast<double>(random() % 11);
                key[i] = static_cast<Key>(keys[static_cast<std::size_t>(i)]);
            }
            const std::vector<int> order = expectedOrder(keys, from, to, descending);

            matrix<T> sortedTable(table);
            matrix<T> sortedAux(aux);
            SortQ(&sortedTable, rows, cols, from, to, &key, &sortedAux, auxCols, descending, sortKey);
            expectRowsMoved(sortedTable, table, order);
            expectRowsMoved(sortedAux, aux, order);
            for (int i = 0; i < rows; ++i) {
                const auto source =
                    static_cast<std::size_t>(sortKey ? order[static_cast<std::size_t>(i)] : i);
                ASSERT_EQ(key[i], static_cast<Key>(keys[source]));
            }
        }
    }
}

class SortTable : public ::testing::TestWithParam<int>
{
protected:
    void SetUp() override { omp_set_num_threads(GetParam()); }
    void TearDown() override { omp_set_num_threads(threads_); }

private:
    int threads_ = omp_get_max_threads();
};

} // namespace

TEST_P(SortTable, RowsOfEveryElementTypeFollowTheKey)
{
    std::mt19937_64 random(11);
    for (const int rows : {1, 2, 3, 31, 33, 999, 1000, 1001}) {
        expectTableSorts<double, double>(rows, 3, 2, random);
        expectTableSorts<int, int>(rows, 3, 2, random);
        expectTableSorts<short int, double>(rows, 3, 2, random);
        expectTableSorts<text, double>(rows, 3, 2, random);
    }
}

TEST_P(SortTable, LargeTablesAreMovedTheSameWay)
{
    std::mt19937_64 random(12);
    expectTableSorts<double, double>(120000, 5, 1, random);
    expectTableSorts<double, double>(1001, 600, 1, random);
    expectTableSorts<text, double>(1200, 420, 1, random);
}

TEST_P(SortTable, ByOneColumnOnBothSidesOfTheParallelLimit)
{
    std::mt19937_64 random(13);
    for (const int rows : {500, 501, 5001}) {
        const matrix<double> table = randomTable<double>(rows, 100, random);
        const std::vector<double> key(table.data + 2 * rows, table.data + 3 * rows);
        matrix<double> sorted(table);
        SortQMatrixCol(&sorted, rows, 100, 3, 1, rows, true);
        expectRowsMoved(sorted, table, expectedOrder(key, 1, rows, true));
    }
}

INSTANTIATE_TEST_SUITE_P(Threads, SortTable, ::testing::Values(1, 2, 3, 7));

TEST(SortQ, LeavesTheTableAloneWithoutColumnsAndTheCompanionToo)
{
    matrix<double> table(3, 1, 5.0);
    table[0] = 1.0;
    matrix<double> key(3, 1, 0.0);
    key[0] = 2.0;
    key[1] = 1.0;
    SortQ(&table, 3, 0, 1, 3, &key, nullptr, 0, false, true);
    EXPECT_EQ(table[0], 1.0);
    EXPECT_EQ(key[0], 0.0);
    EXPECT_EQ(key[1], 1.0);
    EXPECT_EQ(key[2], 2.0);
}

TEST(SortQ, AKeyInTheTablesOwnStorageIsItsFirstColumn)
{
    double cells[] = {3, 1, 2, 30, 10, 20};
    matrix<double> table(3, 2, cells, true);
    matrix<double> key(3, 1, cells, true);
    SortQ(&table, 3, 2, 1, 3, &key, nullptr, 0, false, true);
    EXPECT_TRUE(std::equal(cells, cells + 6, std::vector<double>{1, 2, 3, 10, 20, 30}.begin()));

    double other[] = {3, 1, 2, 30, 10, 20};
    matrix<double> whole(3, 2, other, true);
    matrix<double> first(3, 1, other, true);
    SortQ(&whole, 3, 2, 1, 3, &first, nullptr, 0, true, false);
    EXPECT_TRUE(std::equal(other, other + 6, std::vector<double>{3, 2, 1, 30, 20, 10}.begin()));
}

TEST(SortQ, ACompanionThatIsTheKeyOrTheTableIsNotMovedAgain)
{
    double cells[] = {3, 1, 2};
    double keys[] = {2, 3, 1};
    matrix<double> table(3, 1, cells, true);
    matrix<double> key(3, 1, keys, true);
    matrix<double> sameAsKey(3, 1, keys, true);
    SortQ(&table, 3, 1, 1, 3, &key, &sameAsKey, 1, false, false);
    EXPECT_TRUE(std::equal(cells, cells + 3, std::vector<double>{2, 3, 1}.begin()));
    EXPECT_TRUE(std::equal(keys, keys + 3, std::vector<double>{2, 3, 1}.begin()));

    matrix<double> sameAsTable(3, 1, cells, true);
    SortQ(&table, 3, 1, 1, 3, &key, &sameAsTable, 1, false, false);
    EXPECT_TRUE(std::equal(cells, cells + 3, std::vector<double>{1, 2, 3}.begin()));
}

TEST(SortQ, MissingSortsFirstAscendingAndLastDescending)
{
    matrix<double> table(3, 1, 0.0);
    matrix<double> key(3, 1, 2.0);
    key[1] = MISSING_DBL;
    key[2] = 1.0;
    SortQ(&table, 3, 1, 1, 3, &key, nullptr, 0, false, true);
    EXPECT_SAME_BITS(key[0], MISSING_DBL);
    EXPECT_EQ(key[1], 1.0);
    SortQ(&table, 3, 1, 1, 3, &key, nullptr, 0, true, true);
    EXPECT_EQ(key[0], 2.0);
    EXPECT_SAME_BITS(key[2], MISSING_DBL);
}

TEST(SortQ, ARangeOutsideTheTableChangesNothing)
{
    double cells[] = {3, 1, 2};
    double keys[] = {9, 5, 7};
    matrix<double> table(3, 1, cells, true);
    matrix<double> key(3, 1, keys, true);
    for (const auto& [from, to] : {std::pair{0, 2}, std::pair{2, 4}, std::pair{3, 1}, std::pair{-5, -1}}) {
        SortQ(&table, 3, 1, from, to, &key, nullptr, 0, false, true);
        EXPECT_TRUE(std::equal(cells, cells + 3, std::vector<double>{3, 1, 2}.begin()));
        EXPECT_TRUE(std::equal(keys, keys + 3, std::vector<double>{9, 5, 7}.begin())) << from;
    }
    SortQ(&table, 3, 1, 1, 1, &key, nullptr, 0, false, true);
    EXPECT_EQ(cells[0], 3.0);
}

TEST(SortQByCol, WholeColumnsFollowTheirKeys)
{
    double cells[] = {1, 10, 2, 20, 3, 30, 4, 40};
    double keys[] = {9, 3, 1, 2};
    double more[] = {5, 6, 7, 8};
    matrix<double> table(2, 4, cells, true);
    matrix<double> key(4, 1, keys, true);
    matrix<double> aux(1, 4, more, true);
    SortQByCol(&table, 2, 4, 2, 4, &key, &aux, 1, false, true);
    EXPECT_TRUE(std::equal(cells, cells + 8, std::vector<double>{1, 10, 3, 30, 4, 40, 2, 20}.begin()));
    EXPECT_TRUE(std::equal(keys, keys + 4, std::vector<double>{9, 1, 2, 3}.begin()));
    EXPECT_TRUE(std::equal(more, more + 4, std::vector<double>{5, 7, 8, 6}.begin()));
}

TEST(SortQByCol, KeepsItsKeysUnlessAskedAndTheRowsBelowThoseThatMove)
{
    double cells[] = {1, 10, 2, 20, 3, 30};
    double keys[] = {3, 2, 1};
    matrix<double> table(2, 3, cells, true);
    matrix<double> key(3, 1, keys, true);
    SortQByCol(&table, 1, 3, 1, 3, &key, nullptr, 0, false, false);
    EXPECT_TRUE(std::equal(cells, cells + 6, std::vector<double>{3, 10, 2, 20, 1, 30}.begin()));
    EXPECT_TRUE(std::equal(keys, keys + 3, std::vector<double>{3, 2, 1}.begin()));
}

TEST(SortQByCol, ACompanionThatIsTheKeyOrTheTableIsNotMovedAgain)
{
    double cells[] = {10, 20, 30};
    double keys[] = {2, 3, 1};
    matrix<double> table(1, 3, cells, true);
    matrix<double> sameTable(1, 3, cells, true);
    matrix<double> key(3, 1, keys, true);
    matrix<double> sameKey(1, 3, keys, true);
    SortQByCol(&table, 1, 3, 1, 3, &key, &sameTable, 1, false, false);
    EXPECT_TRUE(std::equal(cells, cells + 3, std::vector<double>{30, 10, 20}.begin()));
    SortQByCol(&table, 1, 3, 1, 3, &key, &sameKey, 1, false, false);
    EXPECT_TRUE(std::equal(keys, keys + 3, std::vector<double>{2, 3, 1}.begin()));
}

TEST(SortByColumn, SortsItsRangeOfRowsOnly)
{
    const double start[] = {9, 3, 1, 0, 90, 30, 10, 5};
    double cells[8];
    std::copy(start, start + 8, cells);
    matrix<double> table(4, 2, cells, true);
    SortQMatrixCol(&table, 4, 2, 1, 2, 3, false);
    EXPECT_TRUE(std::equal(cells, cells + 8, std::vector<double>{9, 1, 3, 0, 90, 10, 30, 5}.begin()));
    std::copy(start, start + 8, cells);
    for (const int keyCol : {0, 3, -1}) {
        SortQMatrixCol(&table, 4, 2, keyCol, 1, 4, false);
        EXPECT_TRUE(std::equal(start, start + 8, cells)) << keyCol;
    }
    SortQMatrixCol(&table, 4, 2, 1, 3, 2, false);
    EXPECT_TRUE(std::equal(start, start + 8, cells)) << "a range that ends before it begins";
}

TEST(SortByColumns, TheWholeTableFormEndsWithColumnOneFirst)
{
    double cells[] = {1, 1, 0, 2, 1, 3};
    matrix<double> table(3, 2, cells, true);
    SortMatrixSeqQ(&table, 3, 2);
    EXPECT_TRUE(std::equal(cells, cells + 6, std::vector<double>{0, 1, 1, 3, 1, 2}.begin()));
}

TEST(SortByColumns, TheRangeFormEndsWithTheLastColumnFirst)
{
    double cells[] = {1, 1, 0, 2, 1, 3};
    matrix<double> table(3, 2, cells, true);
    SortMatrixSeqQP1toP2(&table, 3, 2, 1, 2);
    EXPECT_TRUE(std::equal(cells, cells + 6, std::vector<double>{1, 1, 0, 1, 2, 3}.begin()));
}

TEST(SortQVector, SortsItsRangeOnly)
{
    matrix<double> x(5, 1, 0.0);
    const double start[] = {5, 4, -0.0, 0.0, 1};
    std::copy(start, start + 5, x.data);
    SortQVector(&x, 5, 2, 4, false);
    EXPECT_EQ(x[0], 5.0);
    EXPECT_SAME_BITS(x[1], -0.0);
    EXPECT_SAME_BITS(x[2], 0.0);
    EXPECT_EQ(x[3], 4.0);
    EXPECT_EQ(x[4], 1.0);
}

TEST(SortQVector, ARangeOutsideChangesNothing)
{
    const double start[] = {3, 2, 1};
    double cells[] = {3, 2, 1};
    matrix<double> x(3, 1, cells, true);
    for (const auto& [from, to] : {std::pair{0, 2}, std::pair{2, 4}, std::pair{3, 1}, std::pair{-5, -1}}) {
        SortQVector(&x, 3, from, to, false);
        EXPECT_TRUE(std::equal(start, start + 3, cells)) << from << " to " << to;
    }
    SortQVector(&x, 5, 2, 5, false);
    EXPECT_TRUE(std::equal(start, start + 3, cells)) << "a count that the vector does not hold";
}

TEST(IsSorted, TellsStrictFromWeak)
{
    matrix<double> x(3, 1, 1.0);
    x[2] = 2.0;
    EXPECT_EQ(V_IsSorted(&x, 3, false), -1);
    EXPECT_EQ(V_IsSorted(&x, 3, true), 0);
    EXPECT_EQ(V_IsSorted(&x, 1, true), -1);
    EXPECT_EQ(V_IsSorted(&x, 0, true), -1);
    x[1] = std::numeric_limits<double>::quiet_NaN();
    EXPECT_EQ(V_IsSorted(&x, 3, false), 0);
}

TEST(SortSparse, MovesRowsAndAlwaysRewritesTheKey)
{
    matrix<double> dense(3, 2, 0.0);
    dense.setElement(0, 0, 1.0);
    dense.setElement(1, 1, 2.0);
    dense.setElement(2, 0, 3.0);
    matrixSparse table(&dense);
    matrixSparse companion(&dense);
    matrix<double> key(3, 1, 3.0);
    key[1] = 1.0;
    key[2] = 2.0;
    SortQ(&table, 3, 2, 1, 3, &key, &companion, 1, false, false);
    const double expected[3][2] = {{0.0, 2.0}, {3.0, 0.0}, {1.0, 0.0}};
    for (int i = 0; i < 3; ++i) {
        for (int j = 0; j < 2; ++j) {
            EXPECT_EQ(table.getElement(i, j), expected[i][j]) << i << " " << j;
        }
        EXPECT_EQ(companion.getElement(i, 0), expected[i][0]);
        EXPECT_EQ(key[i], i + 1.0);
    }
    EXPECT_EQ(table.nnz, 3);
    EXPECT_EQ(companion.getElement(1, 1), 2.0);
}

TEST(SortSparse, ACompanionThatIsTheTableIsMovedOnce)
{
    matrix<double> dense(3, 1, 0.0);
    dense[0] = 1.0;
    dense[1] = 2.0;
    dense[2] = 3.0;
    matrixSparse table(&dense);
    matrix<double> key(3, 1, 3.0);
    key[1] = 1.0;
    key[2] = 2.0;
    SortQ(&table, 3, 1, 1, 3, &key, &table, 1, false, true);
    EXPECT_EQ(table.getElement(0, 0), 2.0);
    EXPECT_EQ(table.getElement(1, 0), 3.0);
    EXPECT_EQ(table.getElement(2, 0), 1.0);
}
