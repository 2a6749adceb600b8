#include "frames/linalg/lu_inverse.h"

#include "frames/frame.h"
#include "linalg/inverse1.h"

using namespace korvel;

int VB_M_Inverse1(const double* a, int n, double* inverse, short int* error, double tolerance)
{
    auto table = frame::borrow(a, n, n);
    auto result = frame::borrow(inverse, n, n);
    return Inverse1(&table, &result, error, tolerance);
}
