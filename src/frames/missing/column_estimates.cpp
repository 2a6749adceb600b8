#include "frames/missing/column_estimates.h"

#include "frames/frame.h"
#include "missing/column_estimates.h"

using namespace korvel;

int VB_EstimateRowsWithMissingMean(double* x, int n, int p, const short int* rowFlags, const double* w)
{
    auto table = frame::changing(x, n, frame::columns(p));
    auto weights = frame::borrow(w, n);
    auto* filled = &table;
    EstimateRowsWithMissingMean(&table, n, filled, n, p, frame::readOnly(rowFlags), &weights);
    return 0;
}

int VB_EstimateRowsWithMissingMeanPred(const double* statistics, int n, double* x, int rows, int p,
                                       const short int* rowFlags, const double* w)
{
    auto learnt = frame::borrow(statistics, n, frame::columns(p));
    auto table = frame::changing(x, rows, learnt.nbcols);
    auto weights = frame::borrow(w, n);
    auto* filled = &table;
    EstimateRowsWithMissingMean(&learnt, n, filled, rows, p, frame::readOnly(rowFlags), &weights);
    return 0;
}

int VB_EstimateRowsWithMissingMeanSPV(Hostarray** x, int n, int p, const short int* rowFlags, const double* w)
{
    const auto columns = frame::chunks(x, p, n);
    auto weights = frame::borrow(w, n);
    EstimateRowsWithMissingMeanSPV(columns.get(), n, p, frame::readOnly(rowFlags), &weights);
    return 0;
}

int VB_EstimateRowsWithMissingMode(OLECHAR** x, int n, int p, const double* w)
{
    auto table = frame::changing(x, n, frame::columns(p));
    auto weights = frame::borrow(w, n);
    auto* filled = &table;
    EstimateRowsWithMissingMode(&table, n, filled, n, table.nbcols, &weights);
    frame::bringBack(table, x);
    return 0;
}

int VB_EstimateRowsWithMissingModePred(OLECHAR* const* statistics, int n, OLECHAR** x, int rows, int p,
                                       const double* w)
{
    auto learnt = frame::readTexts(statistics, n, frame::columns(p));
    auto table = frame::changing(x, rows, learnt.nbcols);
    auto weights = frame::borrow(w, n);
    auto* filled = &table;
    EstimateRowsWithMissingMode(&learnt, n, filled, rows, table.nbcols, &weights);
    frame::bringBack(table, x);
    return 0;
}
