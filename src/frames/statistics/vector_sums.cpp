#include "frames/statistics/vector_sums.h"

#include "frames/frame.h"
#include "statistics/vector_sums.h"

using namespace korvel;

double VB_V_Sum(const double* x, int n, const short int* iMissing, const double* w)
{
    auto values = frame::borrow(x, n);
    auto weights = frame::borrow(w, n);
    return V_Sum(&values, n, frame::readOnly(iMissing), &weights);
}

double Cpp_V_SumW(const double* x, int n, const double* w)
{
    return sumOfProducts(frame::borrow(x, n), n, frame::borrow(w, n));
}

double VB_V_Sum2Dbl(const double* x, int n)
{
    return V_Sum2(frame::borrow(x, n), n);
}

double VB_V_Sum2Lng(const int* x, int n)
{
    return V_Sum2(frame::readOnly(x), n);
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

double VB_V_SumFromTo(const double* x, int, int from, int to)
{
    return sumFromTo(x, from, to);
}

int VB_V_SumFromToLng(const int* x, int, int from, int to)
{
    return sumFromTo(x, from, to);
}

double VB_V_SumSq(const double* x, int n)
{
    auto values = frame::borrow(x, n);
    return V_SumSq(&values, n);
}

double VB_V_SumSqW(const double* x, int n, const double* w)
{
    auto values = frame::borrow(x, n);
    auto weights = frame::borrow(w, n);
    return V_SumSqW(&values, n, &weights);
}

double VB_V_DiffSq(const double* x, int n, const double* y)
{
    auto first = frame::borrow(x, n);
    auto second = frame::borrow(y, n);
    return V_DiffSq(&first, n, &second);
}

double VB_V_DiffSqW(const double* x, int n, const double* y, const double* w)
{
    auto first = frame::borrow(x, n);
    auto second = frame::borrow(y, n);
    auto weights = frame::borrow(w, n);
    return V_DiffSqW(&first, n, &second, &weights);
}

double Cpp_V_DiffSqStart(const double* x, int n, const double* y, int start)
{
    auto first = frame::borrow(x, n);
    auto second = frame::borrow(y, n);
    return V_DiffSqStart(&first, n, &second, start);
}

int Cpp_V_CuSum(const double* x, int n, double* out)
{
    auto values = frame::borrow(x, n);
    auto sums = frame::borrow(out, n);
    V_CuSum(&values, n, &sums);
    return 0;
}
