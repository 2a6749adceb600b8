// Every form of the sort against the standard library's stable sort: random keys with many ties, from no rows
// to 100,000, on several numbers of threads.
#include "ordering/sort_by_column.h"
#include "ordering/sort_table.h"
#include "ordering/sort_vector.h"

#include <algorithm>
#include <cstdint>
#include <gtest/gtest.h>
#include <numeric>
#include <omp.h>
#include <random>
#include <vector>

namespace
{

constexpr int lengths[] = {0, 1, 2, 3, 32, 33, 500, 1001, 5003, 100'000};

/** Few different values, so that most keys are tied. */
template <class T>
T tiedValue(std::mt19937_64& random)
{
    const auto k = random() % 23;
    if constexpr (korvel::is_text<T>) {
        return text(k % 4, static_cast<char16_t>(u'a' + k));
    } else {
        return static_cast<T>(static_cast<int>(k) - 11);
    }
}

template <class T>
matrix<T> tiedTable(int rows, int cols, std::mt19937_64& random)
{
    matrix<T> table(rows, cols, T{});
    std::generate_n(table.data, table.nbElem, [&] { return tiedValue<T>(random); });
    return table;
}

/** The positions from 0 to n - 1 in stable order of `keyAt`. */
template <class KeyAt>
std::vector<int> stableOrder(int n, bool descending, KeyAt keyAt)
{
    std::vector<int> order(static_cast<std::size_t>(n));
    std::iota(order.begin(), order.end(), 0);
    std::stable_sort(order.begin(), order.end(),
                     [&](int a, int b) { return descending ? keyAt(b) < keyAt(a) : keyAt(a) < keyAt(b); });
    return order;
}

template <class T>
void expectRowsInOrder(const matrix<T>& sorted, const matrix<T>& original, const std::vector<int>& order)
{
    for (int j = 0; j < original.nbcols; ++j) {
        for (std::size_t i = 0; i < order.size(); ++i) {
            ASSERT_EQ(sorted.getElement(static_cast<int>(i), j), original.getElement(order[i], j))
                << "row " << i << " column " << j;
        }
    }
}

class SortForms : public ::testing::TestWithParam<int>
{
protected:
    void SetUp() override { omp_set_num_threads(GetParam()); }
    void TearDown() override { omp_set_num_threads(threads_); }

    std::mt19937_64 random{20261121};

    template <class T>
    void expectVectorSorts()
    {
        for (const int n : lengths) {
            for (const bool descending : {false, true}) {
                const matrix<T> original = tiedTable<T>(n, 1, random);
                matrix<T> sorted(original);
                SortQVector(&sorted, n, 1, n, descending);
                expectRowsInOrder(sorted, original, stableOrder(n, descending, [&](int i) -> const T& {
                                      return original.data[i];
                                  }));
            }
        }
    }

    template <class T>
    void expectSortsByColumn()
    {
        for (const int rows : lengths) {
            for (const bool descending : {false, true}) {
                const matrix<T> original = tiedTable<T>(rows, 4, random);
                matrix<T> sorted(original);
                SortQMatrixCol(&sorted, rows, 4, 2, 1, rows, descending);
                expectRowsInOrder(sorted, original, stableOrder(rows, descending, [&](int i) -> const T& {
                                      return original.getElement(i, 1);
                                  }));
            }
        }
    }

    template <class T>
    void expectSortsByColumns()
    {
        for (const int rows : lengths) {
            const matrix<T> original = tiedTable<T>(rows, 4, random);
            const auto keysOf = [&](int first, int last) {
                const int step = first <= last ? 1 : -1;
                return stableOrder(rows, false, [&, step](int i) {
                    std::vector<T> keys;
                    for (int j = first; j != last + step; j += step) {
                        keys.push_back(original.getElement(i, j));
                    }
                    return keys;
                });
            };
            matrix<T> sorted(original);
            SortMatrixSeqQ(&sorted, rows, 4);
            expectRowsInOrder(sorted, original, keysOf(0, 3));
            matrix<T> byRange(original);
            SortMatrixSeqQP1toP2(&byRange, rows, 4, 2, 3);
            expectRowsInOrder(byRange, original, keysOf(2, 1));
        }
    }

    template <class T>
    void expectSortsBy01()
    {
        for (const int rows : lengths) {
            const matrix<T> original = tiedTable<T>(rows, 3, random);
            matrix<double> key(rows, 1, 0.0);
            std::generate_n(key.data, key.nbElem, [&] { return static_cast<double>(random() % 2); });
            const auto order = stableOrder(rows, false, [&](int i) { return key.data[i]; });
            matrix<T> sorted(original);
            SortDataBy01(&sorted, rows, 3, &key);
            expectRowsInOrder(sorted, original, order);
        }
    }

    template <class T>
    void expectRecordSorts()
    {
        for (const int rows : lengths) {
            const matrix<T> original = tiedTable<T>(rows, 3, random);
            cST_MVect<T> table;
            for (int j = 0; j < 3; ++j) {
                auto& column = table.Vectors.emplace_back();
                column.Vect.Redim(rows, 1);
                for (int i = 0; i < rows; ++i) {
                    column.Vect.data[i] = original.getElement(i, j);
                }
            }
            matrix<double> key = tiedTable<double>(rows, 1, random);
            const auto order = stableOrder(rows, true, [&](int i) { return key.data[i]; });
            matrix<T> aux(original);
            SortQ(table, rows, 3, 1, rows, &key, &aux, 3, true, false);
            expectRowsInOrder(aux, original, order);
            for (int j = 0; j < 3; ++j) {
                for (std::size_t i = 0; i < order.size(); ++i) {
                    ASSERT_EQ(table.Vectors[static_cast<std::size_t>(j)].Vect.data[i],
                              original.getElement(order[i], j));
                }
            }
        }
    }

private:
    int threads_ = omp_get_max_threads();
};

} // namespace

TEST_P(SortForms, Vectors)
{
    expectVectorSorts<double>();
    expectVectorSorts<int>();
    expectVectorSorts<text>();
}

TEST_P(SortForms, TextsWithTheirOrigin)
{
    for (const int n : lengths) {
        const matrix<text> original = tiedTable<text>(n, 1, random);
        matrix<text> sorted(original);
        matrix<int> index(n, 1);
        SortQVector2(&sorted, n, 1, n, false, &index);
        const auto order = stableOrder(n, false, [&](int i) -> const text& { return original.data[i]; });
        expectRowsInOrder(sorted, original, order);
        for (std::size_t i = 0; i < order.size(); ++i) {
            ASSERT_EQ(index.data[i], order[i] + 1);
        }
    }
}

TEST_P(SortForms, ByOneColumn)
{
    expectSortsByColumn<double>();
    expectSortsByColumn<int>();
    expectSortsByColumn<text>();
}

TEST_P(SortForms, BySeveralColumns)
{
    expectSortsByColumns<double>();
    expectSortsByColumns<int>();
}

TEST_P(SortForms, ByZeroAndOne)
{
    expectSortsBy01<double>();
    expectSortsBy01<short int>();
    expectSortsBy01<text>();
}

TEST_P(SortForms, Records)
{
    expectRecordSorts<double>();
    expectRecordSorts<text>();
}

TEST_P(SortForms, ColumnsByAKey)
{
    for (const int cols : {1, 2, 33, 500, 1001, 5003}) {
        const matrix<double> original = tiedTable<double>(3, cols, random);
        matrix<double> key = tiedTable<double>(cols, 1, random);
        const auto order = stableOrder(cols, false, [&](int j) { return key.data[j]; });
        matrix<double> sorted(original);
        matrix<double> aux(original);
        SortQByCol(&sorted, 3, cols, 1, cols, &key, &aux, 3, false, false);
        for (int j = 0; j < cols; ++j) {
            for (int i = 0; i < 3; ++i) {
                ASSERT_EQ(sorted.getElement(i, j),
                          original.getElement(i, order[static_cast<std::size_t>(j)]));
                ASSERT_EQ(aux.getElement(i, j), original.getElement(i, order[static_cast<std::size_t>(j)]));
            }
        }
    }
}

TEST_P(SortForms, SparseTables)
{
    for (const int rows : {1, 2, 33, 500, 1001}) {
        matrix<double> original = tiedTable<double>(rows, 3, random);
        matrixSparse sorted(&original);
        matrixSparse aux(&original);
        matrix<double> key = tiedTable<double>(rows, 1, random);
        const auto order = stableOrder(rows, false, [&](int i) { return key.data[i]; });
        SortQ(&sorted, rows, 3, 1, rows, &key, &aux, 3, false, true);
        for (int i = 0; i < rows; ++i) {
            for (int j = 0; j < 3; ++j) {
                const double expected = original.getElement(order[static_cast<std::size_t>(i)], j);
                ASSERT_EQ(sorted.getElement(i, j), expected);
                ASSERT_EQ(aux.getElement(i, j), expected);
            }
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Threads, SortForms, ::testing::Values(1, 2, 3, 7));
