#ifndef KORVEL_TESTS_REFERENCE_SPARSE_MATRIX_H
#define KORVEL_TESTS_REFERENCE_SPARSE_MATRIX_H

#include "containers/sparse_matrix.h"

namespace korvel::reference
{

/** Loads `rows` by `cols` cells, read as `cell(i, j)`, row after row, and mends the starts of empty rows
 * after each row. */
template <class Cell>
matrixSparse loadSparse(int rows, int cols, const Cell& cell)
{
    matrixSparse m;
    m.nbrows = rows;
    m.nbcols = cols;
    m.rowStart.assign(static_cast<std::size_t>(rows) + 1, 0);
    std::vector<bool> isSet(static_cast<std::size_t>(rows) + 1, false);
    // Gives the rows without a start of their own, from `from` down to `downTo`, the start of row `next`.
    const auto mend = [&](int from, int downTo, int next) {
        for (int k = from; k >= downTo && !isSet[static_cast<std::size_t>(k)]; --k) {
            m.rowStart[static_cast<std::size_t>(k)] = m.rowStart[static_cast<std::size_t>(next)];
            isSet[static_cast<std::size_t>(k)] = true;
        }
    };
    int count = 0;
    for (int i = 0; i < rows; ++i) {
        const int before = count;
        for (int j = 0; j < cols; ++j) {
            const double x = cell(i, j);
            if (x > 1e-18 || x < -1e-18) {
                m.colIndex.push_back(j);
                m.values.push_back(x);
                ++count;
            }
        }
        if (count > before) {
            m.rowStart[static_cast<std::size_t>(i)] = before;
            isSet[static_cast<std::size_t>(i)] = true;
            mend(i - 1, 1, i);
        }
    }
    m.nnz = count;
    m.rowStart[static_cast<std::size_t>(rows)] = count;
    if (rows >= 3) {
        mend(rows - 1, 2, rows);
    }
    return m;
}

/** `matrixSparse::inverse1`, element after element. Uses only the element access of the tables. */
int invertSparse(const matrixSparse& source, matrixSparse& dst, short int& singular, double tol);

} // namespace korvel::reference

#endif
