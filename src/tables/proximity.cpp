#include "tables/proximity.h"

#include "containers/map_cells.h"

#include <algorithm>

namespace
{

constexpr int neither = 0;
constexpr int similarities = 1;
constexpr int dissimilarities = 2;

template <class View>
int kindOfProximity(const View& table, int rows, int cols)
{
    if (rows != cols || rows < 1) {
        return neither;
    }
    return korvel::withCells(
        [n = rows](auto x) {
            const double first = x.get(0, 0);
            bool canBeSimilar = first != MISSING_DBL;
            bool canBeDissimilar = true;
            for (int j = 0; j < n && (canBeSimilar || canBeDissimilar); ++j) {
                for (int i = 0; i < n; ++i) {
                    const double cell = x.get(i, j);
                    if (i == j) {
                        canBeSimilar = canBeSimilar && cell == first;
                        canBeDissimilar = canBeDissimilar && cell == 0.0;
                    } else if (cell != MISSING_DBL) {
                        canBeSimilar = canBeSimilar && cell <= first;
                        canBeDissimilar = canBeDissimilar && cell >= 0.0;
                    }
                }
            }
            if (canBeDissimilar) {
                return dissimilarities;
            }
            return canBeSimilar ? similarities : neither;
        },
        table.table(rows, cols));
}

} // namespace

int M_CheckIfSimOrDissim(matrix<double>* x, int rows, int cols)
{
    return kindOfProximity(korvel::reading(*x), rows, cols);
}

int M_CheckIfSimOrDissimSPV(matrix<double>** x, int rows, int cols)
{
    return kindOfProximity(korvel::reading(x), rows, cols);
}

void M_TransformSimToDissim(matrix<double>*& x, int n)
{
    double largest = MISSING_DBL;
    for (int j = 0; j < n; ++j) {
        korvel::withCells(
            [&](auto in) {
                for (int i = 0; i < n; ++i) {
                    largest = in[i] > largest ? in[i] : largest;
                }
            },
            korvel::reading(*x).column(j, n));
    }
    korvel::mapCells(
        n, n, [largest](double cell) { return cell == MISSING_DBL ? MISSING_DBL : largest - cell; },
        korvel::writing(*x), korvel::reading(*x));
}
