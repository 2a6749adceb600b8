#include "linalg/products_table_vector.h"

#include "linalg/clear_result.h"
#include "linalg/product_forms.h"
#include "linalg/vector_products.h"

namespace
{

using korvel::along;
using korvel::down;
using korvel::readVector;
using korvel::withCells;

/** y(o) = the sum over k of the table's element (o, k) times v(k). */
void multiplyByVector(const korvel::product_side<matrix<double>>& table, int depth, matrix<double>& v,
                      matrix<double>& y)
{
    korvel::vector_column vector(v);
    korvel::vector_column result(y);
    auto* const factors = vector.table();
    auto* const sums = result.table();
    korvel::formProduct(table, down(factors, 1), depth, sums);
}

} // namespace

int M_ProductBV(matrix<double>* B, int n, int p, matrix<double>* v, matrix<double>* y)
{
    multiplyByVector(along(*B, n), p, *v, *y);
    return 0;
}

void M_ProductVB(matrix<double>* v, int n, matrix<double>* B, int q, matrix<double>*& y)
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
}

void M_ProductTrBV(matrix<double>* B, int n, int p, matrix<double>* v, matrix<double>* y)
{
    multiplyByVector(down(*B, p), n, *v, *y);
}

void M_ProductVTrB(matrix<double>* v, int n, matrix<double>* B, int m, matrix<double>* y)
{
    multiplyByVector(along(*B, m), n, *v, *y);
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
