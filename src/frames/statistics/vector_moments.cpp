#include "frames/statistics/vector_moments.h"

#include "frames/frame.h"
#include "statistics/vector_moments.h"

using namespace korvel;

int VB_V_MeanVarSkewPKurtP(const double* x, int n, double* mean, double* var, double* skewP, double* kurtP,
                           double* skew, double* kurt, double* seSkew, double* seKurt,
                           const short int* iMissing, const double* w, short int bUnbiased, short int bFreq)
{
    auto values = frame::borrow(x, n);
    auto weights = frame::borrow(w, n);
    V_MeanVarSkewPKurtP(&values, n, *mean, *var, *skewP, *kurtP, *skew, *kurt, *seSkew, *seKurt,
                        frame::readOnly(iMissing), &weights, bUnbiased, bFreq);
    return 0;
}
