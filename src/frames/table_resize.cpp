#include "frames/table_resize.h"

#include "frames/frame.h"
#include "tables/resize.h"

using namespace korvel;

int VB_M_CopyResize(double* x, int rows, int cols, double* y, int newRows, int newCols)
{
    auto result = frame::filling(y, newRows, frame::columns(newCols));
    auto table = frame::besides(result, x, rows, frame::columns(cols));
    M_CopyResize(&table, rows, table.nbcols, &result, newRows, result.nbcols);
    frame::bringBack(result, y);
    return 0;
}

int VB_M_CopyResizeBool(short int* x, int rows, int cols, short int* y, int newRows, int newCols)
{
    auto result = frame::filling(y, newRows, frame::columns(newCols));
    auto table = frame::besides(result, x, rows, frame::columns(cols));
    M_CopyResize(&table, rows, table.nbcols, &result, newRows, result.nbcols);
    frame::bringBack(result, y);
    return 0;
}

int VB_M_CopyResizeStr(OLECHAR** x, int rows, int cols, OLECHAR** y, int newRows, int newCols)
{
    auto result = frame::filling(y, newRows, frame::columns(newCols));
    auto table = frame::besides(result, x, rows, frame::columns(cols));
    M_CopyResizeStr(&table, rows, table.nbcols, &result, newRows, result.nbcols);
    frame::bringBack(result, y);
    return 0;
}

int VB_M_CopyToBigger(double* x, int rows, int cols, double* y, int yRows, int yCols)
{
    auto larger = frame::changing(y, yRows, frame::columns(yCols));
    auto table = frame::besides(larger, x, rows, frame::columns(cols));
    M_CopyToBigger(&table, rows, table.nbcols, &larger);
    return 0;
}
