#include "statistics/conditional_summaries.h"

#include "containers/cells.h"
#include "containers/missing.h"
#include "containers/stretches.h"
#include "statistics/running_variance.h"

namespace
{

using korvel::isMissing;
using korvel::overPositive;
using korvel::withCells;

auto equalTo(double val)
{
    return [val](auto codes) { return codes == val; };
}

constexpr auto aboveZero = [](auto codes) { return codes > 1e-12; };

constexpr auto isPresent = [](auto y) { return !isMissing(y); };
constexpr auto isAboveSentinel = [](double y) { return y > MISSING_DBL; };

/** `state.add(y, w...)` for each row whose code passes `test` and whose value is `kept`. */
template <class State, class Test, class Kept, class Y, class G, class... W>
State stateOf(State start, Test test, Kept kept, const matrix<Y>& y, int n, const matrix<G>& g, const W&... w)
{
    return withCells(
        [=](auto values, auto codes, auto... weights) {
            State state = start;
            korvel::forEachFound(n, test, codes, [&](int i) {
                if (kept(values[i])) {
                    state.add(values[i], weights[i]...);
                }
            });
            return state;
        },
        n, y, g, w...);
}

/** The state after the rows of a group. A code that is missing stands for no group. */
template <class State, class Y, class G, class... W>
State groupState(State start, const matrix<Y>& y, int n, const matrix<G>& g, G val, const W&... w)
{
    return isMissing(val) ? start : stateOf(start, equalTo(val), isPresent, y, n, g, w...);
}

/** Number and sum; `mean` is missing unless the number, or total weight, is greater than 0. */
struct running_sum {
    double sum = 0.0;
    double count = 0.0;

    void add(double y)
    {
        sum += y;
        count += 1.0;
    }

    [[nodiscard]] double sumIfAny() const { return count > 0.0 ? sum : MISSING_DBL; }
    [[nodiscard]] double mean() const { return overPositive(sum, count); }
};

struct running_positive_sum : running_sum {
    void add(double y, double w)
    {
        if (w > 0.0) {
            running_sum::add(w * y);
        }
    }
};

struct running_weighted_sum : running_sum {
    void add(double y, double w)
    {
        sum += w * y;
        count += w;
    }
};

struct running_largest {
    double value = MISSING_DBL;

    void add(double y) { value = y > value ? y : value; }
};

struct running_smallest {
    static constexpr double none = 1.79769313486231e308;
    double value = none;

    void add(double y) { value = y < value ? y : value; }
    [[nodiscard]] double found() const { return value == none ? MISSING_DBL : value; }
};

constexpr auto spreadIfW = [](double w, double d, double sumW) { return (1.0 - w / sumW) * (d * d) * w; };
constexpr auto spreadIfSup0W = [](double w, double d, double sumW) { return (w - w / sumW) * (d * d); };

/** The denominator is the total weight, less 1 when `bUnbiased` is -1. */
template <class State>
double varianceOf(const State& state, short int bUnbiased)
{
    return overPositive(state.m2, state.denominator(bUnbiased, -1));
}

template <class T>
double countEqual(const matrix<T>& x, int n, T val)
{
    const auto isEqual = [val](auto cell) { return cell == val; };
    return withCells([=](auto cells) { return static_cast<double>(korvel::countOf(n, isEqual, cells)); }, n,
                     x);
}

} // namespace

double V_NbIf(matrix<double>* x, int n, double val)
{
    return countEqual(*x, n, val);
}

double V_NbIf(matrix<int>* x, int n, int val)
{
    return countEqual(*x, n, val);
}

double V_NbIfW(matrix<double>* x, int n, matrix<double>* w, double val)
{
    const auto isPositive = [](double weight) { return weight > 0.0; };
    return stateOf(running_sum{}, equalTo(val), isPositive, *w, n, *x).sum;
}

double V_SumIf(matrix<double>* y, int n, matrix<double>* g, double val)
{
    return groupState(running_sum{}, *y, n, *g, val).sumIfAny();
}

double V_SumIf(matrix<double>* y, int n, matrix<int>* g, int val)
{
    return groupState(running_sum{}, *y, n, *g, val).sumIfAny();
}

double V_MeanIf(matrix<double>* y, int n, matrix<double>* g, double val)
{
    return groupState(running_sum{}, *y, n, *g, val).mean();
}

double V_SumIfW(matrix<double>* y, int n, matrix<double>* g, matrix<double>* w, double val)
{
    return groupState(running_positive_sum{}, *y, n, *g, val, *w).sumIfAny();
}

double V_MeanIfW(matrix<double>* y, int n, matrix<double>* g, matrix<double>* w, double val)
{
    return groupState(running_weighted_sum{}, *y, n, *g, val, *w).mean();
}

double V_MaxIf(matrix<double>* y, int n, matrix<double>* g, double val)
{
    return groupState(running_largest{}, *y, n, *g, val).value;
}

double V_MaxIf(matrix<double>* y, int n, matrix<int>* g, int val)
{
    return groupState(running_largest{}, *y, n, *g, val).value;
}

double V_MaxIf(matrix<int>* y, int n, matrix<int>* g, int val)
{
    return groupState(running_largest{}, *y, n, *g, val).value;
}

double V_MinIf(matrix<double>* y, int n, matrix<double>* g, double val)
{
    return groupState(running_smallest{}, *y, n, *g, val).found();
}

double V_MinIf(matrix<double>* y, int n, matrix<int>* g, int val)
{
    return groupState(running_smallest{}, *y, n, *g, val).found();
}

double V_MinIf(matrix<int>* y, int n, matrix<int>* g, int val)
{
    return groupState(running_smallest{}, *y, n, *g, val).found();
}

double V_VarIf(matrix<double>* y, int n, matrix<double>* g, double val, short int bUnbiased)
{
    const auto state = stateOf(korvel::running_count_variance{}, equalTo(val), isPresent, *y, n, *g);
    return overPositive(state.m2, bUnbiased == -1 ? state.count - 1.0 : state.count);
}

double V_VarIfW(matrix<double>* y, int n, matrix<double>* g, matrix<double>* w, double val,
                short int bUnbiased)
{
    return varianceOf(groupState(korvel::running_group_variance(spreadIfW), *y, n, *g, val, *w), bUnbiased);
}

double V_VarIfSup0W(matrix<double>* y, int n, matrix<double>* g, matrix<double>* w, short int bUnbiased)
{
    const korvel::running_group_variance start(spreadIfSup0W);
    return varianceOf(stateOf(start, aboveZero, isAboveSentinel, *y, n, *g, *w), bUnbiased);
}
