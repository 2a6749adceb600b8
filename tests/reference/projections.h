/**
 * @file
 * The projection onto positive semidefinite tables, step by step.
 */
#ifndef KORVEL_TESTS_REFERENCE_PROJECTIONS_H
#define KORVEL_TESTS_REFERENCE_PROJECTIONS_H

#include "linalg/inverse1.h"
#include "linalg/products_symmetric.h"
#include "linalg/products_triple.h"
#include "linalg/square_roots.h"
#include "linalg/symmetric_eigen.h"

namespace korvel::test
{

/** The steps of the projection as they are told, with every eigenvalue in every sum. */
inline matrix<double> plainProjection(matrix<double>& A, int n, matrix<double>& W)
{
    matrix<double> R(n, n, 0.0);
    matrix<double> inverse(n, n, 0.0);
    M_SquareRoot(&W, n, &R);
    short int singular = 0;
    Inverse1(&R, &inverse, &singular, 1e-6);
    matrix<double> T(n, n, 0.0);
    M_ProductABC(&R, n, n, &A, n, &R, n, &T);
    matrix<double> d;
    matrix<double> U;
    M_Eigen(&T, &d, &U, n, -1);
    for (int i = 0; i < n; ++i) {
        if (d[i] < 0.0) {
            d[i] = 0.0;
        }
    }
    matrix<double> P(n, n, 0.0);
    M_ProductADiagVTrA(&U, n, n, &d, &P);
    matrix<double> X(n, n, 0.0);
    M_ProductABC(&inverse, n, n, &P, n, &inverse, n, &X);
    return X;
}

} // namespace korvel::test

#endif
