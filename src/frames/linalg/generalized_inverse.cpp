#include "frames/linalg/generalized_inverse.h"

#include "frames/frame.h"
#include "linalg/generalized_inverse.h"

using namespace korvel;

int VB_M_InvGeneralized(const double* a, int n, double* g, double tolerance, int* rank)
{
    auto table = frame::borrow(a, n, n);
    auto inverse = frame::borrow(g, n, n);
    return M_InvGeneralized(&table, n, &inverse, tolerance, *rank);
}

int VB_M_InvGeneralizedSym(const double* a, int n, double* g, double tolerance, int* rank)
{
    auto table = frame::copyIn(a, n, n);
    auto inverse = frame::borrow(g, n, n);
    return M_InvGeneralizedSym(&table, n, &inverse, tolerance, *rank);
}

int VB_M_Rank(const double* a, int n, int p)
{
    auto table = frame::copyIn(a, n, p);
    return M_Rank(&table, n, p);
}
