#include "statistics/normalize.h"

#include "statistics/kept_cells.h"
#include "statistics/stand_ins.h"
#include "statistics/vector_sums.h"

#include <cmath>

namespace
{

using korvel::no_flags;
using korvel::withFlags;

/** The sum of x * x * w over the cells of a column that are kept. */
template <class Column, class Flags>
double sumOfSquares(const Column& column, int rows, Flags flags, const matrix<double>* w)
{
    const auto sumOver = [=](auto x, auto weights) {
        double sum = 0.0;
        for (int i = 0; i < rows; ++i) {
            // A sum that starts at +0.0 does not change when +0.0 is added: no branch on what is left out.
            const double square = x[i] * x[i] * weights[i];
            sum += flags[i] == 0 && x[i] != MISSING_DBL ? square : 0.0;
        }
        return sum;
    };
    if (w == nullptr) {
        return korvel::withCells([&](auto x) { return sumOver(x, korvel::unit_weights{}); }, column);
    }
    return korvel::withCells(sumOver, column, korvel::readVector(*w, rows));
}

/** (x / s) * sqrt(n / (n - 1)) for a column of `rows` cells with the given sum of squares. */
auto normalizing(double sumOfSquares, int rows)
{
    const double n = rows;
    return [root = std::sqrt(sumOfSquares), factor = std::sqrt(n / (n - 1.0))](double x) {
        return x / root * factor;
    };
}

void divideByRoot(matrix<double>& x, int n, double sumOfSquares)
{
    korvel::changingVector(x).change(0, n, no_flags{},
                                     [root = std::sqrt(sumOfSquares)](double value) { return value / root; });
}

void multiply(matrix<double>& x, int n, double factor)
{
    korvel::changingVector(x).change(0, n, no_flags{}, [=](double value) { return value * factor; });
}

} // namespace

void V_Norm(matrix<double>*& x, int n)
{
    divideByRoot(*x, n, V_SumSq(x, n));
}

void V_NormW(matrix<double>*& x, int n, matrix<double>* w)
{
    divideByRoot(*x, n, V_SumSqW(x, n, w));
}

void V_NormToVal(matrix<double>*& x, int n, double value)
{
    multiply(*x, n, std::sqrt(value / V_SumSq(x, n)));
}

void V_NormToValW(matrix<double>*& x, int n, double value, matrix<double>* w)
{
    multiply(*x, n, std::sqrt(value / V_SumSqW(x, n, w)));
}

void M_Normalize(matrix<double>*& x, int rows, int cols, matrix<double>* w, short int* iMissing)
{
    withFlags(iMissing, [&](auto flags) {
        for (int j = 0; j < cols; ++j) {
            const double sum = sumOfSquares(korvel::reading(*x).column(j, rows), rows, flags, w);
            korvel::changing(*x).change(j, rows, flags, normalizing(sum, rows));
        }
    });
}

void M_NormalizeMatrix(matrix<double>*& x, int rows, int cols, matrix<double>*& y, int yRows,
                       matrix<double>*& z, int zRows)
{
    for (int j = 0; j < cols; ++j) {
        const double sum = sumOfSquares(korvel::reading(*x).column(j, rows), rows, no_flags{}, nullptr);
        korvel::changeAlike(j, normalizing(sum, rows), {{x, rows}, {y, yRows}, {z, zRows}});
    }
}
