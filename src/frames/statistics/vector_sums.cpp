#include "frames/statistics/vector_sums.h"

#include "frames/frame.h"
#include "statistics/vector_sums.h"

using namespace korvel;

double VB_V_Sum(double* x, int n, short int* iMissing, double* w)
{
    auto values = frame::borrow(x, n);
    auto weights = frame::borrow(w, n);
    return V_Sum(&values, n, iMissing, &weights);
}

double Cpp_V_SumW(double* x, int n, double* w)
{
    return sumOfProducts(frame::borrow(x, n), n, frame::borrow(w, n));
}

double VB_V_Sum2Dbl(double* x, int n)
{
    return V_Sum2(frame::borrow(x, n), n);
}

double VB_V_Sum2Lng(int* x, int n)
{
    return V_Sum2(x, n);
}

double Cpp_V_Sum2Dbl_ST(SAFEARRAY** sa, int n)
{
    return V_Sum2(frame::attach<double>(sa), n);
}

double Cpp_V_Sum2Lng_ST(SAFEARRAY** sa, int n)
{
    auto values = frame::attach<int>(sa);
    return V_Sum2(&values, n);
}

double VB_V_SumFromTo(double* x, int, int from, int to)
{
    return sumFromTo(x, from, to);
}

int VB_V_SumFromToLng(int* x, int, int from, int to)
{
    return sumFromTo(x, from, to);
}

double VB_V_SumSq(double* x, int n)
{
    auto values = frame::borrow(x, n);
    return V_SumSq(&values, n);
}

double VB_V_SumSqW(double* x, int n, double* w)
{
    auto values = frame::borrow(x, n);
    auto weights = frame::borrow(w, n);
    return V_SumSqW(&values, n, &weights);
}

double VB_V_DiffSq(double* x, int n, double* y)
{
    auto first = frame::borrow(x, n);
    auto second = frame::borrow(y, n);
    return V_DiffSq(&first, n, &second);
}

double VB_V_DiffSqW(double* x, int n, double* y, double* w)
{
    auto first = frame::borrow(x, n);
    auto second = frame::borrow(y, n);
    auto weights = frame::borrow(w, n);
    return V_DiffSqW(&first, n, &second, &weights);
}

double Cpp_V_DiffSqStart(double* x, int n, double* y, int start)
{
    auto first = frame::borrow(x, n);
    auto second = frame::borrow(y, n);
    return V_DiffSqStart(&first, n, &second, start);
}

int Cpp_V_CuSum(double* x, int n, double* out)
{
    auto values = frame::borrow(x, n);
    auto sums = frame::borrow(out, n);
    V_CuSum(&values, n, &sums);
    return 0;
}
