#include "frames/tables/triangular.h"

#include "frames/frame.h"
#include "tables/triangular.h"

using namespace korvel;

int VB_M_IsTriangular(double* x, int n, short int bMirror)
{
    auto values = frame::borrow(x, n, n);
    return M_IsTriangular(values, n, bMirror);
}

int VB_M_IsTriangularSPV(Hostarray** x, int n, short int bMirror)
{
    const auto columns = frame::chunks(x, n, n);
    return M_IsTriangularSPV(columns.get(), n, bMirror);
}
