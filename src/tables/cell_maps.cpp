#include "tables/cell_maps.h"

#include "containers/cell_tests.h"
#include "containers/map_cells.h"
#include "containers/missing.h"

#include <cmath>

void M_LogMatrix(matrix<double>* x, int rows, int cols, matrix<double>* y)
{
    korvel::mapCells(
        rows, cols, [](double cell) { return cell <= 0.0 ? MISSING_DBL : std::log(cell); },
        korvel::writing(*y), korvel::reading(*x));
}

void M_Log10Matrix(matrix<double>* x, int rows, int cols, matrix<double>* y)
{
    korvel::mapCells(
        rows, cols, [](double cell) { return cell <= 0.0 ? MISSING_DBL : std::log10(cell); },
        korvel::writing(*y), korvel::reading(*x));
}

void M_SquareRootAij(matrix<double>* x, int rows, int cols, matrix<double>* y)
{
    korvel::mapCells(rows, cols, korvel::rootOrMissing, korvel::writing(*y), korvel::reading(*x));
}

void M_SquareRootAij2(matrix<double>* x, int rows, int cols)
{
    M_SquareRootAij(x, rows, cols, x);
}

void M_SubstractFirstCol2(matrix<double>* x, int rows, int cols)
{
    // The first column is changed last, because the others are computed from it.
    for (int j = cols - 1; j >= 0; --j) {
        korvel::withCells(
            [rows](auto first, auto& cells) {
                for (int i = 0; i < rows; ++i) {
                    const bool isMissing = cells[i] == MISSING_DBL || first[i] == MISSING_DBL;
                    cells.set(i, isMissing ? MISSING_DBL : cells[i] - first[i]);
                }
            },
            korvel::reading(*x).column(0, rows), korvel::writing(*x).column(j, rows));
    }
}

short int M_IsInIntervalSPV(matrix<double>** x, int rows, int cols, double lo, double hi, short int bOpen,
                            short int bSkipMissing)
{
    const auto test = [&](auto isGood) { return korvel::allCells(rows, cols, isGood, korvel::reading(x)); };
    return korvel::withInterval(lo, hi, bOpen, bSkipMissing, test) ? -1 : 0;
}
