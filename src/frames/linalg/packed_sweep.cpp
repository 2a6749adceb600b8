#include "frames/linalg/packed_sweep.h"

#include "frames/frame.h"
#include "linalg/packed_sweep.h"

using namespace korvel;

int VB_M_Sweep(double* packed, int n, int k)
{
    auto table = frame::borrow(packed, packedElements(n));
    return M_Sweep(&table, n, k);
}
