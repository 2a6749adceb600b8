/**
 * @file
 * The regression by sweeping step by step, with nothing done for speed.
 */
#ifndef KORVEL_TESTS_REFERENCE_LEAST_SQUARES_H
#define KORVEL_TESTS_REFERENCE_LEAST_SQUARES_H

#include "containers/cells.h"
#include "reference/column_moments.h"
#include "reference/covariance.h"
#include "reference/sweeps.h"

#include <cmath>
#include <vector>

namespace korvel::reference
{

/** What a fit writes. */
struct fit_tables {
    matrix<double> coefficients;
    matrix<double> errors;
    matrix<double> fitted;
    matrix<double> swept;
    matrix<double> means;
    matrix<double> deviations;
};

struct fit_flags {
    int degree = 1;
    short int interactions = 0;
    short int noConstant = 0;
    double tolerance = 1e-12;
};

inline std::size_t packedAt(int i, int j)
{
    const int row = i >= j ? i : j;
    const int col = i >= j ? j : i;
    return static_cast<std::size_t>(row * (row - 1) / 2 + col - 1);
}

/** A packed table with means and deviations, all of them counted from 1. */
struct plain_fit {
    int P;
    matrix<double> T;
    matrix<double> m;
    matrix<double> s;
    double W = 0.0;

    explicit plain_fit(int terms)
        : P(terms), T((P + 2) * (P + 1) / 2, 1, 0.0), m(P + 1, 1, 0.0), s(P + 1, 1, 0.0)
    {
    }

    double& t(int i, int j) { return T.data[packedAt(i, j)]; }
    double mean(int k) const { return m.data[k - 1]; }
    double& sd(int k) { return s.data[k - 1]; }
    double r() { return t(P + 1, P + 1); }
};

inline double plainSum2(const matrix<double>& w, int n)
{
    double sum = 0.0;
    for (int i = 0; i < n; ++i) {
        if (w[i] != MISSING_DBL) {
            sum += w[i];
        }
    }
    return sum;
}

/** The correlations of columns `first` to `last` of `M` among themselves. */
inline void plainCorrelations(plain_fit& fit, const matrix<double>& M, int first, int last,
                              const matrix<double>& w)
{
    const int cols = last - first + 1;
    auto table = covariances([&](int r, int i) { return M.getElement(r, first - 1 + i); }, M.nbrows, cols,
                             nullptr, &w, true, {-1, {-1, -1}, 0, 0, -1}, [](double p) { return p > 0.0; },
                             [](int, covariance_table&) {});
    for (int i = 0; i < cols; ++i) {
        fit.m.data[first - 1 + i] = table.mean(i);
        fit.sd(first + i) = table.var(i) > 0.0 ? std::sqrt(table.var(i)) : table.var(i);
        for (int j = 0; j <= i; ++j) {
            fit.t(first + i, first + j) = table.at(i, j);
        }
    }
}

template <class IsDefined>
void plainUncentred(plain_fit& fit, const matrix<double>& M, const matrix<double>& w, IsDefined isDefined)
{
    for (int k = 1; k <= fit.P + 1; ++k) {
        moments_of_column column;
        column.add([&](int i) { return M.getElement(i, k - 1); }, M.nbrows, nullptr, &w);
        fit.m.data[k - 1] = column.mean();
        fit.sd(k) = column.deviation({-1, -1});
    }
    for (int i = 1; i <= fit.P + 1; ++i) {
        for (int j = 1; j <= i; ++j) {
            double S = 0.0;
            for (int r = 0; r < M.nbrows; ++r) {
                const double wr = w[r];
                if (wr != 0.0) {
                    S += M.getElement(r, i - 1) * M.getElement(r, j - 1) * wr;
                }
            }
            fit.t(i, j) = isDefined(fit.sd(i), fit.sd(j)) ? (S / (fit.W - 1)) / (fit.sd(i) * fit.sd(j)) : 0.0;
        }
    }
}

inline void plainFitted(const matrix<double>& M, int P, const matrix<double>& coefficients,
                        matrix<double>& fitted)
{
    for (int i = 0; i < M.nbrows; ++i) {
        double sum = 0.0;
        for (int k = 0; k < P; ++k) {
            if (M.getElement(i, k) != MISSING_DBL) {
                sum += coefficients[k] * M.getElement(i, k);
            }
        }
        storeChecked(fitted, i, coefficients[P] + sum);
    }
}

inline double plainCheckIfIn(const matrix<double>& T, int P, int k, double tolerance)
{
    const double v = T[static_cast<std::int64_t>(packedAt(k, k))];
    if (!(v > tolerance) || P + 1 < 1) {
        return v;
    }
    for (int i = 1; i <= P + 1; ++i) {
        const double a = T[static_cast<std::int64_t>(packedAt(k, i))];
        const double c = (a * a) / v - T[static_cast<std::int64_t>(packedAt(i, i))];
        if (c > 0 && 1 / c > tolerance) {
            return 1 / c;
        }
    }
    return v;
}

/** The design with the response as its last column. */
inline matrix<double> plainDesign(int n, int p, const matrix<double>& X, const matrix<double>& Y,
                                  const fit_flags& how)
{
    const int P = p * how.degree + (how.interactions == -1 ? p * (p - 1) / 2 : 0);
    matrix<double> M(n, P + 1, 0.0);
    for (int i = 0; i < n; ++i) {
        for (int j = 1; j <= p; ++j) {
            double power = X.getElement(i, j - 1);
            for (int k = 1; k <= how.degree; ++k) {
                M.setElement(i, (k - 1) * p + j - 1, power);
                power = power * X.getElement(i, j - 1);
            }
        }
        int place = p * how.degree;
        for (int a = 0; a < p && how.interactions == -1; ++a) {
            for (int b = a + 1; b < p; ++b) {
                M.setElement(i, place++, X.getElement(i, a) * X.getElement(i, b));
            }
        }
        M.setElement(i, P, Y[i]);
    }
    return M;
}

inline void plainLeastSquares(int n, int p, const matrix<double>& X, const matrix<double>& Y,
                              const matrix<double>& w, const fit_flags& how, fit_tables& out)
{
    constexpr double epsilon = 2.220446049250313e-16;
    const matrix<double> M = plainDesign(n, p, X, Y, how);
    const int P = M.nbcols - 1;
    const int last = P + 1;
    plain_fit fit(P);
    fit.W = plainSum2(w, n);
    if (how.noConstant == 0) {
        plainCorrelations(fit, M, 1, last, w);
    } else {
        plainUncentred(fit, M, w, [](double si, double sj) {
            return si != MISSING_DBL && sj != MISSING_DBL && si * sj > epsilon;
        });
    }
    int entered = P;
    for (int k = 1; k <= P; ++k) {
        if (plainCheckIfIn(fit.T, P, k, how.tolerance) > how.tolerance) {
            test::plainPackedSweep(fit.T, P + 1, k);
        } else {
            fit.t(last, k) = 0.0;
            fit.sd(k) = 0.0;
            --entered;
        }
    }
    for (int j = 1; j <= last; ++j) {
        for (int i = 1; i <= last; ++i) {
            out.swept.vbset(i, j, fit.t(i, j));
        }
        storeChecked(out.means, j - 1, fit.mean(j));
        storeChecked(out.deviations, j - 1, fit.sd(j));
    }
    const double df = how.noConstant == 0 ? fit.W - (entered + 1) : fit.W - entered;
    for (int k = 1; k <= P; ++k) {
        if (std::fabs(fit.sd(k)) > 1e-12) {
            storeChecked(out.coefficients, k - 1, fit.t(last, k) * fit.sd(last) / fit.sd(k));
            if (df > epsilon && fit.W > epsilon) {
                storeChecked(out.errors, k - 1,
                             std::sqrt(std::fabs(fit.t(k, k) * fit.r()) / df) * fit.sd(last) / fit.sd(k));
            }
        }
    }
    if (how.noConstant != 0) {
        storeChecked(out.coefficients, P, 0.0);
    } else {
        double intercept = fit.mean(last);
        double square = out.errors[P];
        if (df > epsilon && fit.W > epsilon) {
            square = (fit.sd(last) * fit.sd(last)) * (fit.W - 1) * fit.r() / df / fit.W;
        }
        for (int k = 1; k <= P; ++k) {
            intercept = entered == 0 ? intercept : intercept - fit.mean(k) * out.coefficients[k - 1];
            const double part = fit.mean(k) * out.errors[k - 1];
            square = square + part * part;
        }
        storeChecked(out.coefficients, P, intercept);
        for (int i = 1; i <= P - 1; ++i) {
            for (int j = i + 1; j <= P; ++j) {
                if (std::fabs(fit.sd(i) * fit.sd(j)) - epsilon > 0) {
                    square = square - (2 * fit.t(j, i)) * fit.r() * (fit.sd(last) * fit.sd(last)) *
                                          fit.mean(i) * fit.mean(j) / (fit.sd(i) * fit.sd(j)) / df;
                }
            }
        }
        storeChecked(out.errors, P, std::sqrt(square));
    }
    plainFitted(M, P, out.coefficients, out.fitted);
}

/** The form in blocks, of which `M` has the columns side by side and the response last. */
inline void plainLeastSquaresInBlocks(const matrix<double>& M, const std::vector<int>& sizes,
                                      const matrix<double>& w, short int noConstant, double tolerance,
                                      fit_tables& out)
{
    constexpr double epsilon = 2.220446049250313e-16;
    const int n = M.nbrows;
    const int P = M.nbcols - 1;
    const int last = P + 1;
    plain_fit fit(P);
    fit.W = plainSum2(w, n);
    std::vector<std::pair<int, int>> blocks;
    int next = 1;
    for (const int size : sizes) {
        if (size > 0) {
            blocks.emplace_back(next, next + size - 1);
            next += size;
        }
    }
    blocks.back().second += 1;
    if (noConstant != 0) {
        plainUncentred(fit, M, w, [](double si, double sj) { return si * sj > epsilon; });
    } else {
        for (std::size_t b = 0; b < blocks.size(); ++b) {
            plainCorrelations(fit, M, blocks[b].first, blocks[b].second, w);
            for (std::size_t a = 0; a < b; ++a) {
                for (int i = blocks[a].first; i <= blocks[a].second; ++i) {
                    for (int j = blocks[b].first; j <= blocks[b].second; ++j) {
                        const pair_sums sums =
                            sumsOfPair([&](int r) { return M.getElement(r, i - 1); },
                                       [&](int r) { return M.getElement(r, j - 1); }, n, nullptr, &w);
                        const double divisor = denominatorOf(sums.s, sums.c, {-1, -1});
                        const double product = (sums.cii / divisor) * (sums.cjj / divisor);
                        fit.t(i, j) = std::fabs(product) - 1e-12 > 0
                                          ? (sums.cij / divisor) / std::sqrt(product)
                                          : MISSING_DBL;
                    }
                }
            }
        }
    }
    int entered = P;
    for (int k = 1; k <= P; ++k) {
        if (plainCheckIfIn(fit.T, P, k, tolerance) > tolerance) {
            test::plainPackedSweep(fit.T, P + 1, k);
        } else {
            fit.sd(k) = 0.0;
            --entered;
        }
    }
    const int e = n - P - 1;
    for (int k = 1; k <= P; ++k) {
        if (std::fabs(fit.sd(k)) > 1e-12) {
            storeChecked(out.coefficients, k - 1, fit.t(last, k) * fit.sd(last) / fit.sd(k));
        }
        if (fit.sd(k) == 0.0) {
            storeChecked(out.errors, k - 1, 0.0);
        } else if (std::fabs(fit.sd(k)) > 1e-12) {
            const double q = std::fabs(fit.t(k, k) * fit.r()) / e;
            storeChecked(out.errors, k - 1,
                         e == 0  ? 0.0
                         : q < 0 ? MISSING_DBL
                                 : std::sqrt(q) * fit.sd(last) / fit.sd(k));
        }
    }
    if (noConstant != 0) {
        storeChecked(out.coefficients, P, 0.0);
    } else {
        double intercept = fit.mean(last);
        double square = 0.0;
        const double g = fit.W - P - 1;
        if (n - P != 1) {
            square = (fit.sd(last) * fit.sd(last)) * (fit.W - 1) * fit.r() / g / fit.W;
        }
        for (int k = 1; k <= P; ++k) {
            intercept = entered == 0 ? intercept : intercept - fit.mean(k) * out.coefficients[k - 1];
            const double part = fit.mean(k) * out.errors[k - 1];
            square = square + part * part;
        }
        storeChecked(out.coefficients, P, intercept);
        for (int i = 1; i <= P - 1; ++i) {
            for (int j = i + 1; j <= P; ++j) {
                const double product = fit.sd(i) * fit.sd(j);
                if (std::fabs(product) - epsilon > 0) {
                    if (product * g != 0) {
                        square = square - (2 * fit.t(j, i)) * fit.r() * (fit.sd(last) * fit.sd(last)) *
                                              fit.mean(i) * fit.mean(j) / product / g;
                    } else {
                        square = 0.0;
                    }
                }
            }
        }
        storeChecked(out.errors, P, square < 0 ? MISSING_DBL : std::sqrt(square));
    }
    plainFitted(M, P, out.coefficients, out.fitted);
}

} // namespace korvel::reference

#endif
