#include "frames/linalg/triangular_inverse.h"

#include "frames/frame.h"
#include "linalg/triangular_inverse.h"

using namespace korvel;

int VB_M_InverseTriang(const double* t, int n, short int lowerFlag, double* inverse, double tolerance)
{
    auto result = frame::borrow(inverse, n, n);
    auto table = frame::besides(result, t, n, n);
    auto* place = &result;
    return M_InverseTriang(&table, n, lowerFlag, place, tolerance);
}
