#include "fitting/biplot.h"

#include "containers/map_cells.h"
#include "linalg/clear_result.h"
#include "linalg/element_wise.h"
#include "statistics/column_sums.h"

#include <cmath>
#include <vector>

namespace
{

using korvel::reading;
using korvel::writing;

/** Copies rows times a factor for each axis to the rows from `first` on. */
template <class From>
void scaleRows(const From& from, int rows, int axes, const std::vector<double>& factors, matrix<double>& to,
               int first)
{
    for (int j = 0; j < axes; ++j) {
        const double factor = factors[static_cast<std::size_t>(j)];
        korvel::withCells(
            [&](auto& out, auto in) {
                for (int i = 0; i < rows; ++i) {
                    out.set(first + i, in[i] == MISSING_DBL ? MISSING_DBL : in[i] * factor);
                }
            },
            writing(to).column(j, first + rows), from.column(j, rows));
    }
}

template <class Rows>
int transform(const Rows& rowCoordinates, const matrix<double>* extraRowCoordinates,
              const Rows& columnCoordinates, int rows, int extraRows, int columns, int axes,
              const matrix<double>& singularValues, double scale, double alpha, matrix<double>& rowResult,
              matrix<double>& columnResult)
{
    rowResult.Redim(rows + extraRows, axes, 0.0);
    columnResult.Redim(columns, axes, 0.0);
    const auto powers = [&](double exponent) {
        std::vector<double> found;
        for (int j = 0; j < axes; ++j) {
            found.push_back(std::pow(singularValues[j], exponent));
        }
        return found;
    };
    const std::vector<double> ofRows = powers(alpha * 0.5 - 0.5);
    scaleRows(rowCoordinates, rows, axes, ofRows, rowResult, 0);
    if (extraRows > 0) {
        scaleRows(reading(*extraRowCoordinates), extraRows, axes, ofRows, rowResult, rows);
    }
    const std::vector<double> ones(ofRows.size(), 1.0);
    scaleRows(columnCoordinates, columns, axes, alpha == 0.0 ? ones : powers(alpha * -0.5), columnResult, 0);
    if (scale != 1.0) {
        M_ScalarsA(&columnResult, columns, axes, scale < 0.0 ? MISSING_DBL : std::sqrt(scale), &columnResult);
    }
    return 0;
}

template <class From>
void squareCosines(const From& x, int n, int p, const matrix<double>& sums, matrix<double>& result)
{
    for (int j = 0; j < p; ++j) {
        korvel::withCells(
            [&](auto& out, auto in, auto sum) {
                for (int i = 0; i < n; ++i) {
                    if (sum[i] == MISSING_DBL) {
                        out.set(i, MISSING_DBL);
                    } else if (sum[i] > 1e-12) {
                        out.set(i, in[i] * in[i] / sum[i]);
                    }
                }
            },
            writing(result).column(j, n), x.column(j, n), korvel::readVector(sums, n));
    }
}

} // namespace

int BiplotTransData(matrix<double>* rowCoordinates, matrix<double>* extraRowCoordinates,
                    matrix<double>* columnCoordinates, int rows, int extraRows, int columns, int axes,
                    matrix<double>* singularValues, double scale, double alpha, matrix<double>* rowResult,
                    matrix<double>* columnResult)
{
    return transform(reading(*rowCoordinates), extraRowCoordinates, reading(*columnCoordinates), rows,
                     extraRows, columns, axes, *singularValues, scale, alpha, *rowResult, *columnResult);
}

int BiplotTransData(matrix<double>** rowCoordinates, matrix<double>* extraRowCoordinates,
                    matrix<double>** columnCoordinates, int rows, int extraRows, int columns, int axes,
                    matrix<double>* singularValues, double scale, double alpha, matrix<double>* rowResult,
                    matrix<double>* columnResult)
{
    return transform(reading(rowCoordinates), extraRowCoordinates, reading(columnCoordinates), rows,
                     extraRows, columns, axes, *singularValues, scale, alpha, *rowResult, *columnResult);
}

void cComputeCosines(matrix<double>* x, int n, int p, matrix<double>*& result)
{
    matrix<double> sums;
    matrix<double>* place = &sums;
    M_SquaredRows(x, n, p, place);
    korvel::shapeResult(*result, n, p);
    squareCosines(reading(*x), n, p, sums, *result);
}

void cComputeCosinesSPV(matrix3D<matrix<double>>* x, int n, int p, matrix<double>*& result)
{
    matrix<double> sums;
    matrix<double>* place = &sums;
    std::vector<matrix<double>*> columns;
    for (int j = 0; j < p; ++j) {
        columns.push_back(&x->chunks[static_cast<std::size_t>(j)]);
    }
    M_SquaredRowsSPV(columns.data(), n, p, place);
    korvel::shapeResult(*result, n, p);
    squareCosines(reading(*x), n, p, sums, *result);
}

void M_BoldCosines(matrix<int>* positions, int n, matrix<int>* table)
{
    for (int i = 0; i < n; ++i) {
        const int position = (*positions)[i];
        if (position > 0) {
            table->setElement(i, position - 1, -1);
        }
    }
}
