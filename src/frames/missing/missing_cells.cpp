#include "frames/missing/missing_cells.h"

#include "frames/frame.h"
#include "missing/missing_cells.h"

using namespace korvel;

int VB_M_ReplaceMissingByVal(double* x, int rows, int cols, double val)
{
    auto table = frame::borrow(x, rows, frame::columns(cols));
    M_ReplaceMissingByVal(&table, rows, table.nbcols, val);
    return 0;
}

int VB_M_ReplaceMissingByValSPV(Hostarray** x, int rows, int cols, double val)
{
    const auto columns = frame::chunks(x, cols, rows);
    M_ReplaceMissingByValSPV(columns.get(), rows, cols, val);
    return 0;
}

int VB_M_ReplaceMissingByStr(OLECHAR** x, int rows, int cols, const OLECHAR* val)
{
    auto table = frame::changing(x, rows, frame::columns(cols));
    M_ReplaceMissingByStr(&table, rows, table.nbcols, readBstr(frame::readOnly(val)));
    frame::bringBack(table, x);
    return 0;
}

int Cpp_M_ReplaceMissingByVal_ST(ST_MVect* x, int rows, int cols, double val)
{
    auto table = frame::record<double>(x);
    replaceMissing(table, rows, cols, val);
    return 0;
}

int Cpp_M_ReplaceMissingByStr_ST(ST_MVect* x, int rows, int cols, const OLECHAR* val)
{
    auto table = frame::record<text>(x);
    replaceMissing(table, rows, cols, readBstr(frame::readOnly(val)));
    return 0;
}

int Cpp_M_ReplaceByMissing(double* x, int n, int p, const int* marks, int markColumns, short int wholeRow)
{
    auto table = frame::borrow(x, n, frame::columns(p));
    auto marked = frame::borrow(marks, n, frame::columns(markColumns));
    M_ReplaceByMissing(&table, n, table.nbcols, &marked, marked.nbcols, wholeRow);
    return 0;
}

int Cpp_M_ReplaceByMissingIfVal(double* x, int n, int p, const int* marks, int markColumns, int value,
                                short int wholeRow)
{
    auto table = frame::borrow(x, n, frame::columns(p));
    auto marked = frame::borrow(marks, n, frame::columns(markColumns));
    M_ReplaceByMissingIfVal(&table, n, table.nbcols, &marked, marked.nbcols, value, wholeRow);
    return 0;
}

int Cpp_M_IdentifyMissingInMat(const double* x, int rows, int cols, int* marks)
{
    auto table = frame::borrow(x, rows, frame::columns(cols));
    auto marked = frame::borrow(marks, rows, table.nbcols);
    M_IdentifyMissingInMat(&table, rows, table.nbcols, &marked);
    return 0;
}

int Cpp_M_IdentifyMissingInMatSPV(Hostarray** x, int rows, int cols, int* marks)
{
    const auto columns = frame::chunks(x, cols, rows);
    auto marked = frame::borrow(marks, rows, cols);
    M_IdentifyMissingInMatSPV(columns.get(), rows, cols, &marked);
    return 0;
}

int VB_M_SetWeightsToZeroForMissing(const double* x, int n, int p, double* weights, int mode)
{
    auto table = frame::borrow(x, n, frame::columns(p));
    auto weighted = frame::borrow(weights, n, table.nbcols);
    M_SetWeightsToZeroForMissing(&table, n, table.nbcols, &weighted, mode);
    return 0;
}
