#include "linalg/products_inverse.h"

#include "linalg/inverse1.h"
#include "linalg/products.h"
#include "linalg/products_table_vector.h"
#include "linalg/products_triple.h"
#include "linalg/sweep_pivots.h"
#include "tables/block_copy.h"

#include <algorithm>

namespace
{

/** The LU inverse, or zeros when it fails: nobody is told. */
matrix<double> inverseOrZeros(matrix<double>& B, int order, double tolerance)
{
    matrix<double> inverse(std::max(order, 0), order, 0.0);
    short int ignored = 0;
    Inverse1(&B, &inverse, &ignored, tolerance);
    return inverse;
}

/** A·B⁻¹, `n` by `p`. */
matrix<double> timesInverse(matrix<double>& A, int n, int p, matrix<double>& B)
{
    matrix<double> inverse = inverseOrZeros(B, p, 1e-12);
    matrix<double> product(std::max(n, 0), p, 0.0);
    M_ProductAB(A, n, p, inverse, p, product);
    return product;
}

} // namespace

void M_ProductTrAinvBA(matrix<double>* A, int n, int p, matrix<double>* B, short int symmetric,
                       matrix<double>* C)
{
    matrix<double> inverse(std::max(n, 0), n, 0.0);
    korvel::copyBlock(korvel::reading(*B), {}, korvel::writing(inverse), {}, n, n);
    korvel::sweepPivots(inverse, n, 1e-12);
    M_ProductTrABA(A, n, p, &inverse, symmetric, C);
}

void M_ProductAinvBTrA(matrix<double>* A, int n, int p, matrix<double>* B, matrix<double>* C)
{
    matrix<double> product = timesInverse(*A, n, p, *B);
    M_ProductATrB(&product, n, p, A, n, C);
}

void M_ProductAinvBTrASPV(matrix<double>* A, int n, int p, matrix<double>* B, matrix3D<matrix<double>>* C)
{
    matrix<double> product = timesInverse(*A, n, p, *B);
    M_ProductATrBSPV(&product, n, p, A, n, C);
}

double M_ProductTrVinvBV(matrix<double>* v, int n, matrix<double>* B)
{
    matrix<double> inverse = inverseOrZeros(*B, n, 2.220446049250313e-16);
    return M_ProductTrVBV(v, n, &inverse);
}

double M_ProductTrVinvBV(matrix<double>* v, int n, matrixSparse* B)
{
    matrix<double> table = B->to_matrix(std::max(n, 0), n);
    return M_ProductTrVinvBV(v, n, &table);
}
