#include "frames/missing/missing_summaries.h"

#include "frames/frame.h"
#include "missing/missing_summaries.h"

using namespace korvel;

double VB_V_SumIfNotMissing(const double* x, int n, const double* y)
{
    auto values = frame::borrow(x, n);
    auto others = frame::borrow(y, n);
    return V_SumIfNotMissing(&values, n, &others);
}

int Cpp_MatToVect_NoMissing(const double* x, int n, int p, double* counts, double* emptyColumns,
                            double* vector)
{
    auto table = frame::borrow(x, n, frame::columns(p));
    auto found = frame::borrow(counts, table.nbcols);
    auto strung = frame::borrow(vector, n, table.nbcols);
    MatToVect_NoMissing(&table, n, table.nbcols, &found, *emptyColumns, &strung);
    return 0;
}

double Cpp_V_MinIgnoreMissing(const double* x, int n)
{
    return smallestPresent(frame::borrow(x, n), n);
}

double Cpp_M_MinIgnoreMissing_ST(ST_MVect* x, int rows, int cols)
{
    return smallestPresent(frame::record<double>(x), rows, cols);
}
