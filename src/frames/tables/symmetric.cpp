#include "frames/tables/symmetric.h"

#include "containers/packed_symmetric.h"
#include "frames/frame.h"
#include "tables/symmetric.h"

using namespace korvel;

int VB_M_Symmetrize(double* x, int rows, int cols)
{
    auto values = frame::borrow(x, rows, cols);
    matrix<double>* table = &values;
    M_Symmetrize(table, rows, cols);
    return 0;
}

int VB_M_SymmetrizeSPV(Hostarray** x, int rows, int cols)
{
    const auto columns = frame::chunks(x, cols, rows);
    M_SymmetrizeSPV(columns.get(), rows, cols);
    return 0;
}

short int VB_M_IsSymmetric(const double* x, int n)
{
    auto values = frame::borrow(x, n, n);
    return M_IsSymmetric(&values, n);
}

short int VB_M_IsSymmetricSPV(Hostarray** x, int n)
{
    const auto columns = frame::chunks(x, n, n);
    return M_IsSymmetricSPV(columns.get(), n);
}

short int VB_M_IsDiagConstant(const double* x, int n)
{
    auto values = frame::borrow(x, n, n);
    return M_IsDiagConstant(&values, n);
}

int Cpp_M_CopySymMatToVector(const double* x, int n, double* v)
{
    auto table = frame::copyIn(x, n, n);
    auto vector = frame::borrow(v, packedLength(n));
    M_CopySymMatToVector(&table, n, &vector);
    return 0;
}

int Cpp_M_CopyVectorToSymMat(const double* v, int n, double* x)
{
    auto vector = frame::copyIn(v, packedLength(n));
    auto table = frame::borrow(x, n, n);
    M_CopyVectorToSymMat(&vector, n, &table);
    return 0;
}
