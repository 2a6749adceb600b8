#include "tables/triangular.h"

#include "containers/views.h"

namespace
{

bool isFilled(double cell)
{
    return !(cell == 0.0 || cell == MISSING_DBL);
}

/** Calls `visit(i, j)` for each row i below the diagonal in each column j, until a call returns true. */
template <class Visit>
bool untilOnePair(int n, Visit visit)
{
    for (int j = 0; j < n; ++j) {
        for (int i = j + 1; i < n; ++i) {
            if (visit(i, j)) {
                return true;
            }
        }
    }
    return false;
}

constexpr int bothHalves = 0;
constexpr int lowerHalf = 1;
constexpr int upperHalf = 2;

template <class Cells>
int filledHalf(const Cells& x, int n)
{
    if (!untilOnePair(n, [&](int i, int j) { return isFilled(x.get(i, j)); })) {
        return upperHalf;
    }
    return untilOnePair(n, [&](int i, int j) { return isFilled(x.get(j, i)); }) ? bothHalves : lowerHalf;
}

template <class View>
int checkTriangle(const View& table, int n, short int bMirror)
{
    return korvel::withCells(
        [=](auto& x) {
            const int half = filledHalf(x, n);
            if (bMirror == -1 && half != bothHalves) {
                untilOnePair(n, [&](int i, int j) {
                    half == lowerHalf ? x.set(j, i, x.get(i, j)) : x.set(i, j, x.get(j, i));
                    return false;
                });
            }
            return half;
        },
        table.table(n, n));
}

} // namespace

int M_IsTriangular(matrix<double>& x, int n, short int bMirror)
{
    return checkTriangle(korvel::writing(x), n, bMirror);
}

int M_IsTriangularSPV(matrix<double>** x, int n, short int bMirror)
{
    return checkTriangle(korvel::writing(x), n, bMirror);
}
