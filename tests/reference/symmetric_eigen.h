/**
 * @file
 * The plain symmetric eigen decomposition: the loops of the method on one table, counted from 1, element by
 * element. `put` gives the number that is actually stored.
 */
#ifndef KORVEL_TESTS_REFERENCE_SYMMETRIC_EIGEN_H
#define KORVEL_TESTS_REFERENCE_SYMMETRIC_EIGEN_H

#include "containers/matrix.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <numeric>
#include <vector>

namespace korvel::test
{

struct plain_eigen {
    int n = 0;
    int status = 0;
    int mostSweeps = 0;          ///< that one eigenvalue took
    std::vector<double> values;  ///< counted from 1
    std::vector<double> vectors; ///< column after column

    [[nodiscard]] double vector(int i, int k) const { return vectors[place(i, k)]; }
    [[nodiscard]] std::size_t place(int i, int j) const
    {
        return static_cast<std::size_t>(i - 1) +
               static_cast<std::size_t>(n) * static_cast<std::size_t>(j - 1);
    }
};

namespace detail
{

template <class Put>
class plain_eigen_steps
{
public:
    plain_eigen_steps(plain_eigen& result, Put put)
        : result_(result), n_(result.n), put_(put), e_(static_cast<std::size_t>(n_) + 1)
    {
    }

    void tridiagonalise()
    {
        for (int i = n_; i >= 2; --i) {
            const int l = i - 1;
            double h = 0.0;
            double scale = 0.0;
            if (l > 1) {
                for (int k = 1; k <= l; ++k) {
                    scale = scale + std::fabs(at(i, k));
                }
            }
            if (l == 1 || scale == 0.0) {
                e(i) = at(i, l);
            } else {
                for (int k = 1; k <= l; ++k) {
                    store(i, k, at(i, k) / scale);
                    h = h + at(i, k) * at(i, k);
                }
                reflect(i, l, h, scale);
            }
            d(i) = h;
        }
        if (n_ >= 1) {
            d(1) = 0.0;
            e(1) = 0.0;
        }
    }

    void accumulate()
    {
        for (int i = 1; i <= n_; ++i) {
            if (d(i) != 0.0) {
                for (int j = 1; j < i; ++j) {
                    double g = 0.0;
                    for (int k = 1; k < i; ++k) {
                        g = g + at(i, k) * at(k, j);
                    }
                    for (int k = 1; k < i; ++k) {
                        store(k, j, at(k, j) - g * at(k, i));
                    }
                }
            }
            d(i) = at(i, i);
            store(i, i, 1.0);
            for (int j = 1; j < i; ++j) {
                store(j, i, 0.0);
                store(i, j, 0.0);
            }
        }
    }

    /** Whether each value was found in fewer sweeps than `tooMany`. */
    bool iterate(int tooMany)
    {
        for (int i = 2; i <= n_; ++i) {
            e(i - 1) = e(i);
        }
        if (n_ >= 1) {
            e(n_) = 0.0;
        }
        for (int l = 1; l <= n_; ++l) {
            for (int sweeps = 0;;) {
                int m = l;
                for (; m <= n_ - 1; ++m) {
                    if (std::fabs(e(m)) < 2.220446049250313e-16) {
                        break;
                    }
                }
                if (m == l) {
                    break;
                }
                sweeps = sweeps + 1;
                result_.mostSweeps = std::max(result_.mostSweeps, sweeps);
                if (sweeps == tooMany) {
                    return false;
                }
                sweep(l, m);
            }
        }
        return true;
    }

private:
    double at(int i, int j) const { return result_.vectors[result_.place(i, j)]; }
    void store(int i, int j, double x) { result_.vectors[result_.place(i, j)] = put_(x); }
    double& d(int i) { return result_.values[static_cast<std::size_t>(i)]; }
    double& e(int i) { return e_[static_cast<std::size_t>(i)]; }

    void reflect(int i, int l, double& h, double scale)
    {
        double f = at(i, l);
        double g = f > 0.0 ? -std::sqrt(h) : std::sqrt(h);
        e(i) = scale * g;
        h = h - f * g;
        store(i, l, f - g);
        double sum = 0.0;
        for (int j = 1; j <= l; ++j) {
            store(j, i, at(i, j) / h);
            g = 0.0;
            for (int k = 1; k <= l; ++k) {
                g = g + (k <= j ? at(j, k) : at(k, j)) * at(i, k);
            }
            e(j) = g / h;
            sum = sum + e(j) * at(i, j);
        }
        const double K = sum / (h + h);
        for (int j = 1; j <= l; ++j) {
            f = at(i, j);
            g = e(j) - K * f;
            e(j) = g;
            for (int k = 1; k <= j; ++k) {
                store(j, k, at(j, k) - (f * e(k) + g * at(i, k)));
            }
        }
    }

    void sweep(int l, int m)
    {
        double g = (d(l + 1) - d(l)) / (2.0 * e(l));
        double r = std::sqrt(g * g + 1.0);
        g = d(m) - d(l) + e(l) / (g + (g >= 0.0 ? std::fabs(r) : -std::fabs(r)));
        double s = 1.0;
        double c = 1.0;
        double p = 0.0;
        for (int i = m - 1; i >= l; --i) {
            const double f = s * e(i);
            const double b = c * e(i);
            if (std::fabs(f) < std::fabs(g)) {
                s = f / g;
                r = std::sqrt(s * s + 1.0);
                e(i + 1) = g * r;
                c = 1.0 / r;
                s = s * c;
            } else {
                c = g / f;
                r = std::sqrt(c * c + 1.0);
                e(i + 1) = f * r;
                s = 1.0 / r;
                c = c * s;
            }
            g = d(i + 1) - p;
            r = (d(i) - g) * s + 2.0 * c * b;
            p = s * r;
            d(i + 1) = g + p;
            g = c * r - b;
            for (int k = 1; k <= n_; ++k) {
                const double right = at(k, i + 1);
                const double left = at(k, i);
                store(k, i + 1, s * left + c * right);
                store(k, i, c * left - s * right);
            }
        }
        d(l) = d(l) - p;
        e(l) = g;
        e(m) = 0.0;
    }

    plain_eigen& result_;
    int n_;
    Put put_;
    std::vector<double> e_;
};

inline void sortPlain(plain_eigen& result)
{
    std::vector<int> order(static_cast<std::size_t>(result.n));
    std::iota(order.begin(), order.end(), 1);
    const plain_eigen before = result;
    const auto value = [&](int k) { return before.values[static_cast<std::size_t>(k)]; };
    std::stable_sort(order.begin(), order.end(), [&](int a, int b) { return value(a) > value(b); });
    for (int k = 1; k <= result.n; ++k) {
        const int from = order[static_cast<std::size_t>(k - 1)];
        result.values[static_cast<std::size_t>(k)] = value(from);
        for (int i = 1; i <= result.n; ++i) {
            result.vectors[result.place(i, k)] = before.vector(i, from);
        }
    }
}

} // namespace detail

/** A number is stored as it is. */
inline constexpr auto asItIs = [](double x) { return x; };

/** A number of a small magnitude is stored as 0. */
inline constexpr auto smallAsZero = [](double x) { return std::fabs(x) < 1e-18 ? 0.0 : x; };

template <class Put = decltype(asItIs)>
plain_eigen plainEigen(const matrix<double>& A, int n, short int sortFlag, int tooMany = 29, Put put = asItIs)
{
    plain_eigen result;
    result.n = n;
    result.values.resize(static_cast<std::size_t>(n) + 1);
    for (int j = 0; j < n; ++j) {
        for (int i = 0; i < n; ++i) {
            result.vectors.push_back(put(A.getElement(i, j)));
            if (A.getElement(i, j) == MISSING_DBL) {
                result.status = -1;
            }
        }
    }
    if (result.status != 0) {
        return result;
    }
    detail::plain_eigen_steps steps(result, put);
    steps.tridiagonalise();
    steps.accumulate();
    if (!steps.iterate(tooMany)) {
        result.status = -1;
    } else if (sortFlag == -1) {
        detail::sortPlain(result);
    }
    return result;
}

} // namespace korvel::test

#endif
