#include "frames/linalg/gauss.h"

#include "frames/frame.h"
#include "linalg/gauss.h"

using namespace korvel;

int VB_M_Gauss(double* a, int n, int m, double* b)
{
    auto table = frame::borrow(a, n, n);
    auto sides = frame::borrow(b, n, m);
    return M_Gauss(&table, n, m, &sides, false, false);
}

int VB_V_Gauss(double* a, int n, double* b)
{
    auto table = frame::borrow(a, n, n);
    auto side = frame::borrow(b, n);
    return M_Gauss(&table, n, 1, &side, false, false);
}

int Cpp_V_Gauss_ST(ST_MVect* a, int n, ST_Vect* b)
{
    auto table = frame::record<double>(a);
    auto side = frame::record<double>(b);
    return V_Gauss_ST(table, n, side);
}
