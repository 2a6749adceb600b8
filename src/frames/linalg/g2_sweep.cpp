#include "frames/linalg/g2_sweep.h"

#include "frames/frame.h"
#include "linalg/g2_sweep.h"

using namespace korvel;

int Cpp_M_InverseG2(const double* a, int n, double tolerance, double* g)
{
    auto inverse = frame::borrow(g, n, n);
    auto table = frame::besides(inverse, a, n, n);
    M_InverseG2(&table, n, tolerance, &inverse);
    return 0;
}

int Cpp_M_InverseG2_ST(ST_MVect* a, int n, double tolerance, ST_MVect* g)
{
    auto table = frame::record<double>(a);
    auto inverse = frame::record<double>(g);
    M_InverseG2_ST(table, n, tolerance, inverse);
    return 0;
}

int Cpp_M_InverseG2Selective(const double* a, int n, const int* selected, double tolerance, double* g,
                             short int zeroOthers)
{
    auto inverse = frame::borrow(g, n, n);
    auto table = frame::besides(inverse, a, n, n);
    auto pivots = frame::borrow(selected, n);
    M_InverseG2Selective(&table, n, &pivots, tolerance, &inverse, zeroOthers);
    return 0;
}
