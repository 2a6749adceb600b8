#include "frames/statistics/vector_tests.h"

#include "frames/frame.h"
#include "statistics/vector_tests.h"

using namespace korvel;

short int VB_V_IsPositive(const double* x, int n, short int bStrict)
{
    auto values = frame::borrow(x, n);
    return V_IsPositive(&values, n, bStrict);
}

short int Cpp_M_IsPositive(const double* x, int rows, int cols, const short int* iMissing, short int bStrict)
{
    return isPositive(frame::borrow(x, rows, frame::columns(cols)), rows, frame::columns(cols), iMissing,
                      bStrict);
}

short int Cpp_M_IsPositive_ST(ST_MVect* x, int rows, int cols, const short int* iMissing, short int bStrict)
{
    const auto table = frame::record<double>(x);
    return isPositive(table, rows, cols, iMissing, bStrict);
}

short int VB_V_IsWeights(const double* x, int n)
{
    auto values = frame::borrow(x, n);
    return V_IsWeights(&values, n);
}

short int Cpp_V_IsWeights_ST(SAFEARRAY** x, int n)
{
    auto values = frame::attach<double>(x);
    return V_IsWeights(&values, n);
}

short int Cpp_V_IsWeightsAndAll1_ST(SAFEARRAY** x, int n, short int* bAll1)
{
    auto values = frame::attach<double>(x);
    return V_IsWeightsAndAll1(&values, n, *bAll1);
}

short int VB_V_IsCWeights(const double* x, int n)
{
    auto values = frame::borrow(x, n);
    return V_IsCWeights(&values, n);
}

short int VB_V_IsIndicator(const double* x, int n)
{
    auto values = frame::borrow(x, n);
    return V_IsIndicator(&values, n);
}

short int VB_V_IsIndicatorSPV(Hostarray** x, int n, int col)
{
    const auto columns = frame::chunks(x, col, n);
    return M_IsIndicatorSPV(columns.get(), n, col);
}

short int VB_V_Is01(const double* x, int n)
{
    auto values = frame::borrow(x, n);
    return V_Is01(&values, n);
}

short int VB_M_IsIn01(const double* x, int rows, int cols)
{
    auto table = frame::borrow(x, rows, frame::columns(cols));
    return M_IsIn01(&table, rows, table.nbcols);
}

short int VB_V_IsInInterval(const double* x, int n, double lo, double hi, short int bOpen,
                            short int bSkipMissing)
{
    auto values = frame::borrow(x, n);
    return V_IsInInterval(&values, n, lo, hi, bOpen, bSkipMissing);
}

short int VB_M_IsLong(const double* x, int rows, int cols)
{
    return isWholeTable(frame::borrow(x, rows, frame::columns(cols)), rows, frame::columns(cols));
}

short int Cpp_M_IsLong_ST(ST_MVect* x, int rows, int cols)
{
    return isWholeTable(frame::record<double>(x), rows, cols);
}

short int VB_V_V1GreaterThanMatCols(const double* v, int n, const double* m, int cols)
{
    auto bounds = frame::borrow(v, n);
    auto table = frame::borrow(m, n, frame::columns(cols));
    return V_V1GreaterThanMatCols(&bounds, n, &table, table.nbcols);
}

short int VB_V_V1inferiorV2(const double* a, int n, const double* b)
{
    auto smaller = frame::borrow(a, n);
    auto larger = frame::borrow(b, n);
    return V_V1inferiorV2(&smaller, n, &larger);
}

short int Cpp_V_FindLng(const int* x, int n, int val)
{
    auto values = frame::borrow(x, n);
    return V_FindLng(&values, n, val);
}

short int Cpp_V_FindStr(OLECHAR* const* x, int n, const OLECHAR* val)
{
    auto texts = frame::readTexts(x, n);
    return V_FindStr(&texts, n, readBstr(frame::readOnly(val)));
}

int VB_V_NbTrue(const short int* x, int n)
{
    return V_NbTrue(frame::readOnly(x), n);
}

int Cpp_V_NbTrue_ST(SAFEARRAY** x, int n)
{
    return countTrue(frame::attach<short int>(x), n);
}

int VB_V_NbTrueFromTo(const short int* x, int from, int to)
{
    return V_NbTrueFromTo(frame::readOnly(x), from, to);
}
