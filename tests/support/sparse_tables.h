#ifndef KORVEL_TESTS_SUPPORT_SPARSE_TABLES_H
#define KORVEL_TESTS_SUPPORT_SPARSE_TABLES_H

#include "containers/sparse_matrix.h"
#include "support/bits.h"

#include <initializer_list>
#include <random>
#include <utility>
#include <vector>

namespace korvel::test
{

/** A dense table given row by row, as it reads on paper. */
inline matrix<double> tableOf(std::initializer_list<std::initializer_list<double>> rows)
{
    const int cols = rows.size() == 0 ? 0 : static_cast<int>(rows.begin()->size());
    matrix<double> m(static_cast<int>(rows.size()), cols, 0.0);
    int i = 0;
    for (const auto& row : rows) {
        int j = 0;
        for (const double x : row) {
            m.setElement(i, j++, x);
        }
        ++i;
    }
    return m;
}

/** A number in [-1, 1), from the generator's bits alone, so the same with every standard library. */
inline double uniform(std::mt19937_64& generator)
{
    return static_cast<double>(static_cast<std::int64_t>(generator())) * 0x1p-63;
}

/** A dense table in which about one cell of `oneIn` is not 0. */
inline matrix<double> randomTable(std::mt19937_64& generator, int rows, int cols, unsigned oneIn)
{
    matrix<double> m(rows, cols, 0.0);
    for (std::uint64_t k = 0; k < m.nbElem; ++k) {
        m.data[k] = generator() % oneIn == 0 ? uniform(generator) : 0.0;
    }
    return m;
}

/** Column and value. */
using entry = std::pair<int, double>;
using entry_rows = std::vector<std::vector<entry>>;

/** A table of `cols` columns with these entries in its rows, in this order. */
inline matrixSparse tableOfRows(int cols, const entry_rows& rows)
{
    matrixSparse m;
    m.nbrows = static_cast<int>(rows.size());
    m.nbcols = cols;
    m.rowStart = {0};
    for (const auto& row : rows) {
        for (const auto& [column, value] : row) {
            m.colIndex.push_back(column);
            m.values.push_back(value);
        }
        m.rowStart.push_back(static_cast<int>(m.values.size()));
    }
    m.nnz = m.rowStart.back();
    return m;
}

/** Whether two sparse tables have the same counts, positions and values. */
inline ::testing::AssertionResult sameStorage(const matrixSparse& actual, const matrixSparse& expected)
{
    if (actual.nbrows != expected.nbrows || actual.nbcols != expected.nbcols || actual.nnz != expected.nnz) {
        return ::testing::AssertionFailure()
               << "counts " << actual.nbrows << ", " << actual.nbcols << ", " << actual.nnz << " are not "
               << expected.nbrows << ", " << expected.nbcols << ", " << expected.nnz;
    }
    if (actual.rowStart != expected.rowStart) {
        return ::testing::AssertionFailure()
               << "row starts differ: " << ::testing::PrintToString(actual.rowStart) << " and "
               << ::testing::PrintToString(expected.rowStart);
    }
    if (actual.colIndex != expected.colIndex || actual.values.size() != expected.values.size()) {
        return ::testing::AssertionFailure()
               << "columns differ: " << ::testing::PrintToString(actual.colIndex) << " and "
               << ::testing::PrintToString(expected.colIndex);
    }
    for (std::size_t k = 0; k < actual.values.size(); ++k) {
        if (const auto same = sameBits(actual.values[k], expected.values[k]); !same) {
            return same;
        }
    }
    return ::testing::AssertionSuccess();
}

} // namespace korvel::test

#endif
