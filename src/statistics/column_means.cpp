#include "statistics/column_means.h"

#include "statistics/column_moments.h"
#include "statistics/stand_ins.h"

namespace
{

using korvel::reading;
using korvel::storeChecked;

template <class View>
void means(const View& x, int rows, int cols, matrix<double>& found, const matrix<double>* w)
{
    found.Redim(cols, 1, 0.0);
    korvel::forEachColumnMoments(
        x, {rows, nullptr, w}, cols, {},
        [&](int j, const korvel::column_moments& column) { storeChecked(found, j, column.mean); });
}

/** A mean and the sum of the weights behind it. */
struct running_mean {
    double sumW = 0.0;
    double mean = 0.0;

    void add(double x, double w)
    {
        sumW += w;
        mean += (x - mean) * w / sumW;
    }
};

/** The mean of the cells above the missing value. */
template <class Cells, class Weights>
double strictMean(Cells x, int n, Weights w)
{
    running_mean state;
    bool any = false;
    for (int i = 0; i < n; ++i) {
        if (x[i] > MISSING_DBL) {
            any = true;
            state.add(x[i], w[i]);
        }
    }
    return any ? state.mean : MISSING_DBL;
}

} // namespace

void M_Mean(matrix<double>* x, int rows, int cols, matrix<double>*& means, matrix<double>* w)
{
    ::means(reading(*x), rows, cols, *means, w);
}

void M_MeanSPV(matrix<double>** x, int rows, int cols, matrix<double>*& means, matrix<double>* w)
{
    ::means(reading(x), rows, cols, *means, w);
}

void M_Mean2(matrix<double>* x, int rows, int cols, matrix<double>* w, matrix<double>* means)
{
    for (int j = 0; j < cols; ++j) {
        const double mean =
            korvel::withCells([rows](auto cells, auto weights) { return strictMean(cells, rows, weights); },
                              reading(*x).column(j, rows), korvel::readVector(*w, rows));
        storeChecked(*means, j, mean);
    }
}

void M_Mean3(matrix<double>* x, int rows, int cols, matrix<double>* means)
{
    for (int j = 0; j < cols; ++j) {
        const double mean =
            korvel::withCells([rows](auto cells) { return strictMean(cells, rows, korvel::unit_weights{}); },
                              reading(*x).column(j, rows));
        storeChecked(*means, j, mean);
    }
}
