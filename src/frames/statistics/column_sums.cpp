#include "frames/statistics/column_sums.h"

#include "frames/frame.h"
#include "statistics/column_sums.h"

using namespace korvel;

int VB_M_SumByRows(const double* x, int rows, int cols, double* out)
{
    auto table = frame::borrow(x, rows, cols);
    auto sums = frame::borrow(out, rows);
    M_SumByRows(&table, rows, cols, &sums);
    return 0;
}

int VB_M_SumByCols(const double* x, int rows, int cols, double* out)
{
    auto table = frame::borrow(x, rows, cols);
    auto sums = frame::borrow(out, cols);
    sumByColumns(table, rows, cols, sums);
    return 0;
}

double VB_M_SumOfElem(const double* x, int rows, int cols)
{
    return sumOfCells(frame::borrow(x, rows, cols), rows, cols);
}

int Cpp_M_SumBySquareCols(const double* x, int rows, int cols, double* out)
{
    auto table = frame::borrow(x, rows, cols);
    auto sums = frame::borrow(out, cols);
    M_SumBySquareCols(&table, rows, cols, &sums);
    return 0;
}

int Cpp_M_SumBySquareRows(const double* x, int rows, int cols, double* out)
{
    auto table = frame::borrow(x, rows, cols);
    auto sums = frame::borrow(out, rows);
    M_SumBySquareRows(&table, rows, cols, &sums);
    return 0;
}

int VB_M_SquaredRows(const double* x, int rows, int cols, double* out)
{
    auto table = frame::borrow(x, rows, cols);
    auto sums = frame::blank<double>(rows);
    auto* result = &sums;
    M_SquaredRows(&table, rows, cols, result);
    frame::copyOut(sums, out);
    return 0;
}

int VB_M_SquaredColumns(const double* x, int rows, int cols, double* out)
{
    auto table = frame::borrow(x, rows, cols);
    auto sums = frame::blank<double>(cols);
    auto* result = &sums;
    M_SquaredColumns(&table, rows, cols, result);
    frame::copyOut(sums, out);
    return 0;
}
