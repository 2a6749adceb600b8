#include "frames/missing/missing_counts.h"

#include "frames/frame.h"
#include "missing/missing_counts.h"

using namespace korvel;

int VB_V_NbMissing(const double* x, int n)
{
    auto values = frame::borrow(x, n);
    return V_NbMissing(&values, n);
}

int VB_V_NbMissingStr(OLECHAR* const* x, int n)
{
    auto texts = frame::readTexts(x, n);
    return V_NbMissing(&texts, n);
}

int VB_V_NbNonMissing(const double* x, int n)
{
    auto values = frame::borrow(x, n);
    return V_NbNonMissing(&values, n);
}

int VB_M_NbMissing(const double* x, int rows, int cols, int* counts)
{
    auto table = frame::borrow(x, rows, frame::columns(cols));
    auto result = frame::borrow(counts, frame::columns(cols));
    M_NbMissing(&table, rows, table.nbcols, &result);
    return 0;
}

int VB_M_NbMissingStr(OLECHAR* const* x, int rows, int cols, int* counts)
{
    auto table = frame::readTexts(x, rows, frame::columns(cols));
    auto result = frame::borrow(counts, frame::columns(cols));
    M_NbMissing(&table, rows, table.nbcols, &result);
    return 0;
}

int VB_M_NbNonMissing(const double* x, int rows, int cols, int* counts)
{
    auto table = frame::borrow(x, rows, frame::columns(cols));
    auto result = frame::borrow(counts, frame::columns(cols));
    M_NbNonMissing(&table, rows, table.nbcols, &result);
    return 0;
}

int VB_M_NbMissing2(const double* x, int rows, int cols)
{
    auto table = frame::borrow(x, rows, frame::columns(cols));
    return M_NbMissing2(&table, rows, table.nbcols);
}

int VB_M_NbMissing2Str(OLECHAR* const* x, int rows, int cols)
{
    auto table = frame::readTexts(x, rows, frame::columns(cols));
    return M_NbMissing2(&table, rows, table.nbcols);
}

int Cpp_M_NbMissingSPV(Hostarray** x, int rows, int cols)
{
    const auto columns = frame::chunks(x, cols, rows);
    return M_NbMissing2(columns.get(), rows, cols);
}

int VB_M_NbMissingSPV_T(Hostarray** x, int rows, int cols)
{
    const frame::chunk_list<double> columns(x, cols, rows, 0);
    return M_NbMissingSPV_T(columns.get(), rows, cols);
}
