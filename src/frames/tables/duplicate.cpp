#include "frames/tables/duplicate.h"

#include "frames/frame.h"
#include "tables/duplicate.h"

using namespace korvel;

namespace
{

template <class Cell>
int duplicate(const Cell* x, int rows, int cols, Cell* y, int yRows, int yCols, int row, int col)
{
    auto to = frame::changing(y, yRows, yCols);
    auto from = frame::besides(to, x, rows, cols);
    M_Duplicate(&from, rows, cols, &to, yRows, yCols, row, col);
    frame::bringBack(to, y);
    return 0;
}

template <class T>
int duplicateRecord(ST_MVect* x, int rows, int cols, ST_MVect* y, int yRows, int yCols, int row, int col)
{
    auto from = frame::record<T>(x);
    auto to = frame::record<T>(y);
    M_Duplicate(from, rows, cols, to, yRows, yCols, row, col);
    return 0;
}

} // namespace

int VB_M_DuplicateDbl(const double* x, int rows, int cols, double* y, int yRows, int yCols, int row, int col)
{
    return duplicate(x, rows, frame::columns(cols), y, yRows, frame::columns(yCols), row, col);
}

int VB_M_DuplicateLng(const int* x, int rows, int cols, int* y, int yRows, int yCols, int row, int col)
{
    return duplicate(x, rows, frame::columns(cols), y, yRows, frame::columns(yCols), row, col);
}

int VB_M_DuplicateStr(OLECHAR* const* x, int rows, int cols, OLECHAR** y, int yRows, int yCols, int row,
                      int col)
{
    return duplicate(x, rows, frame::columns(cols), y, yRows, frame::columns(yCols), row, col);
}

int VB_M_DuplicateStrSPV(Hostarray** x, int rows, int cols, OLECHAR** y, int yRows, int yCols, int row,
                         int col)
{
    const auto from = frame::textChunks(x, cols, rows);
    auto to = frame::changing(y, yRows, frame::columns(yCols));
    M_DuplicateStrSPV(from.get(), rows, cols, &to, yRows, to.nbcols, row, col);
    frame::bringBack(to, y);
    return 0;
}

int Cpp_M_DuplicateDbl_ST(ST_MVect* x, int rows, int cols, ST_MVect* y, int yRows, int yCols, int row,
                          int col)
{
    return duplicateRecord<double>(x, rows, cols, y, yRows, yCols, row, col);
}

int Cpp_M_DuplicateStr_ST(ST_MVect* x, int rows, int cols, ST_MVect* y, int yRows, int yCols, int row,
                          int col)
{
    return duplicateRecord<text>(x, rows, cols, y, yRows, yCols, row, col);
}

int Cpp_M_DuplicateDblSPV(Hostarray** x, int rows, int cols, double* y, int yRows, int yCols, int row,
                          int col)
{
    const auto from = frame::chunks(x, cols, rows);
    auto to = frame::changing(y, yRows, frame::columns(yCols));
    M_DuplicateSPV(from.get(), rows, cols, &to, yRows, to.nbcols, row, col);
    return 0;
}

int Cpp_M_DuplicateDblSPV2(const double* x, int rows, int cols, Hostarray** y, int yRows, int yCols, int row,
                           int col)
{
    auto from = frame::borrow(x, rows, frame::columns(cols));
    const auto to = frame::chunks(y, yCols, yRows);
    M_DuplicateSPV2(&from, rows, from.nbcols, to.get(), yRows, yCols, row, col);
    return 0;
}

int Cpp_M_DuplicateDblSPV2_T(const double* x, int rows, int cols, Hostarray** y, int yRows, int yCols,
                             int row, int col)
{
    auto from = frame::borrow(x, rows, frame::columns(cols));
    const frame::chunk_list<double> to(y, yCols, yRows, 0);
    M_DuplicateSPV2_T(&from, rows, from.nbcols, to.get(), yRows, yCols, row, col);
    return 0;
}

int Cpp_M_DuplicateDblSPV3(Hostarray** x, int rows, int cols, Hostarray** y, int yRows, int yCols, int row,
                           int col)
{
    const auto from = frame::chunks(x, cols, rows);
    const auto to = frame::chunks(y, yCols, yRows);
    M_DuplicateSPV3(from.get(), rows, cols, to.get(), yRows, yCols, row, col);
    return 0;
}
