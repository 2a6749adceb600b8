#include "frames/statistics/centering.h"

#include "frames/frame.h"
#include "statistics/centering.h"

using namespace korvel;

int VB_M_Standardize2(double* x, int rows, int cols, short int bUnbiased)
{
    auto table = frame::borrow(x, rows, cols);
    M_Standardize2(&table, rows, cols, bUnbiased);
    return 0;
}

int VB_M_Standardize2SPV(Hostarray** x, int rows, int cols, short int bUnbiased)
{
    const auto columns = frame::chunks(x, cols, rows);
    M_Standardize2SPV(columns.get(), rows, cols, bUnbiased);
    return 0;
}

int VB_M_Standardize3(double* x, int rows, int cols, double* means, double* sds, short int bUnbiased,
                      short int bFreq)
{
    auto values = frame::borrow(x, rows, cols);
    matrix<double>* table = &values;
    auto foundMeans = frame::borrow(means, cols);
    auto foundSds = frame::borrow(sds, cols);
    matrix<double>* resultMeans = &foundMeans;
    matrix<double>* resultSds = &foundSds;
    M_Standardize3(table, rows, cols, resultMeans, resultSds, bUnbiased, bFreq);
    return 0;
}

int VB_M_StandardizeW(const double* x, int rows, int cols, const double* w, short int bUnbiased,
                      short int bFreq, double* out)
{
    auto result = frame::borrow(out, rows, cols);
    auto table = frame::besides(result, x, rows, cols);
    auto weights = frame::besides(result, w, rows);
    M_StandardizeW(&table, rows, cols, &weights, bUnbiased, bFreq, &result);
    return 0;
}

int VB_M_StandardizeW2(double* x, int rows, int cols, const double* w, short int bUnbiased, short int bFreq)
{
    auto values = frame::borrow(x, rows, cols);
    matrix<double>* table = &values;
    auto weights = frame::besides(values, w, rows);
    M_StandardizeW2(table, rows, cols, &weights, bUnbiased, bFreq);
    return 0;
}

int VB_M_StandardizeW3(double* x, int rows, int cols, const double* w, double* means, double* sds,
                       short int bUnbiased, short int bFreq)
{
    auto values = frame::borrow(x, rows, cols);
    matrix<double>* table = &values;
    auto weights = frame::besides(values, w, rows);
    auto foundMeans = frame::borrow(means, cols);
    auto foundSds = frame::borrow(sds, cols);
    matrix<double>* resultMeans = &foundMeans;
    matrix<double>* resultSds = &foundSds;
    M_StandardizeW3(table, rows, cols, &weights, resultMeans, resultSds, bUnbiased, bFreq);
    return 0;
}

int VB_M_Center(const double* x, int rows, int cols, double* out)
{
    auto result = frame::borrow(out, rows, cols);
    auto table = frame::besides(result, x, rows, cols);
    M_Center(&table, rows, cols, &result);
    return 0;
}

int VB_M_CenterW(const double* x, int rows, int cols, const double* w, double* out)
{
    auto result = frame::borrow(out, rows, cols);
    auto table = frame::besides(result, x, rows, cols);
    auto weights = frame::besides(result, w, rows);
    M_CenterW(&table, rows, cols, &weights, &result);
    return 0;
}

int VB_M_Center2(double* x, int rows, int cols)
{
    auto values = frame::borrow(x, rows, cols);
    matrix<double>* table = &values;
    M_Center2(table, rows, cols);
    return 0;
}

int VB_M_Center2SPV(Hostarray** x, int rows, int cols)
{
    const auto columns = frame::chunks(x, cols, rows);
    M_CenterW2SPV(columns.get(), rows, cols, nullptr);
    return 0;
}

int VB_M_CenterW2(double* x, int rows, int cols, const double* w)
{
    auto values = frame::borrow(x, rows, cols);
    matrix<double>* table = &values;
    auto weights = frame::besides(values, w, rows);
    M_CenterW2(table, rows, cols, &weights);
    return 0;
}

int VB_M_Reduce(const double* x, int rows, int cols, double* out, short int bUnbiased, short int bFreq)
{
    auto result = frame::borrow(out, rows, cols);
    auto table = frame::besides(result, x, rows, cols);
    matrix<double>* reduced = &result;
    M_Reduce(&table, rows, cols, reduced, bUnbiased, bFreq);
    return 0;
}

int VB_M_ReduceW(const double* x, int rows, int cols, const double* w, double* out, short int bUnbiased,
                 short int bFreq)
{
    auto result = frame::borrow(out, rows, cols);
    auto table = frame::besides(result, x, rows, cols);
    auto weights = frame::besides(result, w, rows);
    matrix<double>* reduced = &result;
    M_ReduceW(&table, rows, cols, &weights, reduced, bUnbiased, bFreq);
    return 0;
}

int VB_M_Reduce2(double* x, int rows, int cols, short int bUnbiased)
{
    auto values = frame::borrow(x, rows, cols);
    matrix<double>* table = &values;
    M_Reduce2(table, rows, cols, bUnbiased);
    return 0;
}

int VB_M_ReduceW2(double* x, int rows, int cols, const double* w, short int bUnbiased, short int bFreq)
{
    auto values = frame::borrow(x, rows, cols);
    matrix<double>* table = &values;
    auto weights = frame::besides(values, w, rows);
    M_ReduceW2(table, rows, cols, &weights, bUnbiased, bFreq);
    return 0;
}
