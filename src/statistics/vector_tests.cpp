#include "statistics/vector_tests.h"

#include "containers/cell_tests.h"
#include "containers/conversion.h"
#include "containers/map_cells.h"
#include "containers/stretches.h"
#include "containers/views.h"
#include "statistics/stand_ins.h"

#include <algorithm>
#include <cstdint>

namespace
{

using korvel::flagOf;
using korvel::orMissing;
using korvel::withCells;

template <class Test, class... T>
bool allElements(int n, Test isGood, const matrix<T>&... x)
{
    return withCells([=](auto... cells) { return korvel::allOf(n, isGood, cells...); }, n, x...);
}

/** What a walk over weights finds. Their sum is above 0 when one of them is, and none is below. */
struct weights_found {
    bool valid;
    bool all1;
};

weights_found weightsIn(const matrix<double>& x, int n)
{
    return withCells(
        [n](auto cells) {
            bool anyAboveZero = false;
            bool all1 = true;
            const bool noneBelow = korvel::whileStretches(0, n, [&](std::int64_t from, std::int64_t to) {
                const auto every = [&](auto test) { return korvel::allBetween(from, to, test, cells); };
                all1 = all1 && every(orMissing([](auto w) { return w == 1.0; }));
                anyAboveZero = anyAboveZero || !every([](auto w) { return w <= 0.0; });
                return every(orMissing(korvel::isZeroOrMore));
            });
            return weights_found{noneBelow && anyAboveZero, all1};
        },
        n, x);
}

template <class Column>
short int isIndicator(const Column& column, int n)
{
    return withCells(
        [n](auto cells) {
            const bool zerosAndOnes = korvel::allOf(n, korvel::isZeroOrOne, cells);
            return flagOf(zerosAndOnes && !korvel::allOf(
                                              n, [](auto x) { return x == 0.0; }, cells));
        },
        column);
}

/** Calls `use` with the test for positive cells. */
template <class Use>
short int withPositive(short int bStrict, Use use)
{
    return flagOf(bStrict == 0 ? use(orMissing(korvel::isZeroOrMore)) : use(orMissing(korvel::isAboveZero)));
}

template <class View>
short int positiveTable(const View& table, int rows, int cols, const short int* iMissing, short int bStrict)
{
    return withPositive(bStrict, [&](auto isGood) {
        if (iMissing == nullptr) {
            return korvel::allCells(rows, cols, isGood, table);
        }
        const auto goodColumn = [&](auto cells) {
            for (int i = 0; i < rows; ++i) {
                if (iMissing[i] == 0 && !isGood(cells[i])) {
                    return false;
                }
            }
            return true;
        };
        int j = 0;
        while (j < cols && withCells(goodColumn, table.column(j, rows))) {
            ++j;
        }
        return j >= cols;
    });
}

constexpr auto isTrue = [](short int cell) { return cell == -1; };

int columnsOf(const cST_MVect<double>& x, int cols)
{
    return std::min(cols, static_cast<int>(x.Vectors.size()));
}

} // namespace

short int V_IsPositive(matrix<double>* x, int n, short int bStrict)
{
    return withPositive(bStrict, [&](auto isGood) { return allElements(n, isGood, *x); });
}

short int V_IsWeights(matrix<double>* x, int n)
{
    return flagOf(weightsIn(*x, n).valid);
}

short int V_IsWeightsAndAll1(matrix<double>* x, int n, short int& bAll1)
{
    const weights_found found = weightsIn(*x, n);
    bAll1 = flagOf(found.all1);
    return flagOf(found.valid);
}

short int V_IsCWeights(matrix<double>* x, int n)
{
    return flagOf(allElements(n, korvel::isWhole, *x) && weightsIn(*x, n).valid);
}

short int V_Is01(matrix<double>* x, int n)
{
    return flagOf(allElements(n, korvel::isZeroOrOne, *x));
}

short int V_IsIndicator(matrix<double>* x, int n)
{
    return isIndicator(korvel::readVector(*x, n), n);
}

short int M_IsIndicatorSPV(matrix<double>** x, int n, int col)
{
    return isIndicator(korvel::reading(x).column(col - 1, n), n);
}

short int M_IsIn01(matrix<double>* x, int rows, int cols)
{
    return flagOf(korvel::allCells(rows, cols, korvel::isWithin(0.0, 1.0), korvel::reading(*x)));
}

short int V_IsInInterval(matrix<double>* x, int n, double lo, double hi, short int bOpen,
                         short int bSkipMissing)
{
    const auto test = [&](auto isGood) { return allElements(n, isGood, *x); };
    return flagOf(korvel::withInterval(lo, hi, bOpen, bSkipMissing, test));
}

short int V_V1GreaterThanMatCols(matrix<double>* v, int n, matrix<double>* m, int cols)
{
    const auto isCovered = [n](auto bounds, auto cells) {
        return korvel::allOf(
            n, [](auto bound, auto cell) { return bound >= cell; }, bounds, cells);
    };
    int j = 0;
    while (j < cols && withCells(isCovered, korvel::readVector(*v, n), korvel::reading(*m).column(j, n))) {
        ++j;
    }
    return flagOf(j >= cols);
}

short int V_V1inferiorV2(matrix<double>* a, int n, matrix<double>* b)
{
    return flagOf(allElements(
        n, [](auto first, auto second) { return first <= second; }, *a, *b));
}

short int V_FindLng(matrix<int>* x, int n, int val)
{
    return flagOf(!allElements(
        n, [val](int cell) { return cell != val; }, *x));
}

short int V_FindStr(matrix<text>* x, int n, text val)
{
    return flagOf(!allElements(
        n, [&val](const text& cell) { return cell != val; }, *x));
}

int V_NbTrue(short int* x, int n)
{
    return V_NbTrueFromTo(x, 1, n);
}

int V_NbTrueFromTo(short int* x, int from, int to)
{
    const std::int64_t first = std::int64_t{from} - 1;
    return static_cast<int>(korvel::countOf(to - first, isTrue, x + first));
}

namespace korvel
{

int countTrue(const matrix<short int>& x, int n)
{
    return static_cast<int>(withCells([n](auto cells) { return countOf(n, isTrue, cells); }, n, x));
}

short int isPositive(const matrix<double>& x, int rows, int cols, const short int* iMissing,
                     short int bStrict)
{
    return positiveTable(reading(x), rows, cols, iMissing, bStrict);
}

short int isPositive(const cST_MVect<double>& x, int rows, int cols, const short int* iMissing,
                     short int bStrict)
{
    return positiveTable(reading(x), rows, columnsOf(x, cols), iMissing, bStrict);
}

short int isWholeTable(const matrix<double>& x, int rows, int cols)
{
    return flagOf(allCells(rows, cols, isWhole, reading(x)));
}

short int isWholeTable(const cST_MVect<double>& x, int rows, int cols)
{
    return flagOf(allCells(rows, columnsOf(x, cols), isWhole, reading(x)));
}

} // namespace korvel
