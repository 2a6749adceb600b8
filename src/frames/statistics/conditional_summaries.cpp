#include "frames/statistics/conditional_summaries.h"

#include "frames/frame.h"
#include "statistics/conditional_summaries.h"

using namespace korvel;

double VB_V_NbIf(double* x, int n, double val)
{
    auto values = frame::borrow(x, n);
    return V_NbIf(&values, n, val);
}

double VB_V_NbIfLng(int* x, int n, int val)
{
    auto values = frame::borrow(x, n);
    return V_NbIf(&values, n, val);
}

double VB_V_NbIfW(double* x, int n, double* w, double val)
{
    auto values = frame::borrow(x, n);
    auto weights = frame::borrow(w, n);
    return V_NbIfW(&values, n, &weights, val);
}

double VB_V_SumIf(double* y, int n, double* g, double val)
{
    auto values = frame::borrow(y, n);
    auto codes = frame::borrow(g, n);
    return V_SumIf(&values, n, &codes, val);
}

double VB_V_MeanIf(double* y, int n, double* g, double val)
{
    auto values = frame::borrow(y, n);
    auto codes = frame::borrow(g, n);
    return V_MeanIf(&values, n, &codes, val);
}

double VB_V_SumIfW(double* y, int n, double* g, double* w, double val)
{
    auto values = frame::borrow(y, n);
    auto codes = frame::borrow(g, n);
    auto weights = frame::borrow(w, n);
    return V_SumIfW(&values, n, &codes, &weights, val);
}

double VB_V_MeanIfW(double* y, int n, double* g, double* w, double val)
{
    auto values = frame::borrow(y, n);
    auto codes = frame::borrow(g, n);
    auto weights = frame::borrow(w, n);
    return V_MeanIfW(&values, n, &codes, &weights, val);
}

double VB_V_MaxIf(double* y, int n, double* g, double val)
{
    auto values = frame::borrow(y, n);
    auto codes = frame::borrow(g, n);
    return V_MaxIf(&values, n, &codes, val);
}

double VB_V_MinIf(double* y, int n, double* g, double val)
{
    auto values = frame::borrow(y, n);
    auto codes = frame::borrow(g, n);
    return V_MinIf(&values, n, &codes, val);
}

double Cpp_V_VarIf(double* y, int n, double* g, double val, short int bUnbiased)
{
    auto values = frame::borrow(y, n);
    auto codes = frame::borrow(g, n);
    return V_VarIf(&values, n, &codes, val, bUnbiased);
}

double Cpp_V_VarIfW(double* y, int n, double* g, double* w, double val, short int bUnbiased)
{
    auto values = frame::borrow(y, n);
    auto codes = frame::borrow(g, n);
    auto weights = frame::borrow(w, n);
    return V_VarIfW(&values, n, &codes, &weights, val, bUnbiased);
}

double Cpp_V_VarIfSup0W(double* y, int n, double* g, double* w, short int bUnbiased)
{
    auto values = frame::borrow(y, n);
    auto codes = frame::borrow(g, n);
    auto weights = frame::borrow(w, n);
    return V_VarIfSup0W(&values, n, &codes, &weights, bUnbiased);
}
