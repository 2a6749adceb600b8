#include "linalg/products_vector.h"

#include "linalg/product_forms.h"

namespace
{

using korvel::readVector;
using korvel::summed;
using korvel::term_factors;
using korvel::withCells;
using korvel::writeVector;

/** y(o) = the sum over k of the table's element (o, k) times v(k). */
void multiplyByVector(const matrix<double>& table, summed way, int outer, int depth, matrix<double>& v,
                      matrix<double>& y)
{
    korvel::vector_column vector(v);
    korvel::vector_column result(y);
    auto* const factors = vector.table();
    auto* const sums = result.table();
    korvel::formProduct(outer, 1, depth, korvel::product_side(table, way, outer, depth),
                        korvel::product_side(factors, summed::down, 1, depth), term_factors::none(), sums);
}

double productOf(const auto& cells, int n)
{
    double product = 1.0;
    for (int i = 0; i < n; ++i) {
        product *= cells[i];
    }
    return product;
}

} // namespace

int M_ProductBV(matrix<double>* B, int n, int p, matrix<double>* v, matrix<double>* y)
{
    multiplyByVector(*B, summed::along, n, p, *v, *y);
    return 0;
}

int M_ProductVB(matrix<double>* v, int n, matrix<double>* B, int q, matrix<double>*& y)
{
    korvel::clearResult(*y, q, 1);
    const auto table = korvel::reading(*B);
    for (int j = 0; j < q; ++j) {
        const double sum = withCells(
            [n](auto factors, auto column) {
                double found = 0.0;
                for (int i = 0; i < n; ++i) {
                    if (factors[i] == MISSING_DBL || column[i] == MISSING_DBL) {
                        return MISSING_DBL;
                    }
                    found += factors[i] * column[i];
                }
                return found;
            },
            readVector(*v, n), table.column(j, n));
        korvel::storeChecked(*y, j, sum);
    }
    return 0;
}

void M_ProductTrBV(matrix<double>* B, int n, int p, matrix<double>* v, matrix<double>* y)
{
    multiplyByVector(*B, summed::down, p, n, *v, *y);
}

void M_ProductVTrB(matrix<double>* v, int n, matrix<double>* B, int m, matrix<double>* y)
{
    multiplyByVector(*B, summed::along, m, n, *v, *y);
}

double M_ProductTrV1BV2(matrix<double>* x1, int n, matrix<double>* B, matrix<double>* x2)
{
    matrix<double> y(std::max(n, 0), 1, 0.0);
    M_ProductBV(B, n, n, x2, &y);
    return V_ProductTrV1V2(x1, n, &y);
}

double M_ProductTrVBV(matrix<double>* v, int n, matrix<double>* B)
{
    return M_ProductTrV1BV2(v, n, B, v);
}

double M_ProductTrVBV(const matrix<double>& v, int n, const matrix<double>& B)
{
    // The steps only read these two.
    return M_ProductTrVBV(const_cast<matrix<double>*>(&v), n, const_cast<matrix<double>*>(&B));
}

double V_ProductTrV1V2(matrix<double>* x1, int n, matrix<double>* x2)
{
    return withCells(
        n,
        [n](auto a, auto b) {
            double sum = 0.0;
            for (int i = 0; i < n; ++i) {
                sum += a[i] * b[i];
            }
            return sum;
        },
        *x1, *x2);
}

double V_ProductWTrV1V2(matrix<double>* x1, int n, matrix<double>* x2, matrix<double>* w)
{
    return withCells(
        n,
        [n](auto a, auto b, auto weights) {
            double sum = 0.0;
            double total = 0.0;
            for (int i = 0; i < n; ++i) {
                const double weight = weights[i];
                if (weight == MISSING_DBL) {
                    continue;
                }
                total += weight;
                if (a[i] != MISSING_DBL && b[i] != MISSING_DBL) {
                    sum += a[i] * b[i] * weight;
                }
            }
            return total > 0.0 ? sum / total : sum;
        },
        *x1, *x2, *w);
}

void V_ProductV1V2(matrix<double>* x1, int n, matrix<double>* x2, matrix<double>* y)
{
    withCells(
        [n](auto a, auto b, auto& out) {
            for (int i = 0; i < n; ++i) {
                const bool missing = a[i] == MISSING_DBL || b[i] == MISSING_DBL;
                out.set(i, missing ? MISSING_DBL : a[i] * b[i]);
            }
        },
        readVector(*x1, n), readVector(*x2, n), writeVector(*y, n));
}

void V_ProductV1V22(matrix<double>* x1, int n, matrix<double>* x2)
{
    withCells(
        [n](auto& inOut, auto b) {
            for (int i = 0; i < n; ++i) {
                inOut.set(i, inOut[i] * b[i]);
            }
        },
        writeVector(*x1, n), readVector(*x2, n));
}

void V_ProductV1TrV2(matrix<double>* x1, int n, matrix<double>* x2, matrix<double>* C)
{
    korvel::clearResult(*C, n, n);
    withCells(
        [n](auto a, auto b, auto& out) {
            for (int i = 0; i < n; ++i) {
                for (int j = 0; j < n; ++j) {
                    out.set(i, j, a[i] * b[j]);
                }
            }
        },
        readVector(*x1, n), readVector(*x2, n), korvel::writing(*C).table(n, n));
}

double V_Product1toN(matrix<double>* v, int n)
{
    return withCells(
        n, [n](auto cells) { return productOf(cells, n); }, *v);
}

double V_Product1toN(matrix<int>* v, int n)
{
    return withCells(
        n, [n](auto cells) { return productOf(cells, n); }, *v);
}
