#include "frames/tables/proximity.h"

#include "frames/frame.h"
#include "tables/proximity.h"

using namespace korvel;

int VB_M_CheckIfSimOrDissim(const double* x, int rows, int cols)
{
    auto values = frame::borrow(x, rows, cols);
    return M_CheckIfSimOrDissim(&values, rows, cols);
}

int VB_M_CheckIfSimOrDissimSPV(Hostarray** x, int rows, int cols)
{
    const auto columns = frame::chunks(x, cols, rows);
    return M_CheckIfSimOrDissimSPV(columns.get(), rows, cols);
}

int VB_M_TransformSimToDissim(double* x, int n)
{
    auto values = frame::borrow(x, n, n);
    matrix<double>* table = &values;
    M_TransformSimToDissim(table, n);
    return 0;
}
