#include "statistics/vector_variance.h"

#include "containers/cells.h"
#include "statistics/running_variance.h"
#include "statistics/stand_ins.h"

#include <cmath>

namespace
{

using korvel::overPositive;
using korvel::withCells;

/** The state after all elements of a vector that are kept, each with its weight. */
template <class State>
State stateAfter(const matrix<double>& x, int n, const short int* iMissing, const matrix<double>& w)
{
    return withCells(
        [=](auto values, auto weights) { return korvel::accumulate<State>(values, n, iMissing, weights); }, n,
        x, w);
}

/** The state after the elements for which `isKept` holds. */
template <class Kept>
korvel::running_count_variance unweightedState(const matrix<double>& x, int n, Kept isKept)
{
    return withCells(
        [=](auto values) {
            korvel::running_count_variance state;
            for (int i = 0; i < n; ++i) {
                if (isKept(values[i])) {
                    state.add(values[i]);
                }
            }
            return state;
        },
        n, x);
}

} // namespace

double V_Var(matrix<double>* x, int n, short int* iMissing, matrix<double>* w, short int bUnbiased,
             short int bFreq)
{
    return stateAfter<korvel::running_variance>(*x, n, iMissing, *w).variance(bUnbiased, bFreq);
}

double V_Var2(matrix<double>* x, int n, short int bUnbiased, short int bFreq)
{
    const auto state = unweightedState(*x, n, [](double value) { return value != MISSING_DBL; });
    if (bUnbiased != -1) {
        return state.m2 / state.count;
    }
    return state.m2 / (state.count - (bFreq == -1 ? 1.0 : state.count / state.count));
}

double V_Stdev(matrix<double>* x, int n, short int* iMissing, matrix<double>* w, short int bUnbiased,
               short int bFreq)
{
    return korvel::deviationFrom(V_Var(x, n, iMissing, w, bUnbiased, bFreq));
}

void V_MeanVar(matrix<double>* x, int n, double* mean, double* var, short int* iMissing, matrix<double>* w,
               short int bUnbiased, short int bFreq)
{
    const auto state = stateAfter<korvel::running_step_variance>(*x, n, iMissing, *w);
    *mean = state.mean;
    *var = state.kept == 0 ? 0.0 : overPositive(state.m2, state.denominator(bUnbiased, bFreq));
}

void V_MeanVarW2(matrix<double>* x, int n, matrix<double>* w, double* mean, double* var, short int bUnbiased,
                 short int bFreq)
{
    const auto state = withCells(
        [=](auto values, auto weights) {
            return korvel::accumulate<korvel::running_guarded_share_variance>(values, n, korvel::no_flags{},
                                                                              weights);
        },
        n, *x, *w);
    *mean = state.shares.mean;
    *var = overPositive(state.shares.m2, state.denominator(bUnbiased, bFreq));
}

void V_MeanStdev(matrix<double>* x, int n, double* mean, double* sd, short int* iMissing, matrix<double>* w,
                 short int bUnbiased, short int bFreq)
{
    double variance = 0.0;
    V_MeanVar(x, n, mean, &variance, iMissing, w, bUnbiased, bFreq);
    *sd = korvel::rootOrMissing(variance);
}

void V_MeanStdev2(matrix<double>* x, int n, short int bUnbiased, double& mean, double& sd)
{
    const auto state = unweightedState(*x, n, [](double value) { return value > MISSING_DBL; });
    mean = state.mean;
    sd = std::sqrt(state.m2 / (bUnbiased == -1 ? state.count - 1.0 : state.count));
}

namespace korvel
{

double unweightedVariance(const matrix<double>& x, int n, short int bUnbiased, short int bFreq)
{
    const auto state = withCells(
        [=](auto values) { return accumulate<running_variance>(values, n, no_flags{}, unit_weights{}); }, n,
        x);
    return state.variance(bUnbiased, bFreq);
}

} // namespace korvel
