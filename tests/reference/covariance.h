/**
 * @file
 * Plain twins of covariance and correlation tables, with nothing done for speed. Null flags and weights mean
 * none.
 */
#ifndef KORVEL_TESTS_REFERENCE_COVARIANCE_H
#define KORVEL_TESTS_REFERENCE_COVARIANCE_H

#include "reference/vector_variance.h"

#include <cmath>
#include <vector>

namespace korvel::reference
{

/** The sums of a pair of columns over their common rows, not divided yet. */
struct pair_sums {
    double s = 0.0;
    int c = 0;
    double mi = 0.0;
    double mj = 0.0;
    double cij = 0.0;
    double cii = 0.0;
    double cjj = 0.0;

    void add(double xi, double xj, double wi)
    {
        s += wi;
        c += 1;
        if (wi != 0.0) {
            const double di = xi - mi;
            const double dj = xj - mj;
            const double factor = wi - (wi * wi) / s;
            cij += (factor * di) * dj;
            cii += (factor * di) * di;
            cjj += (factor * dj) * dj;
            mi += (wi * di) / s;
            mj += (wi * dj) / s;
        }
    }
};

inline double weightOf(const matrix<double>* w, int r)
{
    return w == nullptr ? 1.0 : (*w)[r];
}

/** The sums of two columns, of which element r is `x(r)` and `y(r)`. */
template <class X, class Y>
pair_sums sumsOfPair(X x, Y y, int rows, const short int* flags, const matrix<double>* w)
{
    pair_sums sums;
    for (int r = 0; r < rows; ++r) {
        if ((flags != nullptr && flags[r] != 0) || x(r) == MISSING_DBL || y(r) == MISSING_DBL) {
            continue;
        }
        sums.add(x(r), y(r), weightOf(w, r));
    }
    return sums;
}

/** The arguments of a table of covariances. */
struct covariance_flags {
    short int corr = 0;
    denominator_flags how{0, 0};
    short int center = 0;
    short int reduce = 0;
    short int undefinedIsZero = 0;
};

/** A table of covariances or correlations, column after column, with the statistics of the columns. */
struct covariance_table {
    int cols;
    std::vector<double> cells;
    std::vector<double> means;
    std::vector<double> vars;

    explicit covariance_table(int n)
        : cols(n), cells(static_cast<std::size_t>(n) * static_cast<std::size_t>(n)),
          means(static_cast<std::size_t>(n)), vars(static_cast<std::size_t>(n))
    {
    }

    double& at(int i, int j) { return cells[static_cast<std::size_t>(i + cols * j)]; }
    double& mean(int i) { return means[static_cast<std::size_t>(i)]; }
    double& var(int i) { return vars[static_cast<std::size_t>(i)]; }
};

/**
 * The table of a table of which cell (r, i) is `x(r, i)`.
 * @param isDefined whether a product of two variances allows a correlation
 * @param afterColumn called after the pairs of each column
 */
template <class X, class IsDefined, class AfterColumn>
covariance_table covariances(X x, int rows, int cols, const short int* flags, const matrix<double>* w,
                             bool correlations, const covariance_flags& how, IsDefined isDefined,
                             AfterColumn afterColumn)
{
    covariance_table out(cols);
    std::vector<bool> common(out.cells.size());
    const double undefined = how.undefinedIsZero != 0 ? 0.0 : MISSING_DBL;
    for (int i = 0; i < cols; ++i) {
        for (int j = i; j < cols; ++j) {
            const pair_sums sums =
                sumsOfPair([&](int r) { return x(r, i); }, [&](int r) { return x(r, j); }, rows, flags, w);
            double v = undefined;
            if (sums.c >= 1) {
                common[static_cast<std::size_t>(i + cols * j)] = true;
                v = sums.cij / denominatorOf(sums.s, sums.c, how.how);
            }
            if (i == j) {
                out.mean(i) = sums.c < 1 ? MISSING_DBL : sums.mi;
                out.var(i) = sums.c < 1 ? MISSING_DBL : v;
            }
            out.at(i, j) = v;
        }
        afterColumn(i, out);
    }
    for (int i = 0; i < cols; ++i) {
        for (int j = i; j < cols; ++j) {
            if (correlations && common[static_cast<std::size_t>(i + cols * j)]) {
                const double p = out.var(i) * out.var(j);
                out.at(i, j) = !isDefined(p) ? undefined : i == j ? 1.0 : out.at(i, j) / std::sqrt(p);
            }
            out.at(j, i) = out.at(i, j);
        }
    }
    return out;
}

/** `M_CovCorr`. */
template <class X>
covariance_table covCorr(X x, int rows, int cols, const short int* flags, const matrix<double>* w,
                         const covariance_flags& how)
{
    return covariances(
        x, rows, cols, flags, w, how.corr != 0, how, [](double p) { return std::fabs(p) > 0.0; },
        [](int, covariance_table&) {});
}

/** `M_CovCorrAndMeanStDevVar`, which may change `x`. */
inline covariance_table covCorrInPlace(matrix<double>& x, int rows, int cols, const short int* flags,
                                       const matrix<double>* w, const covariance_flags& how)
{
    const auto change = [&](int i, covariance_table& found) {
        const double mean = found.mean(i);
        const double var = found.var(i);
        for (int r = 0; r < rows; ++r) {
            const double cell = x.getElement(r, i);
            if ((flags != nullptr && flags[r] != 0) || cell == MISSING_DBL) {
                continue;
            }
            if (how.center == -1 && how.reduce != -1) {
                x.setElement(r, i, cell - mean);
            } else if (how.reduce == -1 && var > 0.0) {
                x.setElement(r, i, (how.center == -1 ? cell - mean : cell) / std::sqrt(var));
            }
        }
    };
    return covariances([&](int r, int i) { return x.getElement(r, i); }, rows, cols, flags, w, how.corr == -1,
                       how, [](double p) { return p > 0.0; }, change);
}

} // namespace korvel::reference

#endif
