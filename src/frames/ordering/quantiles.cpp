#include "frames/ordering/quantiles.h"

#include "frames/frame.h"
#include "ordering/quantiles.h"

using namespace korvel;

double VB_V_Quantile(const double* x, int n, double q)
{
    auto values = frame::borrow(x, n);
    return V_Quantile(&values, n, q);
}

double VB_V_QuantileW(const double* x, int n, const double* w, double q)
{
    auto values = frame::borrow(x, n);
    auto weights = frame::borrow(w, n);
    return V_QuantileW(&values, n, &weights, q);
}

double Cpp_V_QuantileW2(const double* x, int n, const double* w, double q)
{
    auto values = frame::borrow(x, n);
    auto weights = frame::borrow(w, n);
    return V_QuantileW2(&values, n, &weights, q);
}

double VB_V_QuantileM(const double* x, int n, const short int* iMissing, double q)
{
    auto values = frame::borrow(x, n);
    return V_QuantileM(&values, n, frame::readOnly(iMissing), q);
}

double VB_V_QuantileMW(const double* x, int n, const short int* iMissing, const double* w, double q)
{
    auto values = frame::borrow(x, n);
    auto weights = frame::borrow(w, n);
    return V_QuantileMW(&values, n, frame::readOnly(iMissing), &weights, q);
}

int Cpp_V_Quantiles13(double* x, int n, double* out)
{
    auto values = frame::borrow(x, n);
    auto quantiles = frame::borrow(out, 13);
    V_Quantiles13(&values, n, &quantiles);
    return 0;
}
