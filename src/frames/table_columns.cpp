#include "frames/table_columns.h"

#include "frames/frame.h"
#include "tables/columns.h"

using namespace korvel;

int VB_CopyMatrixColToMatrixCol(double* x, int rows, int cols, int col, double* y, int yRows, int yCols,
                                int colTo, short int bReset)
{
    auto to = frame::changing(y, yRows, frame::columns(yCols));
    const auto from = frame::besides(to, x, rows, frame::columns(cols));
    CopyMatrixColToMatrixCol(from, rows, col, to, colTo, bReset);
    return 0;
}

int VB_CopyMatrixRowToMatrixRow(double* x, int rows, int cols, int row, double* y, int yRows, int yCols,
                                int rowTo, short int bReset)
{
    auto to = frame::changing(y, yRows, frame::columns(yCols));
    auto from = frame::besides(to, x, rows, frame::columns(cols));
    auto* changed = &to;
    CopyMatrixRowToMatrixRow(&from, from.nbcols, row, changed, yRows, rowTo, bReset);
    return 0;
}

int VB_CopyMatrixColToVector(double* x, int rows, int cols, int col, double* y)
{
    auto vector = frame::filling(y, rows);
    const auto table = frame::besides(vector, x, rows, frame::columns(cols));
    CopyMatrixColToVector(table, rows, col, vector);
    return 0;
}

int VB_CopyMatrixColToOneColMatStr(OLECHAR** x, int rows, int cols, int col, OLECHAR** y)
{
    auto vector = frame::filling(y, rows);
    const auto table = frame::besides(vector, x, rows, frame::columns(cols));
    CopyMatrixColToOneColMatStr(table, rows, col, vector);
    frame::bringBack(vector, y);
    return 0;
}

int VB_M_MoveRow(double* x, int rows, int cols, int from, int to)
{
    auto table = frame::changing(x, rows, frame::columns(cols));
    auto* changed = &table;
    M_MoveRow(changed, table.nbcols, from, to);
    return 0;
}
