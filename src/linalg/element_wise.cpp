#include "linalg/element_wise.h"

#include "containers/conversion.h"
#include "containers/map_cells.h"
#include "linalg/clear_result.h"
#include "linalg/transposed_cells.h"

#include <algorithm>
#include <concepts>

using korvel::mapCells;
using korvel::reading;
using korvel::writing;

namespace
{

/** s times a cell, which stays missing when it is. */
auto times(double s)
{
    return [s](double a) { return a == MISSING_DBL ? MISSING_DBL : s * a; };
}

template <class From, class To>
void addValue(matrix<From>& a, int n, int p, double s, matrix<To>& c)
{
    const auto plus = [s](From cell) {
        if constexpr (std::same_as<To, int>) {
            return korvel::truncateToInt(cell + s);
        } else {
            return cell + s;
        }
    };
    mapCells(n, p, plus, writing(c), reading(a));
}

} // namespace

void M_ScalarsA(matrix<double>* A, int n, int p, double s, matrix<double>* C)
{
    mapCells(n, p, times(s), writing(*C), reading(*A));
}

void M_ScalarsA(matrixSparse* A, int n, int p, double s, matrixSparse* C)
{
    mapCells(n, p, times(s), writing(*C), reading(*A));
}

void M_ScalarsA2(matrix<double>* A, int n, int p, double s)
{
    if (writing(*A).table(n, p).inside()) {
        M_ScalarsA(A, n, p, s, A);
        return;
    }
    matrix<double> result(std::max(n, 0), std::max(p, 0), 0.0);
    M_ScalarsA(A, n, p, s, &result);
    mapCells(
        n, p, [](double cell) { return cell; }, writing(*A), reading(result));
}

void M_ScalarsA2(matrixSparse* A, int n, int p, double s)
{
    if (n < 0 || p < 0) {
        return;
    }
    matrixSparse result(n, p, 0.0, false);
    M_ScalarsA(A, n, p, s, &result);
    result.copyMatTo(A);
}

void M_ScalarsTrA(matrix<double>* A, int n, int p, double s, matrix<double>* C)
{
    korvel::clearResult(*C, p, n);
    korvel::mapTransposed(
        n, p, [s](int) { return times(s); }, *A, *C);
}

void M_APlusVal(matrix<double>* A, int n, int p, double s, matrix<double>* C)
{
    addValue(*A, n, p, s, *C);
}

void M_APlusVal(matrix<double>* A, int n, int p, double s, matrix<int>* C)
{
    addValue(*A, n, p, s, *C);
}

void M_APlusVal(matrix<int>* A, int n, int p, double s, matrix<double>* C)
{
    addValue(*A, n, p, s, *C);
}

void M_APlusVal(matrix<int>* A, int n, int p, double s, matrix<int>* C)
{
    addValue(*A, n, p, s, *C);
}

void M_APlusVal2(matrix<double>* A, int n, int p, double s)
{
    addValue(*A, n, p, s, *A);
}

void M_APlusVal2(matrix<int>* A, int n, int p, double s)
{
    addValue(*A, n, p, s, *A);
}

void M_Square(matrix<double>* A, int n, int p)
{
    mapCells(
        n, p, [](double cell) { return cell == MISSING_DBL ? MISSING_DBL : cell * cell; }, writing(*A),
        reading(*A));
}

void M_ProductByElement(matrix<double>* A, int n, int p, matrix<double>* B, matrix<double>* C)
{
    mapCells(
        n, p, [](double a, double b) { return a * b; }, writing(*C), reading(*A), reading(*B));
}

void SumMat(matrix<double>* A, matrix<double>* B, int n, int p, matrix<double>* C)
{
    mapCells(
        n, p, [](double a, double b) { return a + b; }, writing(*C), reading(*A), reading(*B));
}

void korvel::multiplyByValue(matrix<double>& x, int rows, int cols, double s)
{
    mapCells(
        rows, cols, [s](double cell) { return cell * s; }, writing(x), reading(x));
}
