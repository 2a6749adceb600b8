#include "statistics/error_measures.h"

#include "containers/missing.h"
#include "containers/views.h"
#include "statistics/pairs.h"
#include "statistics/stand_ins.h"
#include "statistics/vector_means.h"
#include "statistics/weighted_total.h"

#include <cmath>
#include <cstdint>
#include <limits>

namespace
{

using korvel::absolute;
using korvel::only;
using korvel::pair;
using korvel::present;
using korvel::weighted_total;
using korvel::withCells;

constexpr auto anyActual = [](pair) { return korvel::pairOf(korvel::lanes::everyLane<2>(true)); };
constexpr auto nonZeroActual = [](pair actual) { return korvel::pairOf(actual != 0.0); };

constexpr auto relativeDistance = [](pair actual, pair predicted, pair w) {
    return w * absolute(1.0 - predicted / actual);
};
constexpr auto relativeDifference = [](pair actual, pair predicted, pair w) {
    return (actual - predicted) * w / actual;
};
constexpr auto distance = [](pair actual, pair predicted, pair w) {
    return w * absolute(actual - predicted);
};

/**
 * The sums of `term(actual, predicted, w)` and of `w` over the rows that count, from position `first` on.
 * @param isUsed which of the present `actual` count
 */
template <class Used, class Term>
weighted_total errorsFrom(int first, const matrix<double>& actual, const matrix<double>& predicted, int n,
                          const matrix<double>* w, Used isUsed, Term term)
{
    const auto termsOf = [=](pair observed, pair forecast, pair weight) {
        const pair kept = only(isUsed(observed), only(present(observed), present(forecast)));
        return korvel::weighted_terms{only(kept, term(observed, forecast, weight)), only(kept, weight)};
    };
    const std::int64_t from = std::int64_t{first} - 1;
    const auto total = [=](auto... cells) { return korvel::totalOf(from, n, termsOf, cells...); };
    // A position before the first lies outside the block as well, which only the checked access knows.
    const std::int64_t reach = from < 0 ? std::numeric_limits<std::int64_t>::max() : n;
    if (w == nullptr) {
        return withCells([=](auto a, auto p) { return total(a, p, korvel::unit_weights{}); }, reach, actual,
                         predicted);
    }
    return withCells(total, reach, actual, predicted, *w);
}

} // namespace

double MAPE(matrix<double>* actual, matrix<double>* predicted, int n, matrix<double>* w, int first)
{
    const weighted_total errors =
        errorsFrom(first != 0 ? first : 1, *actual, *predicted, n, w, nonZeroActual, relativeDistance);
    return errors.sumW == 0.0 ? 100.0 * errors.sum : 100.0 * errors.sum / errors.sumW;
}

double MPE(matrix<double>* actual, matrix<double>* predicted, int n, matrix<double>* w, int first)
{
    weighted_total errors = errorsFrom(first, *actual, *predicted, n, w, nonZeroActual, relativeDifference);
    errors.sum = 100.0 * errors.sum;
    return errors.mean();
}

double MAE(matrix<double>* actual, matrix<double>* predicted, int n, matrix<double>* w, int first)
{
    return errorsFrom(first, *actual, *predicted, n, w, anyActual, distance).mean();
}

double RMSE(matrix<double>* x, int n, int col, matrix<double>* y, double df)
{
    if (col < 1) {
        return 0.0;
    }
    const auto squares = [](pair a, pair b) {
        return only(korvel::pairOf(a > MISSING_DBL), (a - b) * (a - b));
    };
    const double sum =
        withCells([=](auto... cells) { return korvel::sumOf(0, n, squares, cells...); },
                  korvel::reading(*x).column(col - 1, n), korvel::reading(*y).column(col - 1, n));
    return std::sqrt(sum / df);
}

double GetSSE(matrix<double>* y, int n, matrix<double>* w, double& mean)
{
    mean = V_Mean2(y, n);
    const auto termsOf = [centre = mean](pair value, pair weight) {
        const pair kept = present(value);
        const pair d = value - centre;
        return korvel::weighted_terms{only(kept, weight * (d * d)), only(kept, weight)};
    };
    const weighted_total squares =
        withCells([=](auto... cells) { return korvel::totalOf(0, n, termsOf, cells...); }, n, *y, *w);
    return squares.sumW == 0.0 ? MISSING_DBL : squares.sum;
}
