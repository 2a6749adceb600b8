#include "frames/statistics/vector_frequencies.h"

#include "frames/frame.h"
#include "statistics/vector_frequencies.h"

using namespace korvel;

double VB_V_Freq(const double* x, int n, const double* w, double value, double tol)
{
    auto values = frame::borrow(x, n);
    auto weights = frame::borrow(w, n);
    return V_Freq(&values, n, &weights, value, tol);
}

double VB_V_FreqLng(const int* x, int n, const double* w, double value, double tol)
{
    auto values = frame::borrow(x, n);
    auto weights = frame::borrow(w, n);
    return V_Freq(&values, n, &weights, value, tol);
}

double VB_V_FreqStr(OLECHAR* const* labels, int n, const double* w, const OLECHAR* value)
{
    auto texts = frame::readTexts(labels, n);
    auto weights = frame::borrow(w, n);
    return V_FreqStr(&texts, n, &weights, readBstr(frame::readOnly(value)));
}
