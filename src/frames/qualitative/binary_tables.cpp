#include "frames/qualitative/binary_tables.h"

#include "frames/frame.h"
#include "qualitative/binary_tables.h"

using namespace korvel;

int VB_M_Binarize(const double* x, int n, int p, double* result)
{
    auto binary = frame::filling(result, n, p);
    auto table = frame::source(binary, x, n, p);
    M_Binarize(&table, n, p, &binary);
    return 0;
}

int VB_M_Binarize2(double* x, int n, int p)
{
    auto table = frame::changing(x, n, p);
    M_Binarize2(&table, n, p);
    return 0;
}

int VB_M_Binarize2SPV(Hostarray** x, int p, int n)
{
    const auto columns = frame::chunks(x, p, n);
    M_Binarize2SPV(columns.get(), p, n);
    return 0;
}

short int VB_M_IsDisjTable(const double* x, int n, int p, const short int* rowFlags, int* rowSum)
{
    auto table = frame::borrow(x, n, p);
    return M_IsDisjTable(&table, n, p, frame::readOnly(rowFlags), *rowSum);
}

short int Cpp_V_IsBinaryDbl(const double* x, int n, short int skipMissing)
{
    const auto values = frame::borrow(x, n);
    return V_IsBinary(values, n, skipMissing);
}

short int Cpp_V_IsBinaryDblXY(const double* x, int n, double a, double b, short int skipMissing)
{
    auto values = frame::borrow(x, n);
    return V_IsBinaryXY(&values, n, a, b, skipMissing);
}

short int Cpp_M_IsBinaryDbl_ST(ST_MVect* x, short int skipMissing)
{
    auto table = frame::record<double>(x);
    return M_IsBinary_ST(table, skipMissing);
}

int Cpp_V_ConvertBinaryTo01Dbl(double* x, int n)
{
    auto values = frame::changing(x, n);
    V_ConvertBinaryTo01(&values, n);
    return 0;
}

int Cpp_M_ConvertBinarytoDisjTable(const double* x, int n, int p, double* result)
{
    auto pairs = frame::filling(result, n, 2 * p);
    auto table = frame::source(pairs, x, n, p);
    M_ConvertBinarytoDisjTable(&table, n, p, &pairs);
    return 0;
}
