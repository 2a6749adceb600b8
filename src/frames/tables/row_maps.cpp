#include "frames/tables/row_maps.h"

#include "frames/frame.h"
#include "tables/row_maps.h"

using namespace korvel;

int Cpp_M_MaxPosByRow(const double* x, int rows, int cols, int* positions)
{
    auto values = frame::borrow(x, rows, cols);
    auto result = frame::borrow(positions, rows);
    M_MaxPosByRow(&values, rows, cols, &result);
    return 0;
}

int VB_ComputeNewVar(const double* x, int rows, int cols, const double* coefficients, double* out)
{
    auto values = frame::borrow(x, rows, cols);
    auto factors = frame::borrow(coefficients, cols);
    auto result = frame::borrow(out, rows);
    ComputeNewVar(&values, rows, cols, &factors, &result);
    return 0;
}

int Cpp_FilterOnSumOfSquares(const double* x, int rows, int cols, double threshold, short int* kept)
{
    auto values = frame::borrow(x, rows, cols);
    auto flags = frame::borrow(kept, rows);
    return FilterOnSumOfSquares(&values, rows, cols, threshold, &flags);
}
