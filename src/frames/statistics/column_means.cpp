#include "frames/statistics/column_means.h"

#include "frames/frame.h"
#include "statistics/column_means.h"

using namespace korvel;

int VB_M_Mean(const double* x, int rows, int cols, double* means, const double* w)
{
    auto table = frame::borrow(x, rows, cols);
    auto weights = frame::borrow(w, rows);
    auto found = frame::blank<double>(cols);
    auto* result = &found;
    M_Mean(&table, rows, cols, result, &weights);
    frame::copyOut(found, means);
    return 0;
}

int Cpp_M_MeanSPV(Hostarray** x, int rows, int cols, double* means, const double* w)
{
    const auto table = frame::chunks(x, cols, rows);
    auto weights = frame::borrow(w, rows);
    auto found = frame::blank<double>(cols);
    auto* result = &found;
    M_MeanSPV(table.get(), rows, cols, result, &weights);
    frame::copyOut(found, means);
    return 0;
}

int Cpp_M_Mean2(const double* x, int rows, int cols, const double* w, double* means)
{
    auto table = frame::borrow(x, rows, cols);
    auto weights = frame::borrow(w, rows);
    auto found = frame::borrow(means, cols);
    M_Mean2(&table, rows, cols, &weights, &found);
    return 0;
}

int Cpp_M_Mean3(const double* x, int rows, int cols, double* means)
{
    auto table = frame::borrow(x, rows, cols);
    auto found = frame::borrow(means, cols);
    M_Mean3(&table, rows, cols, &found);
    return 0;
}
