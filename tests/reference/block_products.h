/**
 * @file
 * Plain products with a block-diagonal table: each rule of structure as it is told, cell by cell through the
 * checked access.
 */
#ifndef KORVEL_TESTS_REFERENCE_BLOCK_PRODUCTS_H
#define KORVEL_TESTS_REFERENCE_BLOCK_PRODUCTS_H

#include "containers/matrix.h"
#include "containers/matrix3d.h"

namespace korvel::test
{

inline bool plainIsFilled(double x)
{
    return x != x || x != 0.0;
}

/** Whether all cells of row or column r of an order-s table are zeros, those on the diagonal aside. */
template <class Cell>
bool plainIsDiagonal(int s, int r, Cell cell)
{
    for (int c = 0; c < s; ++c) {
        if (c != r && (plainIsFilled(cell(r, c)) || plainIsFilled(cell(c, r)))) {
            return false;
        }
    }
    return true;
}

inline void plainBlockBckA(const matrix3D<matrix<double>>& blocks, int nBlocks, const matrix<int>& sizes,
                           const matrix<double>& A, int p, matrix<double>& C)
{
    int off = 0;
    for (int b = 0; b < nBlocks; ++b) {
        const matrix<double>& block = blocks.chunks[static_cast<std::size_t>(b)];
        const int s = sizes[b];
        const auto blockCell = [&](int r, int c) { return block.getElement(r, c); };
        const auto cell = [&](int r, int j) { return A.getElement(off + r, j); };
        for (int r = 0; r < s; ++r) {
            for (int j = 0; j < p; ++j) {
                bool zeroRowB = true;
                bool zeroColA = true;
                for (int c = 0; c < s; ++c) {
                    zeroRowB = zeroRowB && !plainIsFilled(blockCell(r, c));
                    zeroColA = zeroColA && !plainIsFilled(cell(c, j));
                }
                double value = 0.0;
                if (zeroRowB || zeroColA) {
                    value = 0.0;
                } else if (plainIsDiagonal(s, r, blockCell)) {
                    value = blockCell(r, r) * cell(r, j);
                } else if (s == p && plainIsDiagonal(s, j, cell)) {
                    value = blockCell(r, j) * cell(j, j);
                } else {
                    for (int c = 0; c < s; ++c) {
                        value += blockCell(r, c) * cell(c, j);
                    }
                }
                C.setElement(off + r, j, value);
            }
        }
        off += s;
    }
}

inline void plainBlockABck(const matrix<double>& A, int n, const matrix3D<matrix<double>>& blocks,
                           int nBlocks, const matrix<int>& sizes, matrix<double>& C)
{
    int off = 0;
    for (int b = 0; b < nBlocks; ++b) {
        const matrix<double>& block = blocks.chunks[static_cast<std::size_t>(b)];
        const int s = sizes[b];
        const auto blockCell = [&](int r, int c) { return block.getElement(r, c); };
        const auto cell = [&](int i, int c) { return A.getElement(i, off + c); };
        for (int i = 0; i < n; ++i) {
            for (int j = 0; j < s; ++j) {
                bool zeroColB = true;
                bool zeroRowA = true;
                for (int c = 0; c < s; ++c) {
                    zeroColB = zeroColB && !plainIsFilled(blockCell(c, j));
                    zeroRowA = zeroRowA && !plainIsFilled(cell(i, c));
                }
                double value = 0.0;
                if (zeroColB || zeroRowA) {
                    value = 0.0;
                } else if (plainIsDiagonal(s, j, blockCell)) {
                    value = cell(i, j) * blockCell(j, j);
                } else if (s == n && plainIsDiagonal(s, i, cell)) {
                    value = cell(i, i) * blockCell(i, j);
                } else {
                    for (int c = 0; c < s; ++c) {
                        value += cell(i, c) * blockCell(c, j);
                    }
                }
                C.setElement(i, off + j, value);
            }
        }
        off += s;
    }
}

inline void plainBlockATrBck(const matrix<double>& A, int n, const matrix3D<matrix<double>>& blocks,
                             int nBlocks, const matrix<int>& sizes, matrix<double>& C)
{
    int off = 0;
    for (int b = 0; b < nBlocks; ++b) {
        const matrix<double>& block = blocks.chunks[static_cast<std::size_t>(b)];
        for (int i = 0; i < n; ++i) {
            for (int j = 0; j < sizes[b]; ++j) {
                double sum = 0.0;
                for (int c = 0; c < sizes[b]; ++c) {
                    sum += A.getElement(i, off + c) * block.getElement(j, c);
                }
                C.setElement(i, off + j, sum);
            }
        }
        off += sizes[b];
    }
}

inline void plainBlockBckVect(const matrix3D<matrix<double>>& blocks, int nBlocks, const matrix<int>& sizes,
                              const matrix<double>& v, matrix<double>& y)
{
    int off = 0;
    for (int b = 0; b < nBlocks; ++b) {
        const matrix<double>& block = blocks.chunks[static_cast<std::size_t>(b)];
        for (int r = 0; r < sizes[b]; ++r) {
            double sum = 0.0;
            for (int c = 0; c < sizes[b]; ++c) {
                sum += block.getElement(r, c) * v[off + c];
            }
            y[off + r] = sum;
            y.oobValue = sum;
        }
        off += sizes[b];
    }
}

} // namespace korvel::test

#endif
