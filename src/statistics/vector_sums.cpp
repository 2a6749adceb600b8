#include "statistics/vector_sums.h"

#include "containers/cells.h"
#include "platform/wrapping.h"
#include "statistics/pairs.h"
#include "statistics/stand_ins.h"

#include <cstdint>
#include <limits>

namespace
{

using korvel::only;
using korvel::pair;
using korvel::present;
using korvel::sumOf;
using korvel::withCells;

constexpr auto presentCells = [](pair x) { return only(present(x), x); };

constexpr auto keptProducts = [](pair x, pair w, pair unflagged) {
    const pair kept = only(unflagged, only(present(x), present(w)));
    return only(kept, w) * only(kept, x);
};

constexpr auto squares = [](pair x) { return x * x; };

constexpr auto presentSquares = [](pair x) { return squares(presentCells(x)); };

constexpr auto weightedPresentSquares = [](pair x, pair w) {
    const pair value = presentCells(x);
    return value * only(present(x), w) * value;
};

constexpr auto squaredDifferences = [](pair x, pair y) { return squares(x - y); };

constexpr auto weightedSquaredDifferences = [](pair x, pair y, pair w) { return w * squares(x - y); };

constexpr auto products = [](pair x, pair w) { return x * w; };

/** The sum of a term over the first `n` elements. */
template <class Term, class... T>
double sumOverCells(int n, Term term, const matrix<T>&... sources)
{
    return withCells([=](auto... cells) { return sumOf(0, n, term, cells...); }, n, sources...);
}

/** The sum modulo 2^32. */
template <class Cells>
int wrappingSum(Cells x, std::int64_t first, std::int64_t last)
{
    int sum = 0;
    for (std::int64_t i = first; i < last; ++i) {
        sum = korvel::wrappedSum(sum, x[i]);
    }
    return sum;
}

} // namespace

double V_Sum(matrix<double>* x, int n, short int* iMissing, matrix<double>* w)
{
    return korvel::withFlags(iMissing, [&](auto flags) {
        if (w == nullptr) {
            return withCells(
                [&](auto values) { return sumOf(0, n, keptProducts, values, korvel::unit_weights{}, flags); },
                n, *x);
        }
        return withCells(
            [&](auto values, auto weights) { return sumOf(0, n, keptProducts, values, weights, flags); }, n,
            *x, *w);
    });
}

double V_Sum2(const matrix<double>& x, int n)
{
    return sumOverCells(n, presentCells, x);
}

double V_Sum2(matrix<double>* x, int n)
{
    return V_Sum2(*x, n);
}

double V_Sum2(matrix<int>* x, int n)
{
    return withCells([n](auto cells) { return wrappingSum(cells, 0, n); }, n, *x);
}

double V_Sum2(int* x, int n)
{
    return wrappingSum(x, 0, n);
}

double V_SumSq(matrix<double>* x, int n)
{
    return sumOverCells(n, presentSquares, *x);
}

double V_SumSqW(matrix<double>* x, int n, matrix<double>* w)
{
    return sumOverCells(n, weightedPresentSquares, *x, *w);
}

double V_Sq(matrix<double>* x, int n)
{
    return sumOverCells(n, squares, *x);
}

double V_DiffSq(matrix<double>* x, int n, matrix<double>* y)
{
    return sumOverCells(n, squaredDifferences, *x, *y);
}

double V_DiffSqW(matrix<double>* x, int n, matrix<double>* y, matrix<double>* w)
{
    return sumOverCells(n, weightedSquaredDifferences, *x, *y, *w);
}

double V_DiffSqStart(matrix<double>* x, int n, matrix<double>* y, int start)
{
    // Only the checked access handles a position before the first.
    const std::int64_t reach = start < 1 ? std::numeric_limits<std::int64_t>::max() : n;
    const std::int64_t first = std::int64_t{start} - 1;
    return withCells([=](auto... cells) { return sumOf(first, n, squaredDifferences, cells...); }, reach, *x,
                     *y);
}

void V_CuSum(matrix<double>* x, const int& n, matrix<double>* out)
{
    if (n < 1) {
        return;
    }
    const double* const cells = x->data;
    double* const sums = out->data;
    double sum = cells[0];
    sums[0] = sum;
    const auto addTo = [&](std::int64_t i) {
        sum += cells[i];
        sums[i] = sum;
    };
    const auto addPair = [&](std::int64_t i) {
        addTo(i);
        addTo(i + 1);
    };
    const std::int64_t i = korvel::forEachPair(1, n, addPair, cells, sums);
    if (i < n) {
        addTo(i);
    }
}

namespace korvel
{

double sumOfProducts(const matrix<double>& x, int n, const matrix<double>& w)
{
    return sumOverCells(n, products, x, w);
}

double sumFromTo(const double* x, int from, int to)
{
    return sumOf(
        std::int64_t{from} - 1, to, [](pair cells) { return cells; }, x);
}

int sumFromTo(const int* x, int from, int to)
{
    return wrappingSum(x, std::int64_t{from} - 1, to);
}

} // namespace korvel
