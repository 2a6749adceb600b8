#include "frames/ordering/sort_by_column.h"

#include "frames/frame.h"
#include "ordering/sort_by_column.h"

using namespace korvel;

namespace
{

template <class T>
int sortInPlaceByColumn(T* x, int rows, int cols, int keyCol, int from, int to, short int bDesc)
{
    auto table = frame::borrow(x, rows, cols);
    SortQMatrixCol(&table, rows, cols, keyCol, from, to, bDesc != 0);
    return 0;
}

template <class T>
int sortInPlaceByAllColumns(T* x, int rows, int cols)
{
    auto table = frame::borrow(x, rows, cols);
    SortMatrixSeqQ(&table, rows, cols);
    return 0;
}

template <class T>
int sortInPlaceByColumns(T* x, int rows, int cols, int p1, int p2)
{
    auto table = frame::borrow(x, rows, cols);
    SortMatrixSeqQP1toP2(&table, rows, cols, p1, p2);
    return 0;
}

} // namespace

int Cpp_SortQMatrixCol(double* x, int rows, int cols, int keyCol, int from, int to, short int bDesc)
{
    return sortInPlaceByColumn(x, rows, cols, keyCol, from, to, bDesc);
}

int Cpp_SortQMatrixColLng(int* x, int rows, int cols, int keyCol, int from, int to, short int bDesc)
{
    return sortInPlaceByColumn(x, rows, cols, keyCol, from, to, bDesc);
}

int Cpp_SortQMatrixColStr(OLECHAR** x, int rows, int cols, int keyCol, int from, int to, short int bDesc)
{
    auto table = frame::readTexts(x, rows, cols);
    SortQMatrixCol(&table, rows, cols, keyCol, from, to, bDesc != 0);
    frame::writeTexts(table, x);
    return 0;
}

int VB_SortMatrixSeqQDbl(double* x, int rows, int cols)
{
    return sortInPlaceByAllColumns(x, rows, cols);
}

int VB_SortMatrixSeqQLng(int* x, int rows, int cols)
{
    return sortInPlaceByAllColumns(x, rows, cols);
}

int VB_SortMatrixSeqQP1toP2Dbl(double* x, int rows, int cols, int p1, int p2)
{
    return sortInPlaceByColumns(x, rows, cols, p1, p2);
}

int VB_SortMatrixSeqQP1toP2Lng(int* x, int rows, int cols, int p1, int p2)
{
    return sortInPlaceByColumns(x, rows, cols, p1, p2);
}
