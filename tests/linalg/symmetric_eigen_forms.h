/**
 * @file
 * The members of the symmetric eigen decomposition in one shape, and what their results are compared with.
 */
#ifndef KORVEL_TESTS_LINALG_SYMMETRIC_EIGEN_FORMS_H
#define KORVEL_TESTS_LINALG_SYMMETRIC_EIGEN_FORMS_H

#include "linalg/symmetric_eigen.h"
#include "reference/symmetric_eigen.h"
#include "support/column_tables.h"
#include "support/matrix_kinds.h"
#include "support/random_tables.h"
#include "support/sparse_tables.h"

#include <gtest/gtest.h>

namespace korvel::test::symmetric_eigen
{

inline matrix<double> symmetricTable(int n, unsigned seed, double scale = 1.0)
{
    std::mt19937_64 generator(seed);
    matrix<double> made(n, n, 0.0);
    for (int i = 0; i < n; ++i) {
        for (int j = 0; j <= i; ++j) {
            const double cell = scale * uniform(generator);
            made.setElement(i, j, cell);
            made.setElement(j, i, cell);
        }
    }
    return made;
}

/** What a member returned and left behind. */
struct outcome {
    int status = 0;
    matrix<double> values;
    matrix<double> vectors; ///< gathered from whatever form they had
};

using member = outcome (*)(const matrix<double>&, int, short int);

inline outcome denseForm(const matrix<double>& A, int n, short int sortFlag)
{
    outcome found;
    found.status = M_Eigen(A, found.values, found.vectors, n, sortFlag);
    return found;
}

inline outcome pointerForm(const matrix<double>& A, int n, short int sortFlag)
{
    outcome found;
    matrix<double> copy(A);
    found.status = M_Eigen(&copy, &found.values, &found.vectors, n, sortFlag);
    return found;
}

inline matrix<double> gathered(const matrix3D<matrix<double>>& chunks, int n)
{
    matrix<double> made(n, n, 0.0);
    for (int j = 0; j < n; ++j) {
        for (int i = 0; i < n; ++i) {
            made.setElement(i, j, chunks.chunks[static_cast<std::size_t>(j)][i]);
        }
    }
    return made;
}

inline outcome chunkedForm(const matrix<double>& A, int n, short int sortFlag)
{
    outcome found;
    auto chunks = chunksOf<matrix<double>>(A);
    matrix3D<matrix<double>> vectors(n, 0, n, 0.0);
    auto* values = &found.values;
    found.status = M_EigenSPV(&chunks, values, &vectors, n, sortFlag);
    EXPECT_TRUE(sameTable(chunks, chunksOf<matrix<double>>(A)));
    found.vectors = found.status == 0 ? gathered(vectors, n) : matrix<double>();
    return found;
}

inline outcome destructiveForm(const matrix<double>& A, int n, short int sortFlag)
{
    outcome found;
    auto chunks = chunksOf<matrix<double>>(A);
    auto* values = &found.values;
    found.status = M_EigenDestroySPV(&chunks, values, n, sortFlag);
    found.vectors = gathered(chunks, n);
    return found;
}

inline outcome triangularForm(const matrix<double>& A, int n, short int sortFlag)
{
    outcome found;
    matrix3D<matrix<double>> triangle;
    for (int j = 0; j < n; ++j) {
        triangle.chunks.emplace_back(n - j, 1, A.data + j + std::ptrdiff_t{n} * j, false);
    }
    matrix3D<matrix<double>> vectors(n, n, n, 7.0);
    found.status = M_EigenSPV_T(&triangle, &found.values, &vectors, n, sortFlag);
    found.vectors = gathered(vectors, n);
    return found;
}

constexpr member denseLike[] = {denseForm, pointerForm, chunkedForm, destructiveForm, triangularForm};

inline void expectSame(const outcome& found, const plain_eigen& expected)
{
    ASSERT_EQ(found.status, expected.status);
    if (expected.status != 0) {
        return;
    }
    ASSERT_EQ(found.values.nbElem, static_cast<std::uint64_t>(expected.n));
    ASSERT_EQ(found.vectors.nbElem, expected.vectors.size());
    for (int k = 1; k <= expected.n; ++k) {
        ASSERT_SAME_BITS(found.values.data[k - 1], expected.values[static_cast<std::size_t>(k)])
            << "value " << k;
        for (int i = 1; i <= expected.n; ++i) {
            ASSERT_SAME_BITS(found.vectors.getElement(i - 1, k - 1), expected.vector(i, k))
                << "row " << i << " of vector " << k;
        }
    }
}

/** In units of the order, the norm and the precision. */
inline double residual(const matrix<double>& A, const outcome& found)
{
    const int n = A.nbrows;
    matrix<double> rest(n, n, 0.0);
    for (int j = 0; j < n; ++j) {
        for (int i = 0; i < n; ++i) {
            double sum = 0.0;
            for (int k = 0; k < n; ++k) {
                sum += A.getElement(i, k) * found.vectors.getElement(k, j);
            }
            rest.setElement(i, j, sum - found.values.data[j] * found.vectors.getElement(i, j));
        }
    }
    const double size = columnSumNorm(A);
    return size > 0.0 ? columnSumNorm(rest) / (n * 0x1p-52 * size) : columnSumNorm(rest);
}

} // namespace korvel::test::symmetric_eigen

#endif
