#include "linalg/determinants.h"

#include "linalg/lu_factors.h"
#include "tables/block_copy.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace
{

using korvel::lu_outcome;

constexpr double overflow = 1.79769313486231e308;
constexpr double tooSmall = 1e-24;
constexpr double leastLogarithm = -708.0;
constexpr double mostLogarithm = 709.0;

/** A number as its sign and the logarithm of its magnitude. */
struct signed_logarithm {
    int sign;
    double logarithm;
};

/** The product of the diagonal and `sign`; nothing when an element of it counts as zero. */
template <class IsZero>
std::optional<signed_logarithm> productOfDiagonal(const matrix<double>& a, int n, int sign, IsZero isZero)
{
    signed_logarithm product{sign, 0.0};
    for (int k = 0; k < n; ++k) {
        const double u = a.getElement(k, k);
        if (isZero(u)) {
            return std::nullopt;
        }
        if (u < 0.0) {
            product.sign = -product.sign;
        }
        product.logarithm += std::log(std::fabs(u));
    }
    return product;
}

bool isExactlyZero(double u)
{
    return u == 0.0;
}

/** A table and what became of its decomposition. */
struct decomposed {
    matrix<double> factors;
    lu_outcome outcome;
};

decomposed decompose(const matrix<double>& A, int n)
{
    const int order = std::max(n, 0);
    decomposed made{matrix<double>(order, order, 0.0), {}};
    korvel::copyBlock(korvel::reading(A), {}, korvel::writing(made.factors), {}, order, order);
    matrix<int> pivots;
    made.outcome = korvel::factoriseLU(made.factors, order, pivots);
    return made;
}

/** The determinant as its sign and logarithm; nothing when it is 0. */
std::optional<signed_logarithm> determinant(const matrix<double>& A, int n, short int& error)
{
    const decomposed lu = decompose(A, n);
    error = lu.outcome.error;
    if (error != 0 || lu.outcome.singular) {
        return std::nullopt;
    }
    return productOfDiagonal(lu.factors, n, lu.outcome.sign,
                             [](double u) { return std::fabs(u) < tooSmall; });
}

} // namespace

double M_Determinant(matrix<double>* A, int n, short int* error, short int mode)
{
    try {
        const auto found = determinant(*A, n, *error);
        if (!found || found->logarithm < leastLogarithm) {
            return 0.0;
        }
        if (!(found->logarithm > mostLogarithm)) {
            return found->sign * std::exp(found->logarithm);
        }
        if (mode == -1) {
            return found->sign * found->logarithm;
        }
    } catch (...) {
        // Whatever it was, callers know it as this status.
    }
    *error = -1;
    return overflow;
}

double M_LogDeterminant(matrix<double>* A, int n)
{
    const decomposed lu = decompose(*A, n);
    if (lu.outcome.error == -1) {
        return MISSING_DBL;
    }
    const auto found = productOfDiagonal(lu.factors, n, lu.outcome.sign, isExactlyZero);
    if (!found) {
        return 0.0;
    }
    return found->sign > 0 ? found->logarithm : MISSING_DBL;
}

double M_DeterminantTriang(matrix<double>* A, int n, short int* error)
{
    *error = 0;
    const auto found = productOfDiagonal(*A, n, 1, isExactlyZero);
    return found ? found->sign * std::exp(found->logarithm) : 0.0;
}
