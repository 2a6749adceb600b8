#include "frames/ordering/distinct.h"

#include "frames/frame.h"
#include "ordering/distinct.h"

using namespace korvel;

int VB_V_NbDistinct(const double* x, int n)
{
    auto values = frame::borrow(x, n);
    return V_NbDistinct(&values, n);
}

int VB_V_NbDistinctLng(const int* x, int n)
{
    auto values = frame::borrow(x, n);
    return V_NbDistinct(&values, n);
}

int Cpp_V_NbDistinctStr(OLECHAR* const* x, int n)
{
    auto values = frame::readTexts(x, n);
    return V_NbDistinct(&values, n);
}

int VB_V_ExtractDistinct(const double* x, int n, double* out, int* nOut)
{
    auto values = frame::borrow(x, n);
    auto distinct = frame::borrow(out, n);
    V_ExtractDistinct(&values, n, &distinct, nOut);
    return 0;
}
