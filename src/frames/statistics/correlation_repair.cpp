#include "frames/statistics/correlation_repair.h"

#include "containers/matrix3d.h"
#include "frames/frame.h"
#include "statistics/correlation_repair.h"

using namespace korvel;

int Cpp_M_CorrMatFromSymMat(double* x, int n)
{
    auto table = frame::borrow(x, n, n);
    return M_CorrMatFromSymMat(&table, n);
}

int Cpp_M_CorrMatFromSymMatSPV(Hostarray** x, int n)
{
    auto columns = frame::chunks(x, n, n);
    return M_CorrMatFromSymMatSPV(columns.get(), n);
}

int Cpp_M_CorrMatFromSymMatSPV_T(Hostarray** x, int n)
{
    matrix3D<matrix<double>> triangle(n, x);
    return M_CorrMatFromSymMatSPV_T(&triangle, n);
}

int Cpp_M_CovMatFromSymMat(double* x, int n)
{
    auto table = frame::borrow(x, n, n);
    return M_CovMatFromSymMat(&table, n);
}
