#include "frames/linalg/element_wise.h"

#include "frames/frame.h"
#include "linalg/element_wise.h"

using namespace korvel;

int VB_M_ScalarsA(const double* a, int n, int p, double s, double* c)
{
    auto table = frame::copyIn(a, n, p);
    auto result = frame::borrow(c, n, p);
    M_ScalarsA(&table, n, p, s, &result);
    return 0;
}

int VB_M_ScalarsA2(double* a, int n, int p, double s)
{
    auto table = frame::borrow(a, n, p);
    M_ScalarsA2(&table, n, p, s);
    return 0;
}

int VB_M_ScalarsTrA(const double* a, int n, int p, double s, double* c)
{
    auto table = frame::copyIn(a, n, p);
    auto result = frame::borrow(c, p, n);
    M_ScalarsTrA(&table, n, p, s, &result);
    return 0;
}

int VB_M_APlusVal(const double* a, int n, int p, double s, double* c)
{
    auto table = frame::copyIn(a, n, p);
    auto result = frame::borrow(c, n, p);
    M_APlusVal(&table, n, p, s, &result);
    return 0;
}

int VB_M_APlusVal2(double* a, int n, int p, double s)
{
    auto table = frame::borrow(a, n, p);
    M_APlusVal2(&table, n, p, s);
    return 0;
}

int VB_M_Square(double* a, int n, int p)
{
    auto table = frame::borrow(a, n, p);
    M_Square(&table, n, p);
    return 0;
}

int VB_M_ProductByElement(const double* a, int n, int p, const double* b, double* c)
{
    auto left = frame::copyIn(a, n, p);
    auto right = frame::copyIn(b, n, p);
    auto result = frame::borrow(c, n, p);
    M_ProductByElement(&left, n, p, &right, &result);
    return 0;
}

int Cpp_SumMat(const double* a, const double* b, int n, int p, double* c)
{
    auto left = frame::copyIn(a, n, p);
    auto right = frame::copyIn(b, n, p);
    auto result = frame::borrow(c, n, p);
    SumMat(&left, &right, n, p, &result);
    return 0;
}

int Cpp_MultiplyByVal(double* x, int rows, int cols, double s)
{
    auto table = frame::borrow(x, rows, cols);
    multiplyByValue(table, rows, cols, s);
    return 0;
}
