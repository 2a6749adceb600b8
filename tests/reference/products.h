/**
 * @file
 * Plain products: the loops of each formula, with one accumulator for each element, through the checked
 * access.
 */
#ifndef KORVEL_TESTS_REFERENCE_PRODUCTS_H
#define KORVEL_TESTS_REFERENCE_PRODUCTS_H

#include "containers/matrix.h"

#include <vector>

namespace korvel::test
{

template <class T>
void plainClear(matrix<T>& C, int rows, int cols)
{
    if (C.nbrows < rows || C.nbcols < cols) {
        C.Redim(rows, cols, T{});
        return;
    }
    for (int k = 0; rows > 0 && cols > 0 && k < rows * cols; ++k) {
        C.data[k] = T{};
    }
}

/** The only product whose inner loop runs down a column: each term is added to the stored element. */
inline void plainAB(const matrix<double>& A, int n, int p, const matrix<double>& B, int q, matrix<double>& C)
{
    plainClear(C, n, q);
    for (int j = 0; j < q; ++j) {
        for (int k = 0; k < p; ++k) {
            const double b = B.getElement(k, j);
            for (int i = 0; i < n; ++i) {
                C.setElement(i, j, C.getElement(i, j) + b * A.getElement(i, k));
            }
        }
    }
}

inline void plainABInt(const matrix<int>& A, int n, int p, const matrix<int>& B, int q, matrix<int>& C)
{
    plainClear(C, n, q);
    for (int i = 0; i < n; ++i) {
        for (int j = 0; j < q; ++j) {
            unsigned sum = 0;
            for (int k = 0; k < p; ++k) {
                sum += static_cast<unsigned>(A.getElement(i, k)) * static_cast<unsigned>(B.getElement(k, j));
            }
            C.setElement(i, j, static_cast<int>(sum));
        }
    }
}

/** Fills C with sums of `term(i, j, k)`. */
template <class Result, class Term>
void plainSums(int rows, int cols, int depth, Result store, Term term)
{
    for (int i = 0; i < rows; ++i) {
        for (int j = 0; j < cols; ++j) {
            double sum = 0.0;
            for (int k = 0; k < depth; ++k) {
                sum += term(i, j, k);
            }
            store(i, j, sum);
        }
    }
}

/** Sums the upper half and stores each sum twice. */
template <class Result, class Term>
void plainHalf(int order, int depth, Result store, Term term)
{
    for (int i = 0; i < order; ++i) {
        for (int j = i; j < order; ++j) {
            double sum = 0.0;
            for (int k = 0; k < depth; ++k) {
                sum += term(i, j, k);
            }
            store(i, j, sum);
            store(j, i, sum);
        }
    }
}

inline auto storeIn(matrix<double>& C)
{
    return [&C](int i, int j, double sum) { C.setElement(i, j, sum); };
}

inline void plainABMissing(const matrix<double>& A, int n, int p, const matrix<double>& B, int q,
                           matrix<double>& C)
{
    plainClear(C, n, q);
    for (int i = 0; i < n; ++i) {
        for (int j = 0; j < q; ++j) {
            double sum = 0.0;
            for (int k = 0; k < p; ++k) {
                if (A.getElement(i, k) == MISSING_DBL || B.getElement(k, j) == MISSING_DBL) {
                    sum = MISSING_DBL;
                    break;
                }
                sum += A.getElement(i, k) * B.getElement(k, j);
            }
            C.setElement(i, j, sum);
        }
    }
}

inline void plainTrAB(const matrix<double>& A, int n, int p, const matrix<double>& B, int q,
                      matrix<double>& C)
{
    plainClear(C, p, q);
    plainSums(p, q, n, storeIn(C),
              [&](int i, int j, int r) { return A.getElement(r, i) * B.getElement(r, j); });
}

inline void plainATrB(const matrix<double>& A, int n, int p, const matrix<double>& B, int m,
                      matrix<double>& C)
{
    plainClear(C, n, m);
    plainSums(n, m, p, storeIn(C),
              [&](int i, int j, int k) { return A.getElement(i, k) * B.getElement(j, k); });
}

inline void plainTrAA(const matrix<double>& A, int n, int p, matrix<double>& C)
{
    plainClear(C, p, p);
    plainHalf(p, n, storeIn(C), [&](int i, int j, int r) { return A.getElement(r, i) * A.getElement(r, j); });
}

inline void plainATrA(const matrix<double>& A, int n, int p, matrix<double>& C)
{
    plainClear(C, n, n);
    plainHalf(n, p, storeIn(C), [&](int i, int j, int k) { return A.getElement(i, k) * A.getElement(j, k); });
}

inline void plainADTrA(const matrix<double>& A, int n, int p, const matrix<double>& D, matrix<double>& C)
{
    plainClear(C, n, n);
    plainHalf(n, p, storeIn(C), [&](int i, int j, int k) {
        return A.getElement(i, k) * D.getElement(k, k) * A.getElement(j, k);
    });
}

inline void plainTrADA(const matrix<double>& A, int n, int p, const matrix<double>& D, matrix<double>& C)
{
    plainClear(C, p, p);
    plainHalf(p, n, storeIn(C), [&](int i, int j, int r) {
        return A.getElement(r, i) * D.getElement(r, r) * A.getElement(r, j);
    });
}

inline void plainTrADiagVA(const matrix<double>& A, int n, int p, const matrix<double>& d, matrix<double>& C)
{
    plainHalf(p, n, storeIn(C),
              [&](int i, int j, int r) { return A.getElement(r, i) * d[r] * A.getElement(r, j); });
}

inline void plainADiagVTrA(const matrix<double>& A, int n, int p, const matrix<double>& d, matrix<double>& C)
{
    plainHalf(n, p, storeIn(C),
              [&](int i, int j, int k) { return A.getElement(i, k) * d[k] * A.getElement(j, k); });
}

inline void plainADiagVB(const matrix<double>& A, int n, int p, const matrix<double>& d,
                         const matrix<double>& B, int q, matrix<double>& C)
{
    plainSums(n, q, p, storeIn(C),
              [&](int i, int j, int k) { return A.getElement(i, k) * d[k] * B.getElement(k, j); });
}

inline void plainADiagVTrB(const matrix<double>& A, int n, int p, const matrix<double>& d,
                           const matrix<double>& B, int m, matrix<double>& C)
{
    plainSums(n, m, p, storeIn(C),
              [&](int i, int j, int k) { return A.getElement(i, k) * d[k] * B.getElement(j, k); });
}

/**
 * For each row i, forms a row w of sums of `middle`, and then a row of the result, or half a row and its
 * mirror image.
 */
template <class First, class Second>
void plainRows(int rows, int middle, int depth, int cols, bool symmetric, matrix<double>& C, First first,
               Second second)
{
    std::vector<double> w(static_cast<std::size_t>(middle > 0 ? middle : 0));
    for (int i = 0; i < rows; ++i) {
        plainSums(
            1, middle, depth, [&](int, int c, double sum) { w[static_cast<std::size_t>(c)] = sum; },
            [&](int, int c, int k) { return first(i, c, k); });
        for (int j = 0; j < (symmetric ? i + 1 : cols); ++j) {
            double sum = 0.0;
            for (int k = 0; k < middle; ++k) {
                sum += w[static_cast<std::size_t>(k)] * second(j, k);
            }
            C.setElement(i, j, sum);
            if (symmetric) {
                C.setElement(j, i, sum);
            }
        }
    }
}

inline void plainABTrA(const matrix<double>& A, int n, int p, const matrix<double>& B, bool symmetric,
                       matrix<double>& C)
{
    plainRows(
        n, p, p, n, symmetric, C,
        [&](int i, int c, int k) { return A.getElement(i, k) * B.getElement(k, c); },
        [&](int j, int k) { return A.getElement(j, k); });
}

inline void plainTrABA(const matrix<double>& A, int n, int p, const matrix<double>& B, bool symmetric,
                       matrix<double>& C)
{
    plainRows(
        p, n, n, p, symmetric, C,
        [&](int i, int c, int k) { return B.getElement(k, c) * A.getElement(k, i); },
        [&](int j, int r) { return A.getElement(r, j); });
}

inline void plainABC(const matrix<double>& A, int n, int p, const matrix<double>& B, int q,
                     const matrix<double>& C, int r, matrix<double>& D)
{
    plainRows(
        n, q, p, r, false, D, [&](int i, int c, int k) { return A.getElement(i, k) * B.getElement(k, c); },
        [&](int j, int k) { return C.getElement(k, j); });
}

inline void plainTrABC(const matrix<double>& A, int n, int p, const matrix<double>& B, int q,
                       const matrix<double>& C, int r, matrix<double>& D)
{
    plainRows(
        p, q, n, r, false, D, [&](int i, int c, int k) { return A.getElement(k, i) * B.getElement(k, c); },
        [&](int j, int k) { return C.getElement(k, j); });
}

inline void plainATrBC(const matrix<double>& A, int n, int p, const matrix<double>& B, int q,
                       const matrix<double>& C, int r, matrix<double>& D)
{
    plainRows(
        n, q, p, r, false, D, [&](int i, int c, int k) { return A.getElement(i, k) * B.getElement(c, k); },
        [&](int j, int k) { return C.getElement(k, j); });
}

/** y(i) = the sum of `term(i, k)`, by linear index. */
template <class Term>
void plainVector(int n, int depth, matrix<double>& y, Term term)
{
    plainSums(
        n, 1, depth,
        [&](int i, int, double sum) {
            y[i] = sum;
            y.oobValue = sum;
        },
        [&](int i, int, int k) { return term(i, k); });
}

inline void plainTrABV(const matrix<double>& A, int n, int p, const matrix<double>& B, int q,
                       const matrix<double>& v, matrix<double>& y)
{
    plainVector(p, q, y, [&](int i, int j) {
        double sum = 0.0;
        for (int r = 0; r < n; ++r) {
            sum += A.getElement(r, i) * B.getElement(r, j);
        }
        return sum * v[j];
    });
}

inline void plainVB(const matrix<double>& v, int n, const matrix<double>& B, int q, matrix<double>& y)
{
    plainClear(y, q, 1);
    for (int j = 0; j < q; ++j) {
        double sum = 0.0;
        for (int i = 0; i < n; ++i) {
            if (v[i] == MISSING_DBL || B.getElement(i, j) == MISSING_DBL) {
                sum = MISSING_DBL;
                break;
            }
            sum += v[i] * B.getElement(i, j);
        }
        y[j] = sum;
        y.oobValue = sum;
    }
}

} // namespace korvel::test

#endif
