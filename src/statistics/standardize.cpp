#include "statistics/standardize.h"

#include "statistics/column_moments.h"
#include "statistics/kept_cells.h"
#include "statistics/stand_ins.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace
{

using korvel::changing;
using korvel::denominator_choice;
using korvel::resizeResult;
using korvel::running_variance;
using korvel::storeChecked;
using korvel::weighted_rows;
using korvel::withFlags;

/** (x - mean) / sd, where a deviation of 0 is not divided by. */
auto standardizing(double mean, double sd)
{
    return [mean, divisor = sd == 0.0 ? 1.0 : sd](double x) { return (x - mean) / divisor; };
}

/** The rows of weight 0 that `V_Var` would count. They only matter to the mean weight. */
std::vector<int> rowsOfWeightZero(const weighted_rows& rows, denominator_choice how)
{
    std::vector<int> found;
    if (rows.weights != nullptr && how.bUnbiased == -1 && how.bFreq != -1) {
        for (int i = 0; i < rows.count; ++i) {
            if (rows.keeps(i) && rows.weight(i) == 0.0) {
                found.push_back(i);
            }
        }
    }
    return found;
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
template <class Changed>
void standardizeColumns(const Changed& x, const weighted_rows& rows, int cols,
                        const statistics_results& statistics, denominator_choice how)
{
    const std::vector<int> weightless = rowsOfWeightZero(rows, how);
    const auto isPresent = [&](int j) { return [&, j](int i) { return x.source.get(i, j) != MISSING_DBL; }; };
    bool hasEnded = false;

    const auto end = [&](int j) {
        if (!hasEnded) {
            statistics.store(j, MISSING_DBL, MISSING_DBL, MISSING_DBL);
            hasEnded = true;
        }
        if (!x.inPlace) {
            x.clear(j, rows.count);
        }
    };
    const auto standardize = [&](int j, running_variance state) {
        state.kept += static_cast<int>(std::count_if(weightless.begin(), weightless.end(), isPresent(j)));
        const double denominator = state.denominator(how.bUnbiased, how.bFreq);
        if (hasEnded || denominator == 0.0) {
            end(j);
            return;
        }
        const double variance = state.m2 / denominator;
        const double sd = std::sqrt(variance);
        withFlags(rows.flags,
                  [&](auto flags) { x.change(j, rows.count, flags, standardizing(state.mean, sd)); });
        statistics.store(j, state.mean, sd, variance);
    };
    korvel::forEachColumnState(x.source, rows, cols, standardize);
}

} // namespace

void M_Standardize(matrix<double>* x, int rows, int cols, matrix<double>* out, matrix<double>* means,
                   matrix<double>* sds, matrix<double>* vars, short int* iMissing, matrix<double>* w,
                   short int bUnbiased, short int bFreq)
{
    const statistics_results statistics{means, sds, vars};
    statistics.clear(cols);
    resizeResult(out, x, rows, cols);
    standardizeColumns(changing(*x, out), {rows, iMissing, w}, cols, statistics, {bUnbiased, bFreq});
}

void V_Standardize2(matrix<double>* x, int n, short int* iMissing, matrix<double>* w, short int bUnbiased)
{
    standardizeColumns(korvel::changingVector(*x), {n, iMissing, w}, 1, {}, {bUnbiased, 0});
}

void korvel::standardizeInto(matrix<double>& x, int n, const short int* iMissing, const matrix<double>* w,
                             short int bUnbiased, matrix<double>& out)
{
    standardizeColumns(korvel::changingVector(x, &out), {n, iMissing, w}, 1, {}, {bUnbiased, 0});
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
