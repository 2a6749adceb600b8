#include "frames/ordering/modes.h"

#include "frames/frame.h"
#include "ordering/modes.h"

using namespace korvel;

double VB_V_ModeCatDbl(const double* x, int n)
{
    auto values = frame::borrow(x, n);
    return V_ModeCat(&values, n);
}

int VB_V_Mode(OLECHAR* const* labels, int n, const short int* iMissing, const double* w, OLECHAR** mode)
{
    auto texts = frame::readTexts(labels, n);
    auto weights = frame::borrow(w, n);
    const matrix<text> result(1, 1, modeOfTexts(texts, n, iMissing, weights));
    frame::writeTexts(result, mode);
    return 0;
}

int Cpp_V_ModeW2(OLECHAR* const* labels, int n, const double* w, OLECHAR** mode)
{
    auto texts = frame::readTexts(labels, n);
    auto weights = frame::borrow(w, n);
    const matrix<text> result(1, 1, modeOfTexts(texts, n, nullptr, weights));
    frame::writeTexts(result, mode);
    return 0;
}
