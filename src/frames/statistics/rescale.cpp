#include "frames/statistics/rescale.h"

#include "frames/frame.h"
#include "statistics/rescale.h"

using namespace korvel;

int VB_V_Rescale(const double* x, int n, double lo, double hi, const short int* iMissing, double* out)
{
    auto result = frame::borrow(out, n);
    auto values = frame::besides(result, x, n);
    V_Rescale(&values, n, lo, hi, frame::readOnly(iMissing), &result);
    return 0;
}

int VB_V_Rescale2(double* x, int n, double lo, double hi, const short int* iMissing)
{
    auto values = frame::borrow(x, n);
    V_Rescale(&values, n, lo, hi, frame::readOnly(iMissing), nullptr);
    return 0;
}

int VB_M_RescaleByVect(const double* x, int rows, int cols, const double* lo, const double* hi,
                       const short int* iMissing, double* out)
{
    auto result = frame::borrow(out, rows, cols);
    auto table = frame::besides(result, x, rows, cols);
    const auto lower = frame::besides(result, lo, cols);
    const auto upper = frame::besides(result, hi, cols);
    rescaleColumns(table, rows, cols, lower, upper, frame::readOnly(iMissing), &result);
    return 0;
}

int VB_M_RescaleByVect2(double* x, int rows, int cols, const double* lo, const double* hi,
                        const short int* iMissing)
{
    auto table = frame::borrow(x, rows, cols);
    const auto lower = frame::besides(table, lo, cols);
    const auto upper = frame::besides(table, hi, cols);
    rescaleColumns(table, rows, cols, lower, upper, frame::readOnly(iMissing), nullptr);
    return 0;
}

int Cpp_V_ZScores(const double* x, int n, short int bRobust, double* centre, double* scale, double* out)
{
    auto result = frame::borrow(out, n);
    auto values = frame::besides(result, x, n);
    zScores(values, n, bRobust, centre, scale, result);
    return 0;
}
