#include "frames/statistics/vector_means.h"

#include "frames/frame.h"
#include "statistics/vector_means.h"

using namespace korvel;

double VB_V_Mean(const double* x, int n, const short int* iMissing, const double* w)
{
    auto values = frame::borrow(x, n);
    auto weights = frame::borrow(w, n);
    return V_Mean(&values, n, frame::readOnly(iMissing), &weights);
}

double VB_V_MeanAbs(const double* x, int n, const short int* iMissing, const double* w)
{
    auto values = frame::borrow(x, n);
    auto weights = frame::borrow(w, n);
    return V_MeanAbs(&values, n, frame::readOnly(iMissing), &weights);
}

double VB_V_Mean2(const double* x, int n)
{
    return V_Mean2(frame::borrow(x, n), n);
}

double Cpp_V_MeanW2(const double* x, int n, const double* w)
{
    auto values = frame::borrow(x, n);
    auto weights = frame::borrow(w, n);
    return V_MeanW2(&values, n, &weights);
}

double Cpp_V_HarmonicMean(const double* x, int n, const short int* iMissing, const double* w)
{
    auto values = frame::borrow(x, n);
    auto weights = frame::borrow(w, n);
    return V_HarmonicMean(&values, n, frame::readOnly(iMissing), &weights);
}

int Cpp_V_GMeanGSD(const double* x, int n, const short int* iMissing, const double* w, double* gmean,
                   double* gsd)
{
    auto values = frame::borrow(x, n);
    auto weights = frame::borrow(w, n);
    return V_GMeanGSD(&values, n, frame::readOnly(iMissing), &weights, *gmean, *gsd);
}
