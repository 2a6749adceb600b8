#include "linalg/dominant_vector.h"

#include "containers/missing.h"
#include "linalg/products_table_vector.h"

#include <cmath>

namespace
{

constexpr int mostSteps = 1000;
constexpr double tolerance = 1e-6;

/** x times a number; a missing element stays missing. */
double scaled(double x, double factor)
{
    return x == MISSING_DBL ? MISSING_DBL : x * factor;
}

} // namespace

int M_VonMises(matrix<double>* A, matrix<double>* x, int n)
{
    x->Redim(n, 1, 1.0);
    matrix<double> y(n, 1, 0.0);
    matrix<double>& vector = *x;
    for (int step = 0; step < mostSteps; ++step) {
        M_ProductBV(A, n, n, x, &y);
        double lambda = 0.0;
        for (int i = 0; i < n; ++i) {
            lambda += y[i] * vector[i];
        }
        const double inverse = 1.0 / lambda;
        double moved = 0.0;
        double length = 0.0;
        for (int i = 0; i < n; ++i) {
            const double q = scaled(vector[i], lambda);
            vector[i] = scaled(y[i], inverse);
            moved += (y[i] - q) * (y[i] - q);
            length += q * q;
        }
        if (std::sqrt(moved) / std::sqrt(length) <= tolerance) {
            break;
        }
    }
    return 0;
}
