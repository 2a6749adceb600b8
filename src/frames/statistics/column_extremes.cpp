#include "frames/statistics/column_extremes.h"

#include "containers/matrix3d.h"
#include "frames/frame.h"
#include "statistics/column_extremes.h"

using namespace korvel;

int VB_M_MinMax(const double* x, int rows, int cols, double* mins, double* maxs, const short int* iMissing,
                short int flag)
{
    auto table = frame::borrow(x, rows, cols);
    auto smallest = frame::borrow(mins, cols);
    auto largest = frame::borrow(maxs, cols);
    M_MinMax(&table, rows, cols, &smallest, &largest, frame::readOnly(iMissing), flag);
    return 0;
}

int VB_M_MinMaxSPV(Hostarray** x, int rows, int cols, double* mins, double* maxs, const short int* iMissing,
                   short int flag)
{
    const auto table = frame::chunks(x, cols, rows);
    auto smallest = frame::borrow(mins, cols);
    auto largest = frame::borrow(maxs, cols);
    M_MinMaxSPV(table.get(), rows, cols, &smallest, &largest, frame::readOnly(iMissing), flag);
    return 0;
}

int VB_M_MinMaxSPV_T(Hostarray** x, int rows, int cols, double* mins, double* maxs, const short int* iMissing,
                     short int flag)
{
    matrix3D<matrix<double>> table(cols, x);
    auto smallest = frame::borrow(mins, cols);
    auto largest = frame::borrow(maxs, cols);
    M_MinMaxSPV_T(&table, rows, cols, &smallest, &largest, frame::readOnly(iMissing), flag);
    return 0;
}

int VB_M_Max(const double* x, int rows, int cols, double* out)
{
    auto table = frame::borrow(x, rows, cols);
    auto found = frame::borrow(out, cols);
    M_Max(&table, rows, cols, &found);
    return 0;
}

int VB_M_Min(const double* x, int rows, int cols, double* out)
{
    auto table = frame::borrow(x, rows, cols);
    auto found = frame::borrow(out, cols);
    M_Min(&table, rows, cols, &found);
    return 0;
}

double Cpp_M_MinAll(const double* x, int rows, int cols)
{
    auto table = frame::borrow(x, rows, cols);
    return M_MinAll(&table, rows, cols);
}
