#include "linalg/triangular_inverse.h"

#include "containers/views.h"

#include <cmath>

namespace
{

/** The reciprocals of the diagonal; false at the first element that is below the tolerance. */
template <class From, class To>
bool invertDiagonal(const From& T, int n, To& inverse, double tolerance)
{
    for (int i = 0; i < n; ++i) {
        const double d = T.get(i, i);
        if (std::fabs(d) < tolerance) {
            return false;
        }
        inverse.set(i, i, 1.0 / d);
    }
    return true;
}

/** Stores element (i, j) from the terms `first` to `last`. */
template <class From, class To>
void substitute(const From& T, To& inverse, int i, int j, int first, int last)
{
    double sum = 0.0;
    for (int k = first; k <= last; ++k) {
        sum += T.get(i, k) * inverse.get(k, j);
    }
    inverse.set(i, j, -inverse.get(i, i) * sum);
}

} // namespace

int M_InverseTriang(matrix<double>* T, int n, short int lowerFlag, matrix<double>*& inverse, double tolerance)
{
    return korvel::withCells(
        [=](auto& to, const auto& from) {
            if (!invertDiagonal(from, n, to, tolerance)) {
                return -1;
            }
            if (lowerFlag == 0) {
                for (int i = n - 2; i >= 0; --i) {
                    for (int j = i + 1; j < n; ++j) {
                        substitute(from, to, i, j, i + 1, j);
                    }
                }
            } else {
                for (int i = 1; i < n; ++i) {
                    for (int j = 0; j < i; ++j) {
                        substitute(from, to, i, j, j, i - 1);
                    }
                }
            }
            return 0;
        },
        korvel::writing(*inverse).table(n, n), korvel::reading(*T).table(n, n));
}
