#include "frames/statistics/conditional_summaries.h"

#include "frames/frame.h"
#include "statistics/conditional_summaries.h"

using namespace korvel;

double VB_V_NbIf(const double* x, int n, double val)
{
    auto values = frame::borrow(x, n);
    return V_NbIf(&values, n, val);
}

double VB_V_NbIfLng(const int* x, int n, int val)
{
    auto values = frame::borrow(x, n);
    return V_NbIf(&values, n, val);
}

double VB_V_NbIfW(const double* x, int n, const double* w, double val)
{
    auto values = frame::borrow(x, n);
    auto weights = frame::borrow(w, n);
    return V_NbIfW(&values, n, &weights, val);
}

double VB_V_SumIf(const double* y, int n, const double* g, double val)
{
    auto values = frame::borrow(y, n);
    auto codes = frame::borrow(g, n);
    return V_SumIf(&values, n, &codes, val);
}

double VB_V_MeanIf(const double* y, int n, const double* g, double val)
{
    auto values = frame::borrow(y, n);
    auto codes = frame::borrow(g, n);
    return V_MeanIf(&values, n, &codes, val);
}

double VB_V_SumIfW(const double* y, int n, const double* g, const double* w, double val)
{
    auto values = frame::borrow(y, n);
    auto codes = frame::borrow(g, n);
    auto weights = frame::borrow(w, n);
    return V_SumIfW(&values, n, &codes, &weights, val);
}

double VB_V_MeanIfW(const double* y, int n, const double* g, const double* w, double val)
{
    auto values = frame::borrow(y, n);
    auto codes = frame::borrow(g, n);
    auto weights = frame::borrow(w, n);
    return V_MeanIfW(&values, n, &codes, &weights, val);
}

double VB_V_MaxIf(const double* y, int n, const double* g, double val)
{
    auto values = frame::borrow(y, n);
    auto codes = frame::borrow(g, n);
    return V_MaxIf(&values, n, &codes, val);
}

double VB_V_MinIf(const double* y, int n, const double* g, double val)
{
    auto values = frame::borrow(y, n);
    auto codes = frame::borrow(g, n);
    return V_MinIf(&values, n, &codes, val);
}

double Cpp_V_VarIf(const double* y, int n, const double* g, double val, short int bUnbiased)
{
    auto values = frame::borrow(y, n);
    auto codes = frame::borrow(g, n);
    return V_VarIf(&values, n, &codes, val, bUnbiased);
}

double Cpp_V_VarIfW(const double* y, int n, const double* g, const double* w, double val, short int bUnbiased)
{
    auto values = frame::borrow(y, n);
    auto codes = frame::borrow(g, n);
    auto weights = frame::borrow(w, n);
    return V_VarIfW(&values, n, &codes, &weights, val, bUnbiased);
}

double Cpp_V_VarIfSup0W(const double* y, int n, const double* g, const double* w, short int bUnbiased)
{
    auto values = frame::borrow(y, n);
    auto codes = frame::borrow(g, n);
    auto weights = frame::borrow(w, n);
    return V_VarIfSup0W(&values, n, &codes, &weights, bUnbiased);
}
