#include "frames/linalg/reductions.h"

#include "frames/frame.h"
#include "linalg/reductions.h"

using namespace korvel;

double VB_M_Trace(const double* a, int n)
{
    auto table = frame::borrow(a, n, n);
    return M_Trace(&table, n);
}

double VB_M_FrobeniusNorm(const double* a, int n, int p, const double* b)
{
    auto left = frame::borrow(a, n, p);
    auto right = frame::borrow(b, n, p);
    return M_FrobeniusNorm(&left, n, p, &right);
}

double Cpp_M_RowSumNorm(const double* a, int n, int m)
{
    auto table = frame::borrow(a, n, m);
    return M_RowSumNorm(&table, n, m);
}
