#include "frames/ordering/deviations.h"

#include "frames/frame.h"
#include "ordering/deviations.h"

using namespace korvel;

double Cpp_V_MeanAbsDev(const double* x, int n, double centre, const short int* iMissing, const double* w)
{
    auto values = frame::borrow(x, n);
    auto weights = frame::borrow(w, n);
    return V_MeanAbsDev(&values, n, centre, frame::readOnly(iMissing), &weights);
}

double Cpp_V_MedianAbsDev(const double* x, int n, double centre, const short int* iMissing, const double* w)
{
    auto values = frame::borrow(x, n);
    auto weights = frame::borrow(w, n);
    return V_MedianAbsDev(&values, n, centre, frame::readOnly(iMissing), &weights);
}

double Cpp_V_MedianAbsDev2(const double* x, int n, double* centre)
{
    auto values = frame::borrow(x, n);
    return V_MedianAbsDev2(&values, n, *centre);
}

int Cpp_V_Winsorize2(double* x, int n, double qLow, double qHigh)
{
    auto values = frame::borrow(x, n);
    V_Winsorize2(&values, n, qLow, qHigh);
    return 0;
}
