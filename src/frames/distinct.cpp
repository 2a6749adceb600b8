#include "frames/distinct.h"

#include "frames/frame.h"
#include "ordering/distinct.h"
#include "ordering/modes.h"

using namespace korvel;

double VB_V_ModeCatDbl(double* x, int n)
{
    auto values = frame::borrow(x, n);
    return V_ModeCat(&values, n);
}

int VB_V_Mode(OLECHAR** labels, int n, short int* iMissing, double* w, OLECHAR** mode)
{
    auto texts = frame::readTexts(labels, n);
    auto weights = frame::borrow(w, n);
    const matrix<text> result(1, 1, modeOfTexts(texts, n, iMissing, weights));
    frame::writeTexts(result, mode);
    return 0;
}

int Cpp_V_ModeW2(OLECHAR** labels, int n, double* w, OLECHAR** mode)
{
    auto texts = frame::readTexts(labels, n);
    auto weights = frame::borrow(w, n);
    const matrix<text> result(1, 1, modeOfTexts(texts, n, nullptr, weights));
    frame::writeTexts(result, mode);
    return 0;
}

int VB_V_NbDistinct(double* x, int n)
{
    auto values = frame::borrow(x, n);
    return V_NbDistinct(&values, n);
}

int VB_V_NbDistinctLng(int* x, int n)
{
    auto values = frame::borrow(x, n);
    return V_NbDistinct(&values, n);
}

int Cpp_V_NbDistinctStr(OLECHAR** x, int n)
{
    auto values = frame::readTexts(x, n);
    return V_NbDistinct(&values, n);
}

int VB_V_ExtractDistinct(double* x, int n, double* out, int* nOut)
{
    auto values = frame::borrow(x, n);
    auto distinct = frame::borrow(out, n);
    V_ExtractDistinct(&values, n, &distinct, nOut);
    return 0;
}
