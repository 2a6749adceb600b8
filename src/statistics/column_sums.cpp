#include "statistics/column_sums.h"

#include "containers/views.h"
#include "statistics/vector_sums.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

namespace
{

using korvel::reading;
using korvel::withCells;
using korvel::writeVector;

constexpr auto itself = [](double cell) { return cell; };
constexpr auto square = [](double cell) { return cell * cell; };

/** What a cell adds: a missing one +0.0, which changes no sum that starts from 0.0. */
template <class Term>
double termOf(double cell, Term term)
{
    return cell == MISSING_DBL ? 0.0 : term(cell);
}

template <class View, class Term>
double sumOfColumn(const View& x, int rows, int j, Term term)
{
    return withCells(
        [=](auto cells) {
            double sum = 0.0;
            for (int i = 0; i < rows; ++i) {
                sum += termOf(cells[i], term);
            }
            return sum;
        },
        x.column(j, rows));
}

template <class View, class Term>
void sumColumns(const View& x, int rows, int cols, Term term, matrix<double>& out)
{
    for (int j = 0; j < cols; ++j) {
        korvel::storeChecked(out, j, sumOfColumn(x, rows, j, term));
    }
}

/** Each row has its own sum; the rows of a strip are summed side by side. */
template <class View, class Term>
void sumRows(const View& x, int rows, int cols, Term term, matrix<double>& out)
{
    constexpr int strip = 256;
    withCells(
        [=](const auto& cells, auto& sums) {
            for (int first = 0; first < rows; first += std::min(strip, rows - first)) {
                const int count = std::min(strip, rows - first);
                std::array<double, strip> running{};
                for (int j = 0; j < cols; ++j) {
                    for (int i = 0; i < count; ++i) {
                        running[static_cast<std::size_t>(i)] += termOf(cells.get(first + i, j), term);
                    }
                }
                for (int i = 0; i < count; ++i) {
                    sums.set(first + i, running[static_cast<std::size_t>(i)]);
                }
            }
        },
        x.table(rows, cols), writeVector(out, rows));
}

} // namespace

double M_Sum2(matrix<double>* x)
{
    return V_Sum2(*x, static_cast<int>(x->nbElem));
}

double M_ColSum2(matrix<double>* x, int rows, int col)
{
    return sumOfColumn(reading(*x), rows, col - 1, itself);
}

void M_SumByRows(matrix<double>* x, int rows, int cols, matrix<double>* out)
{
    sumRows(reading(*x), rows, cols, itself, *out);
}

void M_SumBySquareCols(matrix<double>* x, int rows, int cols, matrix<double>* out)
{
    sumColumns(reading(*x), rows, cols, square, *out);
}

void M_SumBySquareRows(matrix<double>* x, int rows, int cols, matrix<double>* out)
{
    sumRows(reading(*x), rows, cols, square, *out);
}

void M_SquaredRows(matrix<double>* x, int rows, int cols, matrix<double>*& out)
{
    out->Redim(rows, 1, 0.0);
    sumRows(reading(*x), rows, cols, square, *out);
}

void M_SquaredRowsSPV(matrix<double>** x, int rows, int cols, matrix<double>*& out)
{
    out->Redim(rows, 1, 0.0);
    sumRows(reading(x), rows, cols, square, *out);
}

void M_SquaredColumns(matrix<double>* x, int rows, int cols, matrix<double>*& out)
{
    out->Redim(cols, 1, 0.0);
    sumColumns(reading(*x), rows, cols, square, *out);
}

double M_SumDiagPow(matrix<double>* x, int n, int, double p)
{
    double sum = 0.0;
    for (int i = 0; i < n; ++i) {
        sum += std::pow(x->getElement(i, i), p);
    }
    return sum;
}

double M_Sum2Pow(matrix<double>* x, int rows, int cols, double p)
{
    double sum = 0.0;
    withCells(
        [&](const auto& cells) {
            for (int j = 0; j < cols; ++j) {
                for (int i = 0; i < rows; ++i) {
                    sum += std::pow(cells.get(i, j), p);
                }
            }
        },
        reading(*x).table(rows, cols));
    return sum;
}

void korvel::sumByColumns(const matrix<double>& x, int rows, int cols, matrix<double>& out)
{
    sumColumns(reading(x), rows, cols, itself, out);
}

double korvel::sumOfCells(const matrix<double>& x, int rows, int cols)
{
    double sum = 0.0;
    withCells(
        [&](const auto& cells) {
            for (int j = 0; j < cols; ++j) {
                for (int i = 0; i < rows; ++i) {
                    sum += termOf(cells.get(i, j), itself);
                }
            }
        },
        reading(x).table(rows, cols));
    return sum;
}
