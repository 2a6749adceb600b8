#include "frames/tables/resize.h"

#include "frames/frame.h"
#include "tables/resize.h"

using namespace korvel;

namespace
{

/** `core(&x, rows, cols, &y, newRows, newCols)` copies a table into another shape. */
template <class Cell, class Core>
int resize(Core core, const Cell* x, int rows, int cols, Cell* y, int newRows, int newCols)
{
    auto result = frame::filling(y, newRows, newCols);
    auto table = frame::source(result, x, rows, cols);
    core(&table, rows, cols, &result, newRows, newCols);
    frame::bringBack(result, y);
    return 0;
}

/** `M_CopyResize`, of either element type. */
constexpr auto copyResize = [](auto... arguments) { M_CopyResize(arguments...); };

} // namespace

int VB_M_CopyResize(const double* x, int rows, int cols, double* y, int newRows, int newCols)
{
    return resize(copyResize, x, rows, frame::columns(cols), y, newRows, frame::columns(newCols));
}

int VB_M_CopyResizeBool(const short int* x, int rows, int cols, short int* y, int newRows, int newCols)
{
    return resize(copyResize, x, rows, frame::columns(cols), y, newRows, frame::columns(newCols));
}

int VB_M_CopyResizeStr(OLECHAR* const* x, int rows, int cols, OLECHAR** y, int newRows, int newCols)
{
    return resize(M_CopyResizeStr, x, rows, frame::columns(cols), y, newRows, frame::columns(newCols));
}

int VB_M_CopyToBigger(const double* x, int rows, int cols, double* y, int yRows, int yCols)
{
    auto larger = frame::changing(y, yRows, frame::columns(yCols));
    auto table = frame::besides(larger, x, rows, frame::columns(cols));
    M_CopyToBigger(&table, rows, table.nbcols, &larger);
    return 0;
}
