#include "frames/statistics/cross_covariance.h"

#include "frames/frame.h"
#include "statistics/cross_covariance.h"

using namespace korvel;

int VB_M_CorrMatMat(const double* x, int rows, int colsX, const double* y, int colsY, double* out,
                    const short int* iMissing, const double* w, short int bCorr, short int bSquare,
                    short int bUnbiased, short int bFreq, short int bUndefinedIsZero)
{
    auto found = frame::borrow(out, colsX, colsY);
    auto left = frame::besides(found, x, rows, colsX);
    auto right = frame::besides(found, y, rows, colsY);
    auto weights = frame::borrow(w, rows);
    auto* result = &found;
    return M_CorrMatMat(&left, rows, colsX, &right, colsY, result, frame::readOnly(iMissing), &weights, bCorr,
                        bSquare, bUnbiased, bFreq, bUndefinedIsZero);
}

int VB_M_CorrMatMatSPV(Hostarray** x, int rows, int colsX, Hostarray** y, int colsY, Hostarray** out,
                       const short int* iMissing, const double* w, short int bCorr, short int bSquare,
                       short int bUnbiased, short int bFreq, short int bUndefinedIsZero)
{
    const auto left = frame::chunks(x, colsX, rows);
    const auto right = frame::chunks(y, colsY, rows);
    const auto found = frame::chunks(out, colsY, colsX);
    auto weights = frame::borrow(w, rows);
    return M_CorrMatMatSPV(left.get(), rows, colsX, right.get(), colsY, found.get(),
                           frame::readOnly(iMissing), &weights, bCorr, bSquare, bUnbiased, bFreq,
                           bUndefinedIsZero);
}

double Cpp_V_Correl2W(const double* x, int n, const double* y, const double* w)
{
    auto left = frame::borrow(x, n);
    auto right = frame::borrow(y, n);
    auto weights = frame::borrow(w, n);
    return V_Correl2W(&left, n, &right, &weights);
}
