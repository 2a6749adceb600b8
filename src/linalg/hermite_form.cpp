#include "linalg/hermite_form.h"

#include "linalg/rows_as_runs.h"

#include <cmath>

namespace
{

constexpr double negligible = 1e-12;

/** The upper triangle of A and its mirror. */
void copyMirrored(const matrix<double>& A, int n, matrix<double>& H)
{
    korvel::withCells(
        [=](auto& to, const auto& from) {
            for (int i = 0; i < n; ++i) {
                for (int j = i; j < n; ++j) {
                    const double x = from.get(i, j);
                    to.set(i, j, x);
                    to.set(j, i, x);
                }
            }
        },
        korvel::writing(H).table(n, n), korvel::reading(A).table(n, n));
}

/** Zeros in row `i` from column `k` on. */
template <class Table>
void clearRow(Table& h, int n, int i, int k)
{
    for (int j = k; j < n; ++j) {
        h.set(i, j, 0.0);
    }
}

/** Takes row `k` off row `i`, which is then divided by `d`. */
template <class Table>
void reduceRow(Table& h, int n, int i, int k, double d)
{
    const double factor = h.get(i, k);
    for (int j = k + 1; j < n; ++j) {
        h.set(i, j, (h.get(i, j) - h.get(k, j) * factor) / d);
    }
    h.set(i, k, 0.0);
}

template <class Table>
void reduceForward(Table& h, int n)
{
    for (int k = 0; k < n; ++k) {
        const double pivot = h.get(k, k);
        if (std::fabs(pivot) <= negligible) {
            clearRow(h, n, k, k);
            continue;
        }
        if (std::fabs(pivot - 1.0) > negligible) {
            for (int j = k + 1; j < n; ++j) {
                h.set(k, j, h.get(k, j) / pivot);
            }
            h.set(k, k, 1.0);
        }
        for (int i = k + 1; i < n; ++i) {
            // Only the row next to the pivot is divided.
            const double d = i == k + 1 ? h.get(i, i) - h.get(i, k) * h.get(k, i) : 1.0;
            if (std::fabs(d) <= negligible) {
                clearRow(h, n, i, k);
            } else {
                reduceRow(h, n, i, k, d);
            }
        }
    }
}

template <class Table>
void reduceBackward(Table& h, int n)
{
    for (int k = 0; k < n; ++k) {
        if (!(std::fabs(h.get(k, k) - 1.0) < negligible)) {
            continue;
        }
        for (int i = 0; i < k; ++i) {
            if (std::fabs(h.get(i, k)) > negligible) {
                const double factor = h.get(i, k);
                for (int j = k + 1; j < n; ++j) {
                    h.set(i, j, h.get(i, j) - factor * h.get(k, j));
                }
                h.set(i, k, 0.0);
            }
        }
    }
}

} // namespace

void M_ForwardDoolittle(matrix<double>* A, int n, matrix<double>* H)
{
    copyMirrored(*A, n, *H);
    korvel::changeByRows(*H, n, n, [=](auto& h) { reduceForward(h, n); });
}

void M_HermiteCanonical(matrix<double>* A, int n, matrix<double>* H)
{
    M_ForwardDoolittle(A, n, H);
    korvel::changeByRows(*H, n, n, [=](auto& h) { reduceBackward(h, n); });
}
