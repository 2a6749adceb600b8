#include "frames/tables/remove.h"

#include "frames/frame.h"
#include "tables/remove.h"

#include <algorithm>

using namespace korvel;

namespace
{

template <class Cell>
int removeRows(Cell* x, int rows, int cols, int first, int last)
{
    auto table = frame::changing(x, rows, cols);
    auto* changed = &table;
    M_RemoveRows2(changed, rows, cols, first, last);
    frame::bringBack(table, x);
    return 0;
}

} // namespace

int VB_M_RemoveCol(const double* x, int rows, int cols, int k, double* out)
{
    auto result = frame::filling(out, rows, frame::columns(cols) - 1);
    auto table = frame::source(result, x, rows, frame::columns(cols));
    M_RemoveCol(&table, rows, table.nbcols, k, &result);
    return 0;
}

int VB_M_RemoveRow(const double* x, int rows, int cols, int k, double* out)
{
    auto result = frame::filling(out, std::max(rows, 1) - 1, frame::columns(cols));
    auto table = frame::source(result, x, rows, frame::columns(cols));
    M_RemoveRow(&table, rows, table.nbcols, k, &result);
    return 0;
}

int VB_M_RemoveCols2(double* x, int rows, int cols, int first, int last)
{
    auto table = frame::changing(x, rows, frame::columns(cols));
    M_RemoveCols2(&table, rows, table.nbcols, first, last);
    return 0;
}

int VB_M_RemoveRows2(double* x, int rows, int cols, int first, int last)
{
    return removeRows(x, rows, frame::columns(cols), first, last);
}

int Cpp_M_RemoveRowsStr2(OLECHAR** x, int rows, int cols, int first, int last)
{
    return removeRows(x, rows, frame::columns(cols), first, last);
}

int VB_M_RemoveColsInList(const double* x, int rows, int cols, const double* list, int n, double* out)
{
    auto numbers = frame::borrow(list, n);
    auto result = frame::filling(out, rows, countNotListed(numbers, frame::columns(cols)));
    auto table = frame::source(result, x, rows, frame::columns(cols));
    return M_RemoveColsInList(&table, rows, table.nbcols, &numbers, &result);
}

int VB_M_RemoveRowsInList(const double* x, int rows, int cols, const int* list, int n, double* out)
{
    auto numbers = frame::borrow(list, n);
    auto result = frame::filling(out, countNotListed(numbers, rows), frame::columns(cols));
    auto table = frame::source(result, x, rows, frame::columns(cols));
    return M_RemoveRowsInList(&table, rows, table.nbcols, &numbers, &result);
}
