#include "frames/statistics/weighted_sums.h"

#include "frames/frame.h"
#include "statistics/weighted_sums.h"

using namespace korvel;

int VB_M_Sums1As2B(const double* A, int rows, int cols, const double* B, double a, double b, double* out)
{
    auto sums = frame::borrow(out, rows, cols);
    auto left = frame::besides(sums, A, rows, cols);
    auto right = frame::besides(sums, B, rows, cols);
    M_Sums1As2B(&left, rows, cols, &right, a, b, &sums);
    return 0;
}

int Cpp_M_Sums1As2B_ST(ST_MVect* A, int rows, int cols, ST_MVect* B, double a, double b, ST_MVect* out)
{
    auto left = frame::record<double>(A);
    auto right = frame::record<double>(B);
    auto sums = frame::record<double>(out);
    M_Sums1As2B_ST(left, rows, cols, right, a, b, sums);
    return 0;
}
