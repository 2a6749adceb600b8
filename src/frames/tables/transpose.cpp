#include "frames/tables/transpose.h"

#include "frames/frame.h"
#include "tables/transpose.h"

using namespace korvel;

namespace
{

template <class From, class To>
int transpose(From* x, int rows, int cols, To* y)
{
    auto result = frame::filling(y, cols, rows);
    const auto table = frame::source(result, x, rows, cols);
    M_Transpose(table, rows, cols, result);
    frame::bringBack(result, y);
    return 0;
}

} // namespace

int VB_M_Transpose(const double* x, int rows, int cols, double* y)
{
    return transpose(x, rows, cols, y);
}

int VB_M_TransposeLng(const int* x, int rows, int cols, int* y)
{
    return transpose(x, rows, cols, y);
}

int VB_M_TransposeStr(OLECHAR* const* x, int rows, int cols, OLECHAR** y)
{
    return transpose(x, rows, cols, y);
}

int VB_M_Transpose2(double* x, int rows, int cols)
{
    return transpose(x, rows, cols, x);
}

int VB_M_Transpose2Lng(int* x, int rows, int cols)
{
    return transpose(x, rows, cols, x);
}

int VB_M_Transpose2Str(OLECHAR** x, int rows, int cols)
{
    return transpose(x, rows, cols, x);
}

int VB_M_TransposeSPV(Hostarray** x, int rows, int cols, Hostarray** y)
{
    const auto columns = frame::chunks(x, cols, rows);
    const auto result = frame::chunks(y, rows, cols);
    M_TransposeSPV(columns.get(), rows, cols, result.get());
    return 0;
}
