#include "linalg/vector_products.h"

#include "containers/map_cells.h"
#include "linalg/clear_result.h"
#include "statistics/vector_sums.h"

#include <utility>

using korvel::readVector;
using korvel::withCells;
using korvel::writeVector;

namespace
{

/** y(i) = product(x1(i), x2(i)). */
template <class Product>
void multiplyElements(const matrix<double>& x1, int n, const matrix<double>& x2, matrix<double>& y,
                      Product product)
{
    withCells(
        [&](auto& out, auto& left, auto& right) {
            for (int i = 0; i < n; ++i) {
                out.set(i, product(left[i], right[i]));
            }
        },
        writeVector(y, n), readVector(x1, n), readVector(x2, n));
}

template <class T>
double productOfAll(const matrix<T>& v, int n)
{
    const auto multiply = [n](auto elements) {
        double product = 1.0;
        for (int i = 0; i < n; ++i) {
            product *= elements[i];
        }
        return product;
    };
    return withCells(multiply, n, v);
}

} // namespace

double V_ProductTrV1V2(matrix<double>* x1, int n, matrix<double>* x2)
{
    return korvel::sumOfProducts(*x1, n, *x2);
}

double V_ProductWTrV1V2(matrix<double>* x1, int n, matrix<double>* x2, matrix<double>* w)
{
    const auto sumBoth = [n](auto left, auto right, auto weights) {
        double sum = 0.0;
        double total = 0.0;
        for (int i = 0; i < n; ++i) {
            if (left[i] != MISSING_DBL && right[i] != MISSING_DBL) {
                sum += left[i] * right[i] * weights[i];
            }
            if (weights[i] != MISSING_DBL) {
                total += weights[i];
            }
        }
        return total > 0.0 ? sum / total : sum;
    };
    return withCells(sumBoth, n, *x1, *x2, *w);
}

void V_ProductV1V2(matrix<double>* x1, int n, matrix<double>* x2, matrix<double>* y)
{
    multiplyElements(*x1, n, *x2, *y, [](double a, double b) {
        return a == MISSING_DBL || b == MISSING_DBL ? MISSING_DBL : a * b;
    });
}

void V_ProductV1V22(matrix<double>* x1, int n, matrix<double>* x2)
{
    multiplyElements(*x1, n, *x2, *x1, [](double a, double b) { return a * b; });
}

void V_ProductV1TrV2(matrix<double>* x1, int n, matrix<double>* x2, matrix<double>* C)
{
    korvel::clearResult(*C, n, n);
    for (int j = 0; j < n; ++j) {
        const double factor = std::as_const(*x2)[j];
        withCells(
            [&](auto& out, auto& left) {
                for (int i = 0; i < n; ++i) {
                    out.set(i, left[i] * factor);
                }
            },
            korvel::writing(*C).column(j, n), readVector(*x1, n));
    }
}

double V_Product1toN(matrix<double>* v, int n)
{
    return productOfAll(*v, n);
}

double V_Product1toN(matrix<int>* v, int n)
{
    return productOfAll(*v, n);
}
