#include "frames/linalg/constraint_cleaning.h"

#include "frames/frame.h"
#include "linalg/constraint_cleaning.h"

using namespace korvel;

double VB_M_DeterminantCleaned(const double* a, int n, const int* constraints, short int* status)
{
    auto table = frame::insteadOfCopy(a, n, n);
    auto fixed = frame::borrow(constraints, n);
    return M_DeterminantCleaned(&table, n, &fixed, status);
}

double Cpp_M_DeterminantCleanedSPV_T(Hostarray** a, int n, const int* constraints, short int* status)
{
    const auto columns = frame::triangularChunks(a, n);
    auto fixed = frame::borrow(constraints, n);
    return M_DeterminantCleanedSPV_T(columns.get(), n, &fixed, status);
}

int VB_M_CholDecompCleaned(const double* a, int n, const int* constraints, double* l)
{
    auto factor = frame::changing(l, n, n);
    auto table = frame::besides(factor, a, n, n);
    auto fixed = frame::borrow(constraints, n);
    return M_CholDecompCleaned(&table, n, &fixed, &factor);
}

int CleanConstraintsAndInvert(int n, const int* constraints, const double* h, double* inverse)
{
    auto result = frame::changing(inverse, n, n);
    auto table = frame::besides(result, h, n, n);
    auto fixed = frame::borrow(constraints, n);
    return cCleanConstraintsAndInvert(n, fixed, table, result);
}

int CleanConstraintsAndInvertTriang(int n, const int* constraints, const double* t, short int lowerFlag,
                                    double* inverse)
{
    auto result = frame::changing(inverse, n, n);
    auto table = frame::besides(result, t, n, n);
    auto fixed = frame::borrow(constraints, n);
    return cCleanConstraintsAndInvertTriang(n, &fixed, &table, lowerFlag, &result);
}
