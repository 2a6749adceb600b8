#include "frames/tables/fill.h"

#include "frames/frame.h"
#include "tables/fill.h"

using namespace korvel;

int VB_V_Set1toNDbl(double* x, int n)
{
    auto values = frame::borrow(x, n);
    V_Set1toN(&values, n);
    return 0;
}

int VB_V_Set1toNLng(int* x, int n)
{
    auto values = frame::borrow(x, n);
    V_Set1toN(&values, n);
    return 0;
}

int VB_V_Set1toNStr(OLECHAR** x, int n)
{
    auto texts = frame::blank<text>(n);
    V_Set1toN(&texts, n);
    frame::writeTexts(texts, x);
    return 0;
}

int VB_InitVectorToFalse(short int* flags, int n)
{
    return InitVectorToFalse(flags, n);
}

int VB_InitVectorToTrue(short int* flags, int n)
{
    return InitVectorToTrue(flags, n);
}

int Cpp_M_SetBooleanIfLng(const int* x, int rows, int cols, int value, short int* flags)
{
    auto values = frame::borrow(x, rows, frame::columns(cols));
    auto result = frame::borrow(flags, rows, frame::columns(cols));
    M_SetBooleanIfLng(&values, rows, frame::columns(cols), value, &result);
    return 0;
}
