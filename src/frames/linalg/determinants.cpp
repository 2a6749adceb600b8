#include "frames/linalg/determinants.h"

#include "frames/frame.h"
#include "linalg/determinants.h"

using namespace korvel;

double VB_M_Determinant(const double* a, int n, short int* status)
{
    auto table = frame::insteadOfCopy(a, n, n);
    return M_Determinant(&table, n, status, 0);
}

double Cpp_M_LogDeterminant(const double* a, int n)
{
    auto table = frame::insteadOfCopy(a, n, n);
    return M_LogDeterminant(&table, n);
}

double VB_M_DeterminantTriang(const double* a, int n, short int* status)
{
    auto table = frame::insteadOfCopy(a, n, n);
    return M_DeterminantTriang(&table, n, status);
}
