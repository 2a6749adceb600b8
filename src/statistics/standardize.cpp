#include "statistics/standardize.h"

#include "statistics/kept_cells.h"
#include "statistics/running_variance.h"
#include "statistics/stand_ins.h"

#include <cmath>

namespace
{

using korvel::changing;
using korvel::resizeResult;
using korvel::running_variance;
using korvel::storeChecked;
using korvel::withCells;
using korvel::withFlags;

/** (x - mean) / sd, where a deviation of 0 is not divided by. */
auto standardizing(double mean, double sd)
{
    return [mean, divisor = sd == 0.0 ? 1.0 : sd](double x) { return (x - mean) / divisor; };
}

/** The state of the one-pass variance after a column. */
template <class Column, class Flags>
running_variance stateAfter(const Column& column, int rows, Flags flags, const matrix<double>* w)
{
    const auto add = [=](auto cells, auto weights) {
        return korvel::accumulate<running_variance>(cells, rows, flags, weights);
    };
    if (w == nullptr) {
        return withCells([=](auto cells) { return add(cells, korvel::unit_weights{}); }, column);
    }
    return withCells(add, column, korvel::readVector(*w, rows));
}

/** Where the statistics of the columns go; each may be null. */
struct statistics_results {
    matrix<double>* means;
    matrix<double>* sds;
    matrix<double>* vars;

    void clear(int cols) const
    {
        for (matrix<double>* result : {means, sds, vars}) {
            if (result != nullptr && cols > 0) {
                result->Redim(cols, 1, 0.0);
            }
        }
    }

    void store(int j, double mean, double sd, double var) const
    {
        const auto storeInto = [j](matrix<double>* result, double value) {
            if (result != nullptr) {
                storeChecked(*result, j, value);
            }
        };
        storeInto(means, mean);
        storeInto(sds, sd);
        storeInto(vars, var);
    }
};

/**
 * Standardises columns up to the first one without a denominator; from there on a result is 0.
 *
 * @param x a `changed_table`
 */
template <class Changed, class Flags>
void standardizeColumns(const Changed& x, int rows, int cols, const statistics_results& statistics,
                        Flags flags, const matrix<double>* w, short int bUnbiased, short int bFreq)
{
    int j = 0;
    for (; j < cols; ++j) {
        const running_variance state = stateAfter(x.source.column(j, rows), rows, flags, w);
        const double denominator = state.denominator(bUnbiased, bFreq);
        if (denominator == 0.0) {
            statistics.store(j, MISSING_DBL, MISSING_DBL, MISSING_DBL);
            break;
        }
        const double variance = state.m2 / denominator;
        const double sd = std::sqrt(variance);
        x.change(j, rows, flags, standardizing(state.mean, sd));
        statistics.store(j, state.mean, sd, variance);
    }
    if (!x.inPlace) {
        const auto zeros = [rows](auto& cells) {
            for (int i = 0; i < rows; ++i) {
                cells.set(i, 0.0);
            }
        };
        for (; j < cols; ++j) {
            withCells(zeros, x.target.column(j, rows));
        }
    }
}

void standardizeVector(matrix<double>& x, int n, const short int* iMissing, const matrix<double>* w,
                       short int bUnbiased, matrix<double>* out)
{
    withFlags(iMissing, [&](auto flags) {
        standardizeColumns(korvel::changingVector(x, out), n, 1, {}, flags, w, bUnbiased, 0);
    });
}

} // namespace

void M_Standardize(matrix<double>* x, int rows, int cols, matrix<double>* out, matrix<double>* means,
                   matrix<double>* sds, matrix<double>* vars, short int* iMissing, matrix<double>* w,
                   short int bUnbiased, short int bFreq)
{
    const statistics_results statistics{means, sds, vars};
    statistics.clear(cols);
    resizeResult(out, x, rows, cols);
    withFlags(iMissing, [&](auto flags) {
        standardizeColumns(changing(*x, out), rows, cols, statistics, flags, w, bUnbiased, bFreq);
    });
}

void V_Standardize2(matrix<double>* x, int n, short int* iMissing, matrix<double>* w, short int bUnbiased)
{
    standardizeVector(*x, n, iMissing, w, bUnbiased, nullptr);
}

void korvel::standardizeInto(matrix<double>& x, int n, const short int* iMissing, const matrix<double>* w,
                             short int bUnbiased, matrix<double>& out)
{
    standardizeVector(x, n, iMissing, w, bUnbiased, &out);
}

int M_StandardizeKnownMeansStDev(matrix<double>* x, int rows, int cols, matrix<double>* means,
                                 matrix<double>* sds, matrix<double>* out, matrix<double>* vars,
                                 short int* iMissing)
{
    resizeResult(out, x, rows, cols);
    const auto table = changing(*x, out);
    withFlags(iMissing, [&](auto flags) {
        for (int j = 0; j < cols; ++j) {
            const double mean = (*means)[j];
            const double sd = sds != nullptr ? (*sds)[j] : korvel::rootOrMissing((*vars)[j]);
            if (mean == MISSING_DBL || sd == MISSING_DBL) {
                table.change(j, rows, flags, [](double) { return MISSING_DBL; });
            } else {
                table.change(j, rows, flags, standardizing(mean, sd));
            }
        }
    });
    return 0;
}

void M_StandardizeApply2(matrix<double>* x, int rows, int cols, matrix<double>* means, matrix<double>* sds)
{
    const auto table = korvel::writing(*x);
    for (int j = 0; j < cols; ++j) {
        const double mean = (*means)[j];
        const double sd = (*sds)[j];
        korvel::changeKept(table.column(j, rows), rows, korvel::no_flags{},
                           [=](double cell) { return sd > 0.0 ? (cell - mean) / sd : MISSING_DBL; });
    }
}
