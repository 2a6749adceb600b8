#include "frames/statistics/row_grouping.h"

#include "frames/frame.h"
#include "statistics/row_grouping.h"

using namespace korvel;

int VB_M_GroupBy(const double* x, int rows, int cols, const int* kinds, int groupCol, int method, int* nOut,
                 double* out)
{
    auto result = frame::borrow(out, rows, cols);
    auto table = frame::besides(result, x, rows, cols);
    auto columnKinds = frame::borrow(kinds, cols);
    M_GroupBy(&table, rows, cols, &columnKinds, groupCol, method, *nOut, &result);
    return 0;
}

int VB_M_GroupByW(const double* x, int rows, int cols, const int* kinds, int groupCol, int method, int* nOut,
                  double* out, const double* w)
{
    auto result = frame::borrow(out, rows, cols);
    auto table = frame::besides(result, x, rows, cols);
    auto columnKinds = frame::borrow(kinds, cols);
    auto weights = frame::copyIn(w, rows);
    M_GroupByW(&table, rows, cols, &columnKinds, groupCol, method, *nOut, &result, &weights);
    return 0;
}

int VB_M_Dedupe(const double* x, int rows, int p, int* nOut, double* out)
{
    auto result = frame::borrow(out, rows, p + 3);
    auto table = frame::besides(result, x, rows, p + 1);
    M_Dedupe(&table, rows, p, *nOut, &result);
    return 0;
}
