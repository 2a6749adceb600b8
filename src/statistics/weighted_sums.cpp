#include "statistics/weighted_sums.h"

#include "containers/record_columns.h"
#include "containers/views.h"

namespace
{

using korvel::reading;
using korvel::writing;

/** The weighted sum of two cells, or 0.0 when either is missing. */
auto sumOf(double a, double b)
{
    return [=](double left, double right) {
        return left == MISSING_DBL || right == MISSING_DBL ? 0.0 : a * left + b * right;
    };
}

/** Columns of which column j has `length(j)` cells. */
template <class First, class Second, class Out, class Length>
void sumColumns(const First& A, const Second& B, int cols, double a, double b, const Out& out, Length length)
{
    const auto sum = sumOf(a, b);
    for (int j = 0; j < cols; ++j) {
        const int rows = length(j);
        korvel::withCells(
            [&](auto left, auto right, auto& to) {
                for (int i = 0; i < rows; ++i) {
                    to.set(i, sum(left[i], right[i]));
                }
            },
            A.column(j, rows), B.column(j, rows), out.column(j, rows));
    }
}

} // namespace

void M_Sums1As2B(matrix<double>* A, int rows, int cols, matrix<double>* B, double a, double b,
                 matrix<double>* out)
{
    sumColumns(reading(*A), reading(*B), cols, a, b, writing(*out), [rows](int) { return rows; });
}

void M_Sums1As2B(matrixSparse* A, int rows, int cols, matrixSparse* B, double a, double b, matrixSparse* out)
{
    // Row by row, so that each new entry goes in near the end.
    const auto sum = sumOf(a, b);
    matrixSparse made(rows, cols, 0.0, false);
    for (int i = 0; i < rows; ++i) {
        for (int j = 0; j < cols; ++j) {
            made.setElement(i, j, sum(A->getElement(i, j), B->getElement(i, j)));
        }
    }
    *out = made;
}

void M_Sums1As2BSPV(matrix<double>** A, int rows, int cols, matrix<double>** B, double a, double b,
                    matrix<double>** out)
{
    sumColumns(reading(A), reading(B), cols, a, b, writing(out), [rows](int) { return rows; });
}

void M_Sums1As2BSPV_T(matrix3D<matrix<double>>* A, int rows, int cols, matrix3D<matrix<double>>* B, double a,
                      double b, matrix3D<matrix<double>>* out)
{
    sumColumns(reading(*A), reading(*B), cols, a, b, writing(*out), [rows](int j) { return rows - j; });
}

void M_Sums1As2B_ST(cST_MVect<double>& A, int rows, int cols, cST_MVect<double>& B, double a, double b,
                    cST_MVect<double>& out)
{
    korvel::column_list left(A, cols);
    korvel::column_list right(B, cols);
    korvel::column_list result(out, cols);
    M_Sums1As2BSPV(left.table(), rows, cols, right.table(), a, b, result.table());
}
