#include "frames/vector_duplicate.h"

#include "frames/frame.h"
#include "tables/columns.h"

using namespace korvel;

namespace
{

template <class From, class To>
int duplicate(From* x, int rows, int cols, int col, int from, int to, To* y, int yRows, int yCols, int row,
              int yCol)
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

int VB_V_DuplicateDbl(double* x, int rows, int cols, int col, int from, int to, double* y, int yRows,
                      int yCols, int row, int yCol)
{
    return duplicate(x, rows, frame::columns(cols), col, from, to, y, yRows, frame::columns(yCols), row,
                     yCol);
}

int VB_V_DuplicateLng(int* x, int rows, int cols, int col, int from, int to, int* y, int yRows, int yCols,
                      int row, int yCol)
{
    return duplicate(x, rows, frame::columns(cols), col, from, to, y, yRows, frame::columns(yCols), row,
                     yCol);
}

int VB_V_DuplicateDblToLng(double* x, int rows, int cols, int col, int from, int to, int* y, int yRows,
                           int yCols, int row, int yCol)
{
    return duplicate(x, rows, frame::columns(cols), col, from, to, y, yRows, frame::columns(yCols), row,
                     yCol);
}

int VB_V_DuplicateLngToDbl(int* x, int rows, int cols, int col, int from, int to, double* y, int yRows,
                           int yCols, int row, int yCol)
{
    return duplicate(x, rows, frame::columns(cols), col, from, to, y, yRows, frame::columns(yCols), row,
                     yCol);
}

int VB_V_DuplicateStr(OLECHAR** x, int rows, int cols, int col, int from, int to, OLECHAR** y, int yRows,
                      int yCols, int row, int yCol)
{
    return duplicate(x, rows, frame::columns(cols), col, from, to, y, yRows, frame::columns(yCols), row,
                     yCol);
}

int Cpp_V_DuplicateBool(short int* x, int rows, int cols, int col, int from, int to, short int* y, int yRows,
                        int yCols, int row, int yCol)
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
