#include "frames/tables/columns.h"

#include "frames/frame.h"
#include "tables/columns.h"

using namespace korvel;

namespace
{

template <class From, class To>
int duplicate(const From* x, int rows, int cols, int col, int from, int to, To* y, int yRows, int yCols,
              int row, int yCol)
{
    auto target = frame::changing(y, yRows, yCols);
    auto source = frame::besides(target, x, rows, cols);
    V_Duplicate(&source, col, from, to, &target, row, yCol);
    frame::bringBack(target, y);
    return 0;
}

/** The target goes last, so that texts of the source, which stay, are put back before it. */
template <class T>
int duplicateHostArray(SAFEARRAY** x, int col, int from, int to, SAFEARRAY** y, int row, int yCol)
{
    auto target = frame::attach<T>(y);
    auto source = frame::attach<T>(x);
    V_Duplicate(&source, col, from, to, &target, row, yCol);
    return 0;
}

} // namespace

int VB_CopyMatrixColToMatrixCol(const double* x, int rows, int cols, int col, double* y, int yRows, int yCols,
                                int colTo, short int bReset)
{
    auto to = frame::changing(y, yRows, frame::columns(yCols));
    const auto from = frame::besides(to, x, rows, frame::columns(cols));
    CopyMatrixColToMatrixCol(from, rows, col, to, colTo, bReset);
    return 0;
}

int VB_CopyMatrixRowToMatrixRow(const double* x, int rows, int cols, int row, double* y, int yRows, int yCols,
                                int rowTo, short int bReset)
{
    auto to = frame::changing(y, yRows, frame::columns(yCols));
    auto from = frame::besides(to, x, rows, frame::columns(cols));
    auto* changed = &to;
    CopyMatrixRowToMatrixRow(&from, from.nbcols, row, changed, yRows, rowTo, bReset);
    return 0;
}

int VB_CopyMatrixColToVector(const double* x, int rows, int cols, int col, double* y)
{
    auto vector = frame::filling(y, rows);
    const auto table = frame::source(vector, x, rows, frame::columns(cols));
    CopyMatrixColToVector(table, rows, col, vector);
    return 0;
}

int VB_CopyMatrixColToOneColMatStr(OLECHAR* const* x, int rows, int cols, int col, OLECHAR** y)
{
    auto vector = frame::filling(y, rows);
    const auto table = frame::source(vector, x, rows, frame::columns(cols));
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

int VB_V_DuplicateDbl(const double* x, int rows, int cols, int col, int from, int to, double* y, int yRows,
                      int yCols, int row, int yCol)
{
    return duplicate(x, rows, frame::columns(cols), col, from, to, y, yRows, frame::columns(yCols), row,
                     yCol);
}

int VB_V_DuplicateLng(const int* x, int rows, int cols, int col, int from, int to, int* y, int yRows,
                      int yCols, int row, int yCol)
{
    return duplicate(x, rows, frame::columns(cols), col, from, to, y, yRows, frame::columns(yCols), row,
                     yCol);
}

int VB_V_DuplicateDblToLng(const double* x, int rows, int cols, int col, int from, int to, int* y, int yRows,
                           int yCols, int row, int yCol)
{
    return duplicate(x, rows, frame::columns(cols), col, from, to, y, yRows, frame::columns(yCols), row,
                     yCol);
}

int VB_V_DuplicateLngToDbl(const int* x, int rows, int cols, int col, int from, int to, double* y, int yRows,
                           int yCols, int row, int yCol)
{
    return duplicate(x, rows, frame::columns(cols), col, from, to, y, yRows, frame::columns(yCols), row,
                     yCol);
}

int VB_V_DuplicateStr(OLECHAR* const* x, int rows, int cols, int col, int from, int to, OLECHAR** y,
                      int yRows, int yCols, int row, int yCol)
{
    return duplicate(x, rows, frame::columns(cols), col, from, to, y, yRows, frame::columns(yCols), row,
                     yCol);
}

int Cpp_V_DuplicateBool(const short int* x, int rows, int cols, int col, int from, int to, short int* y,
                        int yRows, int yCols, int row, int yCol)
{
    return duplicate(x, rows, frame::columns(cols), col, from, to, y, yRows, frame::columns(yCols), row,
                     yCol);
}

int Cpp_V_DuplicateDbl_ST(SAFEARRAY** x, int col, int from, int to, SAFEARRAY** y, int row, int yCol)
{
    return duplicateHostArray<double>(x, col, from, to, y, row, yCol);
}

int Cpp_V_DuplicateLng_ST(SAFEARRAY** x, int col, int from, int to, SAFEARRAY** y, int row, int yCol)
{
    return duplicateHostArray<int>(x, col, from, to, y, row, yCol);
}

int Cpp_V_DuplicateStr_ST(SAFEARRAY** x, int col, int from, int to, SAFEARRAY** y, int row, int yCol)
{
    return duplicateHostArray<text>(x, col, from, to, y, row, yCol);
}
