#include "statistics/vector_extremes.h"

#include "containers/cells.h"
#include "statistics/pairs.h"
#include "statistics/stand_ins.h"

#include <algorithm>

namespace
{

using korvel::any;
using korvel::only;
using korvel::pair;
using korvel::pairAt;
using korvel::present;
using korvel::twice;
using korvel::withCells;
namespace lanes = korvel::lanes;
using lanes::any;

struct extremes {
    double smallest;
    double largest;
};

constexpr extremes noExtremes{MISSING_DBL, MISSING_DBL};

/** Choose which of two elements take part. */
constexpr auto presentAndUnflagged = [](pair x, pair unflagged) { return only(unflagged, present(x)); };
constexpr auto everyElement = [](pair, pair unflagged) { return unflagged; };

/** The smallest and the largest so far in each of two lanes. */
struct lane_extremes {
    pair smallest;
    pair largest;

    /** Compares two elements with the extremes so far. One that does not take part becomes a NaN, which never
     * wins. */
    void offer(pair x, pair kept)
    {
        const pair candidate = lanes::onlyOrNaN(korvel::maskOf(kept), x);
        smallest = lanes::smaller(candidate, smallest);
        largest = lanes::larger(candidate, largest);
    }

    void join(const lane_extremes& other)
    {
        smallest = lanes::smaller(other.smallest, smallest);
        largest = lanes::larger(other.largest, largest);
    }
};

/** The position of the first element that takes part, from 0; `n` or more when there is none. */
template <class Cells, class Flags, class Kept>
int firstKept(Cells x, int n, Flags flags, Kept kept)
{
    int i = 0;
    while (i < n && !any(kept(twice(x, i), twice(flags, i)))) {
        ++i;
    }
    return i;
}

/**
 * The extremes of the element at `first` and of those behind it that take part. Four lanes are compared side
 * by side. Only between zeros of different sign does this choose differently from a plain loop, so for a zero
 * the first one is looked up.
 */
template <class Cells, class Flags, class Kept>
extremes extremesFrom(int first, Cells x, int n, Flags flags, Kept kept)
{
    const pair start = twice(x, first);
    lane_extremes even{start, start};
    lane_extremes odd = even;
    int i = first + 1;
    for (; i + 3 < n; i += 4) {
        const pair here = pairAt(x, i);
        const pair next = pairAt(x, i + 2);
        even.offer(here, kept(here, pairAt(flags, i)));
        odd.offer(next, kept(next, pairAt(flags, i + 2)));
    }
    for (; i < n; ++i) {
        even.offer(twice(x, i), kept(twice(x, i), twice(flags, i)));
    }
    even.join(odd);

    const auto signedAsFirst = [&](double value) {
        int k = first;
        while (value == 0.0 && !(x[k] == 0.0 && any(kept(twice(x, k), twice(flags, k))))) {
            ++k;
        }
        return value == 0.0 ? static_cast<double>(x[k]) : value;
    };
    const pair low = lanes::smaller(even.smallest, lanes::secondOf(even.smallest, even.smallest));
    const pair high = lanes::larger(even.largest, lanes::secondOf(even.largest, even.largest));
    return {signedAsFirst(low[0]), signedAsFirst(high[0])};
}

template <class T, class Flags>
extremes keptExtremes(const matrix<T>& x, int n, Flags flags)
{
    const auto find = [=](auto cells) {
        const int first = firstKept(cells, n, flags, presentAndUnflagged);
        return first < n ? extremesFrom(first, cells, n, flags, presentAndUnflagged) : noExtremes;
    };
    return withCells(find, n, x);
}

template <class T>
extremes presentExtremes(const matrix<T>& x, int n)
{
    return keptExtremes(x, n, korvel::no_flags{});
}

template <class T>
double largestKept(const matrix<T>& x, int n, const short int* iMissing)
{
    return korvel::withFlags(iMissing, [&](auto flags) { return keptExtremes(x, n, flags).largest; });
}

template <class T>
void minMax(const matrix<T>& x, int n, double* min, double* max, const short int* iMissing)
{
    const extremes found = keptExtremes(x, n, iMissing);
    *min = found.smallest;
    *max = found.largest;
}

template <class T>
void minMax2(const matrix<T>& x, int n, double* min, double* max, short int bSkipMissing)
{
    const korvel::no_flags flags;
    const auto find = [=](auto cells) -> extremes {
        const int first = bSkipMissing != 0 ? firstKept(cells, n, flags, presentAndUnflagged) : 0;
        if (bSkipMissing != 0 && first >= n) {
            return {MISSING_DBL, static_cast<double>(cells[0])};
        }
        return extremesFrom(first, cells, n, flags, everyElement);
    };
    const extremes found = withCells(find, std::max(n, 1), x);
    *min = found.smallest;
    *max = found.largest;
}

constexpr auto isLess = [](auto x, auto best) { return x < best; };
constexpr auto isNotMore = [](auto x, auto best) { return x <= best; };
constexpr auto isMore = [](auto x, auto best) { return x > best; };

/** How many elements are tested together: few replace the best so far. */
constexpr int together = 16;

/** Whether one of `together` elements from `i` on replaces the best so far. */
template <class Cells, class Replaces>
bool oneReplaces(const Cells& cells, int i, double best, Replaces replaces)
{
    const pair bestTwice = lanes::everywhere<2>(best);
    lanes::mask<2> found{};
#pragma GCC unroll 8
    for (int k = 0; k < together; k += 2) {
        found = lanes::either(found, replaces(pairAt(cells, i + k), bestTwice));
    }
    return any(found);
}

template <class Replaces>
bool oneReplaces(const int* cells, int i, int best, Replaces replaces)
{
    const lanes::integers4 bestFourTimes = lanes::fourTimes(best);
    lanes::integers4 found{};
#pragma GCC unroll 4
    for (int k = 0; k < together; k += 4) {
        found |= replaces(lanes::loadIntegers(cells + i + k), bestFourTimes);
    }
    return lanes::anyOfFour(found);
}

/**
 * Walks from the first element; one that `replaces` the best so far becomes the best. Returns the last best
 * and its position, from 1.
 */
template <class T, class Replaces>
double withPosition(const matrix<T>& x, int n, int* pos, Replaces replaces)
{
    const auto find = [=](auto cells) {
        T best = cells[0];
        int where = 1;
        const auto compareEach = [&](int from, int to) {
            for (int i = from; i < to; ++i) {
                if (replaces(T{cells[i]}, best)) {
                    best = cells[i];
                    where = i + 1;
                }
            }
        };
        int i = 1;
        for (; i + together <= n; i += together) {
            if (oneReplaces(cells, i, best, replaces)) {
                compareEach(i, i + together);
            }
        }
        compareEach(i, n);
        *pos = where;
        return static_cast<double>(best);
    };
    return withCells(find, std::max(n, 1), x);
}

} // namespace

double V_Min(matrix<double>* x, int n, short int* iMissing)
{
    return keptExtremes(*x, n, iMissing).smallest;
}

double V_Min(matrix<int>* x, int n, short int* iMissing)
{
    return keptExtremes(*x, n, iMissing).smallest;
}

double V_Max(matrix<double>* x, int n, short int* iMissing)
{
    return largestKept(*x, n, iMissing);
}

double V_Max(matrix<int>* x, int n, short int* iMissing)
{
    return largestKept(*x, n, iMissing);
}

double V_Min2(const matrix<double>& x, int n)
{
    return presentExtremes(x, n).smallest;
}

double V_Min2(matrix<double>* x, int n)
{
    return V_Min2(*x, n);
}

double V_Min2(matrix<int>* x, int n)
{
    return presentExtremes(*x, n).smallest;
}

double V_Max2(const matrix<double>& x, int n)
{
    return presentExtremes(x, n).largest;
}

double V_Max2(matrix<double>* x, int n)
{
    return V_Max2(*x, n);
}

int V_Max2(matrix<int>* x, int n)
{
    return n < 1 ? MISSING_LNG : static_cast<int>(presentExtremes(*x, n).largest);
}

void V_MinMax(matrix<double>* x, int n, double* min, double* max, short int* iMissing)
{
    minMax(*x, n, min, max, iMissing);
}

void V_MinMax(matrix<int>* x, int n, double* min, double* max, short int* iMissing)
{
    minMax(*x, n, min, max, iMissing);
}

void V_MinMax2(matrix<double>* x, int n, double* min, double* max, short int bSkipMissing)
{
    minMax2(*x, n, min, max, bSkipMissing);
}

void V_MinMax2(matrix<int>* x, int n, double* min, double* max, short int bSkipMissing)
{
    minMax2(*x, n, min, max, bSkipMissing);
}

double V_MinAndMinPos(matrix<double>* x, int n, int* pos, bool bLast)
{
    return bLast ? withPosition(*x, n, pos, isNotMore) : withPosition(*x, n, pos, isLess);
}

double V_MaxAndMaxPos(matrix<double>* x, int n, int* pos)
{
    return withPosition(*x, n, pos, isMore);
}

double V_MaxAndMaxPos(matrix<int>* x, int n, int* pos)
{
    return withPosition(*x, n, pos, isMore);
}
