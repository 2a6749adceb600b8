#include "linalg/products_triple.h"

#include "linalg/row_by_row.h"

namespace
{

using korvel::extent;
using korvel::formProduct;
using korvel::formRowByRow;
using korvel::product_side;
using korvel::summed;
using korvel::term_factors;
using korvel::workers;

extent extentOf(bool symmetric)
{
    return symmetric ? extent::mirrored : extent::whole;
}

} // namespace

void M_ProductABTrA(const matrix<double>& A, int n, int p, const matrix<double>& B, bool symmetric,
                    matrix<double>& C)
{
    formRowByRow(n, p, p, n, product_side(A, summed::along, n, p), product_side(B, summed::down, p, p),
                 product_side(A, summed::along, n, p), C, extentOf(symmetric), workers::team);
}

void M_ProductABTrA(matrix<double>* A, int n, int p, matrix<double>* B, short int symmetric,
                    matrix<double>* C)
{
    M_ProductABTrA(*A, n, p, *B, symmetric != 0, *C);
}

void M_ProductTrABA(const matrix<double>& A, int n, int p, const matrix<double>& B, bool symmetric,
                    matrix<double>& C)
{
    formRowByRow(p, n, n, p, product_side(A, summed::down, p, n), product_side(B, summed::down, n, n),
                 product_side(A, summed::down, p, n), C, extentOf(symmetric), workers::team);
}

void M_ProductTrABA(matrix<double>* A, int n, int p, matrix<double>* B, short int symmetric,
                    matrix<double>* C)
{
    M_ProductTrABA(*A, n, p, *B, symmetric != 0, *C);
}

void M_ProductABC(matrix<double>* A, int n, int p, matrix<double>* B, int q, matrix<double>* C, int r,
                  matrix<double>* D)
{
    formRowByRow(n, p, q, r, product_side(*A, summed::along, n, p), product_side(*B, summed::down, q, p),
                 product_side(*C, summed::down, r, q), *D, extent::whole, workers::team);
}

void M_ProductTrABC(matrix<double>* A, int n, int p, matrix<double>* B, int q, matrix<double>* C, int r,
                    matrix<double>* D)
{
    matrix<double> T(std::max(p, 0), q, 0.0);
    formProduct(p, q, n, product_side(*A, summed::down, p, n), product_side(*B, summed::down, q, n),
                term_factors::none(), T);
    formProduct(p, r, q, product_side(T, summed::along, p, q), product_side(*C, summed::down, r, q),
                term_factors::none(), *D);
}

void M_ProductATrBC(matrix<double>* A, int n, int p, matrix<double>* B, int q, matrix<double>* C, int r,
                    matrix<double>* D)
{
    matrix<double> T(std::max(n, 0), q, 0.0);
    formProduct(n, q, p, product_side(*A, summed::along, n, p), product_side(*B, summed::along, q, p),
                term_factors::none(), T);
    formProduct(n, r, q, product_side(T, summed::along, n, q), product_side(*C, summed::down, r, q),
                term_factors::none(), *D);
}

void M_ProductTrABV(matrix<double>* A, int n, int p, matrix<double>* B, int q, matrix<double>* v,
                    matrix<double>* y)
{
    korvel::vector_column vector(*v);
    korvel::vector_column result(*y);
    auto* const factors = vector.table();
    auto* const sums = result.table();
    formRowByRow(p, n, q, 1, product_side(*A, summed::down, p, n), product_side(*B, summed::down, q, n),
                 product_side(factors, summed::down, 1, q), sums, extent::whole, workers::caller);
}
