#include "frames/tables/vector_values.h"

#include "frames/frame.h"
#include "tables/columns.h"
#include "tables/remove.h"
#include "tables/vector_values.h"

#include <algorithm>

using namespace korvel;

namespace
{

template <class Cell, class T>
int setAll(Cell* x, int n, const T& value)
{
    auto values = frame::changing(x, n);
    setToValue(values, n, value);
    frame::bringBack(values, x);
    return 0;
}

template <class T>
int setHostArray(SAFEARRAY** x, int n, const T& value)
{
    auto values = frame::attach<T>(x);
    setToValue(values, n, value);
    return 0;
}

template <class From, class To>
int copyElements(From* x, int n, To* y)
{
    auto target = frame::filling(y, n);
    auto source = frame::besides(target, x, n);
    V_Duplicate(&source, 1, 1, n, &target, 1, 1);
    return 0;
}

/** Texts of the first vector return before those of the second. */
template <class Cell>
int swapElements(Cell* a, int n, Cell* b)
{
    auto first = frame::changing(a, n);
    auto second = frame::changing(b, n);
    swapVectors(first, n, second);
    frame::bringBack(first, a);
    frame::bringBack(second, b);
    return 0;
}

} // namespace

int VB_V_PlusVal(double* x, int n, double val, const short int* iMissing)
{
    auto values = frame::borrow(x, n);
    V_PlusVal(&values, n, val, frame::readOnly(iMissing));
    return 0;
}

int VB_V_PlusVal2(double* x, int n, double val)
{
    auto values = frame::borrow(x, n);
    V_PlusVal2(&values, n, val);
    return 0;
}

int VB_V_ReplaceVal(const double* x, int n, double oldValue, double newValue, double* out)
{
    auto result = frame::filling(out, n);
    auto values = frame::besides(result, x, n);
    V_ReplaceVal(&values, n, oldValue, newValue, &result);
    return 0;
}

int VB_V_ReplaceVal2(double* x, int n, double oldValue, double newValue)
{
    auto values = frame::borrow(x, n);
    V_ReplaceVal2(&values, n, oldValue, newValue);
    return 0;
}

int VB_V_RemoveVal(const double* x, int n, int pos, double* out)
{
    auto result = frame::filling(out, std::max(n, 1) - 1);
    auto values = frame::besides(result, x, n);
    M_RemoveRow(&values, n, 1, pos, &result);
    return 0;
}

int VB_V_SetToValue(double* x, int n, double value)
{
    return setAll(x, n, value);
}

int Cpp_V_SetToValue_ST(SAFEARRAY** x, int n, double value)
{
    return setHostArray(x, n, value);
}

int VB_V_SetToValueLng(int* x, int n, int value)
{
    return setAll(x, n, value);
}

int Cpp_V_SetToValueLng_ST(SAFEARRAY** x, int n, int value)
{
    return setHostArray(x, n, value);
}

int VB_V_SetToValueStr(OLECHAR** x, int n, const OLECHAR* value)
{
    auto texts = frame::filling(x, n);
    V_SetToValueStr(&texts, n, readBstr(frame::readOnly(value)));
    frame::bringBack(texts, x);
    return 0;
}

int Cpp_V_CopyDoubleToLong(const double* x, int n, int* y)
{
    return copyElements(x, n, y);
}

int Cpp_V_CopyLongToDouble(const int* x, int n, double* y)
{
    return copyElements(x, n, y);
}

int Cpp_V_SwapDbl(double* a, int n, double* b)
{
    return swapElements(a, n, b);
}

int Cpp_V_SwapStr(OLECHAR** a, int n, OLECHAR** b)
{
    return swapElements(a, n, b);
}

int Cpp_V_CleanVectDbl2(double* x, int n, int* m)
{
    auto values = frame::borrow(x, n);
    V_CleanVectDbl2(&values, n, *m);
    return 0;
}

int Cpp_V_CleanVectDblW2(double* x, int n, double* w, int* m)
{
    auto values = frame::borrow(x, n);
    auto weights = frame::borrow(w, n);
    V_CleanVectDblW2(&values, n, &weights, *m);
    return 0;
}
