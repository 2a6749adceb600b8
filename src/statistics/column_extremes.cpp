#include "statistics/column_extremes.h"

#include "containers/views.h"

namespace
{

using korvel::reading;
using korvel::storeChecked;

struct running_extremes {
    double smallest = MISSING_DBL;
    double largest = MISSING_DBL;
    bool any = false;

    void add(double cell)
    {
        if (!any) {
            smallest = largest = cell;
            any = true;
        }
        smallest = cell < smallest ? cell : smallest;
        largest = cell > largest ? cell : largest;
    }
};

/** Adds the cells of column `j` that count, as `counts(i, cell)` says. */
template <class Cells, class Counts>
void addColumn(running_extremes& found, const Cells& cells, int rows, int j, Counts counts)
{
    for (int i = 0; i < rows; ++i) {
        const double cell = cells.get(i, j);
        if (counts(i, cell)) {
            found.add(cell);
        }
    }
}

/** Calls `take(j, extremes)` for each column. */
template <class Table, class Counts, class Take>
void forEachColumn(const Table& table, int rows, int cols, Counts counts, Take take)
{
    korvel::withCells(
        [&](auto& cells) {
            for (int j = 0; j < cols; ++j) {
                running_extremes found;
                addColumn(found, cells, rows, j, counts);
                take(j, found);
            }
        },
        table);
}

constexpr auto isPresent = [](int, double cell) { return cell != MISSING_DBL; };

template <class Table>
void minMax(const Table& table, int rows, int cols, matrix<double>& mins, matrix<double>& maxs,
            const short int* iMissing, short int flag)
{
    const auto counts = [=](int i, double cell) {
        return flag == -1 ? cell != MISSING_DBL : flag == 0 && (iMissing == nullptr || iMissing[i] == 0);
    };
    forEachColumn(table, rows, cols, counts, [&](int j, const running_extremes& found) {
        storeChecked(mins, j, found.smallest);
        storeChecked(maxs, j, found.largest);
    });
}

} // namespace

void M_MinMax(matrix<double>* x, int rows, int cols, matrix<double>* mins, matrix<double>* maxs,
              short int* iMissing, short int flag)
{
    minMax(reading(*x).table(rows, cols), rows, cols, *mins, *maxs, iMissing, flag);
}

void M_MinMaxSPV(matrix<double>** x, int rows, int cols, matrix<double>* mins, matrix<double>* maxs,
                 short int* iMissing, short int flag)
{
    minMax(reading(x).table(rows, cols), rows, cols, *mins, *maxs, iMissing, flag);
}

void M_MinMaxSPV_T(matrix3D<matrix<double>>* x, int rows, int cols, matrix<double>* mins,
                   matrix<double>* maxs, short int* iMissing, short int flag)
{
    minMax(reading(*x).triangle(rows, cols), rows, cols, *mins, *maxs, iMissing, flag);
}

void M_Max(matrix<double>* x, int rows, int cols, matrix<double>* out)
{
    forEachColumn(reading(*x).table(rows, cols), rows, cols, isPresent,
                  [out](int j, const running_extremes& found) { storeChecked(*out, j, found.largest); });
}

void M_Min(matrix<double>* x, int rows, int cols, matrix<double>* out)
{
    forEachColumn(reading(*x).table(rows, cols), rows, cols, isPresent,
                  [out](int j, const running_extremes& found) { storeChecked(*out, j, found.smallest); });
}

double M_MinAll(matrix<double>* x, int rows, int cols)
{
    running_extremes found;
    korvel::withCells(
        [&](const auto& cells) {
            for (int j = 0; j < cols; ++j) {
                addColumn(found, cells, rows, j, isPresent);
            }
        },
        reading(*x).table(rows, cols));
    return found.smallest;
}
