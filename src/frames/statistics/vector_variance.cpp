#include "frames/statistics/vector_variance.h"

#include "frames/frame.h"
#include "statistics/vector_variance.h"

using namespace korvel;

double VB_V_Var(const double* x, int n, const short int* iMissing, const double* w, short int bUnbiased,
                short int bFreq)
{
    auto values = frame::borrow(x, n);
    auto weights = frame::borrow(w, n);
    return V_Var(&values, n, frame::readOnly(iMissing), &weights, bUnbiased, bFreq);
}

double Cpp_V_Var2(const double* x, int n, short int bUnbiased, short int bFreq)
{
    return unweightedVariance(frame::borrow(x, n), n, bUnbiased, bFreq);
}

double VB_V_Stdev(const double* x, int n, const short int* iMissing, const double* w, short int bUnbiased,
                  short int bFreq)
{
    auto values = frame::borrow(x, n);
    auto weights = frame::borrow(w, n);
    return V_Stdev(&values, n, frame::readOnly(iMissing), &weights, bUnbiased, bFreq);
}

int VB_V_MeanVar(const double* x, int n, double* mean, double* var, const short int* iMissing,
                 const double* w, short int bUnbiased, short int bFreq)
{
    auto values = frame::borrow(x, n);
    auto weights = frame::borrow(w, n);
    V_MeanVar(&values, n, mean, var, frame::readOnly(iMissing), &weights, bUnbiased, bFreq);
    return 0;
}

int Cpp_V_MeanVarW2(const double* x, int n, const double* w, double* mean, double* var, short int bUnbiased,
                    short int bFreq)
{
    auto values = frame::borrow(x, n);
    auto weights = frame::borrow(w, n);
    V_MeanVarW2(&values, n, &weights, mean, var, bUnbiased, bFreq);
    return 0;
}

int VB_V_MeanStdev(const double* x, int n, double* mean, double* sd, const short int* iMissing,
                   const double* w, short int bUnbiased, short int bFreq)
{
    auto values = frame::borrow(x, n);
    auto weights = frame::borrow(w, n);
    V_MeanStdev(&values, n, mean, sd, frame::readOnly(iMissing), &weights, bUnbiased, bFreq);
    return 0;
}

int Cpp_V_MeanStdev2(const double* x, int n, short int bUnbiased, double* mean, double* sd)
{
    auto values = frame::borrow(x, n);
    V_MeanStdev2(&values, n, bUnbiased, *mean, *sd);
    return 0;
}
