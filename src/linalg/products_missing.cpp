#include "linalg/products_missing.h"

#include "linalg/clear_result.h"
#include "linalg/product_forms.h"

namespace
{

/** The sum for one element, or the missing value. */
double sumUnlessMissing(const auto& a, const auto& b, int i, int j, int p)
{
    double sum = 0.0;
    for (int k = 0; k < p; ++k) {
        const double left = a.get(i, k);
        const double right = b.get(k, j);
        if (left == MISSING_DBL || right == MISSING_DBL) {
            return MISSING_DBL;
        }
        sum += left * right;
    }
    return sum;
}

template <class A, class C>
int multiplyUnlessMissing(const A& a, int n, int p, const matrix<double>& b, int q, C& c)
{
    korvel::clearResult(c, n, q);
    korvel::withCells(
        [=](auto& left, auto& right, auto& out) {
            for (int i = 0; i < n; ++i) {
                for (int j = 0; j < q; ++j) {
                    out.set(i, j, sumUnlessMissing(left, right, i, j, p));
                }
            }
        },
        korvel::reading(a).table(n, p), korvel::reading(b).table(p, q), korvel::writing(c).table(n, q));
    return 0;
}

} // namespace

int M_ProductABMissing(matrix<double>* A, int n, int p, matrix<double>* B, int q, matrix<double>* C)
{
    return multiplyUnlessMissing(*A, n, p, *B, q, *C);
}

int M_ProductABMissingSPV(matrix3D<matrix<double>>* A, int n, int p, matrix<double>* B, int q,
                          matrix<double>*& C)
{
    return multiplyUnlessMissing(*A, n, p, *B, q, *C);
}

int M_ProductABMissingSPV2(matrix<double>* A, int n, int p, matrix<double>* B, int q,
                           matrix3D<matrix<double>>* C)
{
    return multiplyUnlessMissing(*A, n, p, *B, q, *C);
}

int M_ProductABMissingSPV3(matrix3D<statistics_matrix<double>>* A, int n, int p, matrix<double>* B, int q,
                           matrix3D<matrix<double>>* C)
{
    return multiplyUnlessMissing(*A, n, p, *B, q, *C);
}
