/**
 * @file
 * Plain products column by column, of packed tables, and of Kronecker, through the checked access.
 */
#ifndef KORVEL_TESTS_REFERENCE_PAIR_PRODUCTS_H
#define KORVEL_TESTS_REFERENCE_PAIR_PRODUCTS_H

#include "containers/matrix.h"

#include <cmath>

namespace korvel::test
{

/** Counted from 1, as the rule is told. */
inline void plainDesign(matrix<double>& A, int n, int& colsA, const matrix<double>& B, int colsB, int type,
                        const matrix<double>* weights, matrix<double>& sums)
{
    const double eps = 2.220446049250313e-16;
    matrix<double> T(n, colsA, 0.0);
    for (int r = 0; r < n; ++r) {
        for (int i = 0; i < colsA; ++i) {
            T.setElement(r, i, A.getElement(r, i));
        }
    }
    double last = 0.0;
    int ref = 0;
    int c = 0;
    for (int i = 1; i <= colsA; ++i) {
        for (int j = 1; j <= colsB; ++j) {
            c = c + 1;
            const bool plain = type < 5 || (i == 1 && j == 1);
            bool any = false;
            for (int r = 1; r <= n; ++r) {
                const double a = T.vbget(r, i);
                const double b = B.getElement(r - 1, j - 1);
                if (a > eps && b > eps) {
                    any = true;
                    const double x = a * b;
                    if (plain) {
                        last = x;
                    } else if (x > eps && a > eps) {
                        last = 1.0;
                    }
                }
                A.vbset(r, c, last);
                if (ref > 0 && type >= 5 && std::fabs(A.vbget(r, ref) - 1) < 1e-12) {
                    A.vbset(r, c, -1.0);
                }
            }
            if (any && ref == 0) {
                ref = c;
            }
            if (!any) {
                for (int r = 1; r <= n; ++r) {
                    A.vbset(r, c, 0.0);
                }
            }
        }
    }
    colsA = colsA * colsB;
    for (c = 1; c <= colsA; ++c) {
        double pos = 0.0;
        double neg = 0.0;
        for (int r = 1; r <= n; ++r) {
            const double w = weights != nullptr ? (*weights)[r - 1] : 1.0;
            pos += A.vbget(r, c) > eps ? w : 0.0;
            neg += A.vbget(r, c) < -eps ? w : 0.0;
        }
        for (int r = 1; r <= n; ++r) {
            if (type == 6 && neg > eps && A.vbget(r, c) < -eps) {
                A.vbset(r, c, -pos / neg);
            }
        }
        sums[c - 1] = pos;
        sums.oobValue = pos;
    }
}

/** All columns of the horizontal product, `cell(a, b)` each, handed to `store(row, column, value)`. */
template <class Cell, class Store>
void plainHorizontal(const matrix<double>& A, int n, int colsA, const matrix<double>& B, int colsB, Cell cell,
                     Store store)
{
    for (int i = 0; i < colsA; ++i) {
        for (int j = 0; j < colsB; ++j) {
            for (int r = 0; r < n; ++r) {
                store(r, i * colsB + j, cell(A.getElement(r, i), B.getElement(r, j)));
            }
        }
    }
}

inline void plainKronecker(const matrix<double>& A, int r1, int c1, const matrix<double>& B, int r2, int c2,
                           matrix<double>& C)
{
    if (C.nbrows != r1 * r2 || C.nbcols != c1 * c2) {
        return;
    }
    for (int i = 1; i <= r1; ++i) {
        for (int j = 1; j <= c1; ++j) {
            for (int k = 1; k <= r2; ++k) {
                for (int l = 1; l <= c2; ++l) {
                    C.vbset((i - 1) * r2 + k, (j - 1) * c2 + l,
                            A.getElement(i - 1, j - 1) * B.getElement(k - 1, l - 1));
                }
            }
        }
    }
}

/** Element (i, j) of a packed symmetric table, counted from 1. */
inline double plainPacked(const matrix<double>& S, int i, int j)
{
    return i < j ? plainPacked(S, j, i) : S[i * (i - 1) / 2 + j - 1];
}

inline void plainASymV(const matrix<double>& S, int m, const matrix<double>& x, matrix<double>& y)
{
    for (int i = 1; i <= m; ++i) {
        double sum = 0.0;
        for (int j = 1; j <= m; ++j) {
            sum += plainPacked(S, i, j) * x[j - 1];
        }
        y[i - 1] = sum;
        y.oobValue = sum;
    }
}

inline void plainAsymBsym(const matrix<double>& A, int n, const matrix<double>& B, matrix<double>& C)
{
    const int m = static_cast<int>(std::floor(std::sqrt(2.0 * n)));
    for (int k = 1; k <= n; ++k) {
        const int i = static_cast<int>(std::floor(std::sqrt(2.0 * k + 0.25) + 0.5 - 1e-12));
        const int j = k - i * (i - 1) / 2;
        double sum = 0.0;
        for (int l = 1; l <= m; ++l) {
            sum += plainPacked(A, i, l) * plainPacked(B, l, j);
        }
        C[k - 1] = sum;
        C.oobValue = sum;
    }
}

inline double plainTrVSymV(const matrix<double>& v, int n, const matrix<double>& S)
{
    double beside = 0.0;
    for (int i = 0; i < n; ++i) {
        for (int j = i + 1; j < n; ++j) {
            beside += v[i] * v[j] * S.getElement(j, i);
        }
    }
    double diagonal = 0.0;
    for (int i = 0; i < n; ++i) {
        diagonal += v[i] * v[i] * S.getElement(i, i);
    }
    return 2 * beside + diagonal;
}

} // namespace korvel::test

#endif
