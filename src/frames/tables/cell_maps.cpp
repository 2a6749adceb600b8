#include "frames/tables/cell_maps.h"

#include "frames/frame.h"
#include "tables/cell_maps.h"

using namespace korvel;

namespace
{

using core_map = void (*)(matrix<double>*, int, int, matrix<double>*);

int map(core_map core, const double* x, int rows, int cols, double* y)
{
    auto result = frame::filling(y, rows, frame::columns(cols));
    auto values = frame::source(result, x, rows, frame::columns(cols));
    core(&values, rows, frame::columns(cols), &result);
    return 0;
}

} // namespace

int VB_M_LogMatrix(const double* x, int rows, int cols, double* y)
{
    return map(M_LogMatrix, x, rows, cols, y);
}

int VB_M_Log10Matrix(const double* x, int rows, int cols, double* y)
{
    return map(M_Log10Matrix, x, rows, cols, y);
}

int Cpp_M_SquareRootAij(const double* x, int rows, int cols, double* y)
{
    return map(M_SquareRootAij, x, rows, cols, y);
}

int Cpp_M_SquareRootAij2(double* x, int rows, int cols)
{
    auto values = frame::borrow(x, rows, frame::columns(cols));
    M_SquareRootAij2(&values, rows, frame::columns(cols));
    return 0;
}

int Cpp_M_SubstractFirstCol2(double* x, int rows, int cols)
{
    auto values = frame::borrow(x, rows, cols);
    M_SubstractFirstCol2(&values, rows, cols);
    return 0;
}

short int VB_M_IsInIntervalSPV(Hostarray** x, int rows, int cols, double lo, double hi, short int bOpen,
                               short int bSkipMissing)
{
    const auto columns = frame::chunks(x, cols, rows);
    return M_IsInIntervalSPV(columns.get(), rows, cols, lo, hi, bOpen, bSkipMissing);
}
