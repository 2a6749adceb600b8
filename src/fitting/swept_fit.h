/**
 * @file
 * What all forms of the regression have in common: the packed table of terms and response, its sweeps, the
 * sums of products of a model without a constant, and the fitted values.
 */
#ifndef KORVEL_FITTING_SWEPT_FIT_H
#define KORVEL_FITTING_SWEPT_FIT_H

#include "containers/matrix.h"
#include "containers/packed_symmetric.h"
#include "fitting/least_squares.h"
#include "fitting/term_columns.h"
#include "linalg/packed_sweep.h"

#include <cmath>
#include <limits>

namespace korvel
{

inline constexpr double machineEpsilon = std::numeric_limits<double>::epsilon();

/** The packed table of `terms` terms, counted from 1, and the response behind them, with their statistics. */
struct swept_fit {
    explicit swept_fit(int terms);

    int terms;
    int response; ///< number of the response
    int entered;  ///< terms that were not refused
    matrix<double> packed;
    matrix<double> means;
    matrix<double> deviations; ///< 0 for a refused term

    [[nodiscard]] double at(int i, int j) const { return packed.data[packedPlace(i, j)]; }
    void set(int i, int j, double value) { packed.data[packedPlace(i, j)] = value; }

    [[nodiscard]] double mean(int k) const { return means.data[k - 1]; }
    [[nodiscard]] double deviation(int k) const { return deviations.data[k - 1]; }
    [[nodiscard]] double& deviation(int k) { return deviations.data[k - 1]; }

    /** Means, deviations and the correlations with each other of `count` columns, which become those from
     * number `first` on. The weights lie inside their vector. */
    void setCorrelations(matrix<double>* const* columns, int rows, int first, int count,
                         const matrix<double>& weights);

    /** The share of the response's variation that is not explained. */
    [[nodiscard]] double residual() const { return at(response, response); }

    /** Whether a term has a coefficient. */
    [[nodiscard]] bool hasCoefficient(int k) const { return std::fabs(deviation(k)) > 1e-12; }
    [[nodiscard]] double coefficient(int k) const
    {
        return at(response, k) * deviation(response) / deviation(k);
    }

    /** The square of the response's deviation. */
    [[nodiscard]] double spread() const { return deviation(response) * deviation(response); }

    /** Takes the terms in, one after the other. One that does not pass loses its deviation, and `refuse(k)`
     * is called. */
    template <class Refuse>
    void sweepTerms(double tolerance, Refuse refuse)
    {
        for (int k = 1; k <= terms; ++k) {
            if (OLSCheckIfIn(&packed, terms, k, tolerance) > tolerance) {
                M_Sweep(&packed, response, k);
            } else {
                deviation(k) = 0.0;
                --entered;
                refuse(k);
            }
        }
    }

    /**
     * The intercept: the response's mean less the terms' means times their coefficients; the mean alone when
     * every term was refused, whatever stands in the place of their coefficients. Its variance is held in the
     * last element of the standard errors, to which the squares of the means times the errors are added.
     */
    [[nodiscard]] double intercept(const matrix<double>& coefficients, matrix<double>& standardErrors) const;

    /** Calls `take(i, j, product)` for each pair of terms i < j, with the product of their deviations, where
     * that is above the machine epsilon in magnitude. */
    template <class Take>
    void forEachPair(Take take) const
    {
        for (int i = 1; i < terms; ++i) {
            for (int j = i + 1; j <= terms; ++j) {
                const double product = deviation(i) * deviation(j);
                if (std::fabs(product) - machineEpsilon > 0.0) {
                    take(i, j, product);
                }
            }
        }
    }

    /** What a pair takes from the variance of the intercept, `df` being the degrees of freedom. */
    [[nodiscard]] double pairVariance(int i, int j, double product, double df) const
    {
        return 2.0 * at(j, i) * residual() * spread() * mean(i) * mean(j) / product / df;
    }
};

/** Means and deviations of all columns, and of each pair the uncentred sum of products over the sum of the
 * weights less 1 and over both deviations; 0 where `isDefined(si, sj)` is false. The response is the last
 * column; the weights lie inside their vector. */
using deviations_test = bool (*)(double si, double sj);
void fillWithoutConstant(term_columns& columns, matrix<double>& weights, double sumOfWeights,
                         deviations_test isDefined, swept_fit& fit);

/** The fitted values: the last coefficient plus the sum, from 0.0, of those of the terms times their cells
 * that are not missing. */
void writeFitted(const term_columns& columns, int terms, const matrix<double>& coefficients,
                 matrix<double>& fitted);

} // namespace korvel

#endif
