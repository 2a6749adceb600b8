#include "statistics/distances.h"

#include "containers/transposed_view.h"
#include "containers/views.h"

#include <cmath>

namespace
{

using korvel::reading;
using korvel::readVector;
using korvel::transposed_view;
using korvel::withCells;

/** The distances between the first `count` columns of a view. */
template <class View>
void distancesBetween(const View& x, int count, int coordinates, const matrix<double>& w, matrix<double>& out)
{
    const auto distance = [&](int i, int j) {
        return withCells(
            [=](auto left, auto right, auto weights) {
                double sum = 0.0;
                for (int k = 0; k < coordinates; ++k) {
                    const double d = left[k] - right[k];
                    sum += weights[k] * (d * d);
                }
                return std::sqrt(sum);
            },
            x.column(i, coordinates), x.column(j, coordinates), readVector(w, coordinates));
    };
    withCells(
        [&](auto& to) {
            for (int i = 0; i < count; ++i) {
                for (int j = i; j < count; ++j) {
                    const double found = distance(i, j);
                    to.set(i, j, found);
                    to.set(j, i, found);
                }
            }
        },
        korvel::writing(out).table(count, count));
}

/** The distances of the first `count` columns of a view from a vector. */
template <class View>
void distancesTo(const matrix<double>& v, const View& x, int count, int coordinates, matrix<double>& out)
{
    for (int j = 0; j < count; ++j) {
        const double distance = withCells(
            [=](auto cells, auto goal) {
                double sum = 0.0;
                int kept = 0;
                for (int k = 0; k < coordinates; ++k) {
                    if (cells[k] > MISSING_DBL && goal[k] > MISSING_DBL) {
                        const double d = cells[k] - goal[k];
                        sum += d * d;
                        ++kept;
                    }
                }
                return kept == 0 ? MISSING_DBL : std::sqrt(sum / kept);
            },
            x.column(j, coordinates), readVector(v, coordinates));
        korvel::storeChecked(out, j, distance);
    }
}

} // namespace

void M_EuclidDist2(matrix<double>* x, int rows, int cols, matrix<double>* w, matrix<double>* out,
                   short int bRows, int nRows)
{
    if (bRows == -1) {
        distancesBetween(transposed_view(*x), nRows, cols, *w, *out);
    } else {
        distancesBetween(reading(*x), cols, rows, *w, *out);
    }
}

void M_EuclidDistToVector(matrix<double>* x, int rows, int cols, matrix<double>* v, short int bRows,
                          matrix<double>* out)
{
    if (bRows == -1) {
        distancesTo(*v, transposed_view(*x), rows, cols, *out);
    } else {
        distancesTo(*v, reading(*x), cols, rows, *out);
    }
}

void M_GetMaxDistToOrigin(matrix<double>* x, int rows, int cols, double& d, int& row)
{
    d = MISSING_DBL;
    row = 0;
    const transposed_view byRow(*x);
    for (int i = 0; i < rows; ++i) {
        const double distance = withCells(
            [cols](auto cells) {
                double sum = 0.0;
                for (int j = 0; j < cols; ++j) {
                    sum += cells[j] * cells[j];
                }
                return std::sqrt(sum);
            },
            byRow.column(i, cols));
        if (i == 0 || distance > d) {
            d = distance;
            row = i + 1;
        }
    }
}
