#include "linalg/products_triple.h"

#include "linalg/row_by_row.h"

namespace
{

using korvel::along;
using korvel::down;
using korvel::extent;
using korvel::formProduct;
using korvel::formRowByRow;
using korvel::workers;

extent extentOf(bool symmetric)
{
    return symmetric ? extent::mirrored : extent::whole;
}

} // namespace

void M_ProductABTrA(const matrix<double>& A, int n, int p, const matrix<double>& B, bool symmetric,
                    matrix<double>& C)
{
    formRowByRow(along(A, n), down(B, p), along(A, n), p, C, extentOf(symmetric), workers::team);
}

void M_ProductABTrA(matrix<double>* A, int n, int p, matrix<double>* B, short int symmetric,
                    matrix<double>* C)
{
    M_ProductABTrA(*A, n, p, *B, symmetric != 0, *C);
}

void M_ProductTrABA(const matrix<double>& A, int n, int p, const matrix<double>& B, bool symmetric,
                    matrix<double>& C)
{
    formRowByRow(down(A, p), down(B, n), down(A, p), n, C, extentOf(symmetric), workers::team);
}

void M_ProductTrABA(matrix<double>* A, int n, int p, matrix<double>* B, short int symmetric,
                    matrix<double>* C)
{
    M_ProductTrABA(*A, n, p, *B, symmetric != 0, *C);
}

void M_ProductABC(matrix<double>* A, int n, int p, matrix<double>* B, int q, matrix<double>* C, int r,
                  matrix<double>* D)
{
    formRowByRow(along(*A, n), down(*B, q), down(*C, r), p, *D, extent::whole, workers::team);
}

void M_ProductTrABC(matrix<double>* A, int n, int p, matrix<double>* B, int q, matrix<double>* C, int r,
                    matrix<double>* D)
{
    matrix<double> between(std::max(p, 0), q, 0.0);
    formProduct(down(*A, p), down(*B, q), n, between);
    formProduct(along(between, p), down(*C, r), q, *D);
}

void M_ProductATrBC(matrix<double>* A, int n, int p, matrix<double>* B, int q, matrix<double>* C, int r,
                    matrix<double>* D)
{
    matrix<double> between(std::max(n, 0), q, 0.0);
    formProduct(along(*A, n), along(*B, q), p, between);
    formProduct(along(between, n), down(*C, r), q, *D);
}

void M_ProductTrABV(matrix<double>* A, int n, int p, matrix<double>* B, int q, matrix<double>* v,
                    matrix<double>* y)
{
    korvel::vector_column vector(*v);
    korvel::vector_column result(*y);
    auto* const factors = vector.table();
    auto* const sums = result.table();
    formRowByRow(down(*A, p), down(*B, q), down(factors, 1), n, sums, extent::whole, workers::caller);
}
