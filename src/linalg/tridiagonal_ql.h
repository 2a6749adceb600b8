/**
 * @file
 * The steps of the symmetric eigen decomposition on a table of cells that are read by `get(i, j)` and stored
 * by `set(i, j, value)`: whatever form the table has. `d` is read and stored by `d[i]` and `d.set(i, value)`.
 */
#ifndef KORVEL_LINALG_TRIDIAGONAL_QL_H
#define KORVEL_LINALG_TRIDIAGONAL_QL_H

#include <cmath>

namespace korvel
{

/** An off-diagonal element below this magnitude counts as zero, whatever the scale of the table. */
inline constexpr double negligibleOffDiagonal = 2.220446049250313e-16;

/** The sweep at which an eigenvalue counts as lost; in a triangular table one later. */
inline constexpr int sweepsTooMany = 29;
inline constexpr int sweepsTooManyOfTriangle = 30;

/**
 * Householder reduction of the lower triangle. Leaves in row i the reflector of step i and in column i the
 * same divided by its `d[i]`, which is 0 where nothing was to be reflected; in `e[i]` the element beside the
 * diagonal.
 */
template <class Cells, class Vector>
void reduceToTridiagonal(Cells& a, Vector& d, double* e, int n)
{
    for (int i = n - 1; i >= 1; --i) {
        double h = 0.0;
        double scale = 0.0;
        for (int k = 0; i > 1 && k < i; ++k) {
            scale += std::fabs(a.get(i, k));
        }
        if (scale == 0.0) {
            e[i] = a.get(i, i - 1);
            d.set(i, 0.0);
            continue;
        }
        for (int k = 0; k < i; ++k) {
            a.set(i, k, a.get(i, k) / scale);
            h += a.get(i, k) * a.get(i, k);
        }
        double f = a.get(i, i - 1);
        double g = f > 0.0 ? -std::sqrt(h) : std::sqrt(h);
        e[i] = scale * g;
        h -= f * g;
        a.set(i, i - 1, f - g);
        f = 0.0;
        for (int j = 0; j < i; ++j) {
            a.set(j, i, a.get(i, j) / h);
            g = 0.0;
            for (int k = 0; k <= j; ++k) {
                g += a.get(j, k) * a.get(i, k);
            }
            for (int k = j + 1; k < i; ++k) {
                g += a.get(k, j) * a.get(i, k);
            }
            e[j] = g / h;
            f += e[j] * a.get(i, j);
        }
        const double half = f / (h + h);
        for (int j = 0; j < i; ++j) {
            f = a.get(i, j);
            g = e[j] - half * f;
            e[j] = g;
            for (int k = 0; k <= j; ++k) {
                a.set(j, k, a.get(j, k) - (f * e[k] + g * a.get(i, k)));
            }
        }
        d.set(i, h);
    }
}

/** Multiplies the reflectors into the orthogonal table; the diagonal of the tridiagonal form goes to `d`. */
template <class Cells, class Vector>
void accumulateReflectors(Cells& a, Vector& d, double* e, int n)
{
    if (n >= 1) {
        d.set(0, 0.0);
        e[0] = 0.0;
    }
    for (int i = 0; i < n; ++i) {
        for (int j = 0; d[i] != 0.0 && j < i; ++j) {
            double g = 0.0;
            for (int k = 0; k < i; ++k) {
                g += a.get(i, k) * a.get(k, j);
            }
            for (int k = 0; k < i; ++k) {
                a.set(k, j, a.get(k, j) - g * a.get(k, i));
            }
        }
        d.set(i, a.get(i, i));
        a.set(i, i, 1.0);
        for (int j = 0; j < i; ++j) {
            a.set(j, i, 0.0);
            a.set(i, j, 0.0);
        }
    }
}

/** One QL sweep over the rows `l` to `m` with an implicit shift; `rotate(i, c, s)` turns columns i and i + 1.
 */
template <class Vector, class Rotate>
void sweepUp(Vector& d, double* e, int l, int m, Rotate rotate)
{
    double g = (d[l + 1] - d[l]) / (2.0 * e[l]);
    double r = std::sqrt(g * g + 1.0);
    g = d[m] - d[l] + e[l] / (g + (g >= 0.0 ? r : -r));
    double s = 1.0;
    double c = 1.0;
    double p = 0.0;
    for (int i = m - 1; i >= l; --i) {
        const double f = s * e[i];
        const double b = c * e[i];
        if (std::fabs(f) < std::fabs(g)) {
            s = f / g;
            r = std::sqrt(s * s + 1.0);
            e[i + 1] = g * r;
            c = 1.0 / r;
            s *= c;
        } else {
            c = g / f;
            r = std::sqrt(c * c + 1.0);
            e[i + 1] = f * r;
            s = 1.0 / r;
            c *= s;
        }
        g = d[i + 1] - p;
        r = (d[i] - g) * s + 2.0 * c * b;
        p = s * r;
        d.set(i + 1, g + p);
        g = c * r - b;
        rotate(i, c, s);
    }
    d.set(l, d[l] - p);
    e[l] = g;
    e[m] = 0.0;
}

/** The end of the unreduced block that begins at row `l`. */
[[nodiscard]] inline int endOfBlock(const double* e, int l, int n)
{
    int m = l;
    while (m < n - 1 && !(std::fabs(e[m]) < negligibleOffDiagonal)) {
        ++m;
    }
    return m;
}

/** The QL iteration on `d` and `e`, of which `e[i]` stands beside `d[i]` and `d[i + 1]`. */
template <class Cells, class Vector>
[[nodiscard]] bool iterateToDiagonal(Cells& a, Vector& d, double* e, int n, int tooMany)
{
    const auto rotate = [&a, n](int i, double c, double s) {
        for (int k = 0; k < n; ++k) {
            const double f = a.get(k, i + 1);
            a.set(k, i + 1, s * a.get(k, i) + c * f);
            a.set(k, i, c * a.get(k, i) - s * f);
        }
    };
    for (int l = 0; l < n; ++l) {
        int sweeps = 0;
        for (int m = endOfBlock(e, l, n); m != l; m = endOfBlock(e, l, n)) {
            if (++sweeps == tooMany) {
                return false;
            }
            sweepUp(d, e, l, m, rotate);
        }
    }
    return true;
}

/**
 * Replaces the cells of a symmetric table by its eigenvectors.
 *
 * @param e scratch, `n` doubles
 * @return whether all eigenvalues converged
 */
template <class Cells, class Vector>
[[nodiscard]] bool decomposeSymmetric(Cells& a, Vector& d, double* e, int n, int tooMany)
{
    reduceToTridiagonal(a, d, e, n);
    accumulateReflectors(a, d, e, n);
    for (int i = 1; i < n; ++i) {
        e[i - 1] = e[i];
    }
    if (n >= 1) {
        e[n - 1] = 0.0;
    }
    return iterateToDiagonal(a, d, e, n, tooMany);
}

} // namespace korvel

#endif
