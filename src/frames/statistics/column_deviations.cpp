#include "frames/statistics/column_deviations.h"

#include "frames/frame.h"
#include "statistics/column_deviations.h"

using namespace korvel;

int VB_M_MeanStDev(const double* x, int rows, int cols, double* means, double* sds, const short int* iMissing,
                   const double* w, short int bUnbiased, short int bFreq, short int flag)
{
    auto table = frame::borrow(x, rows, cols);
    auto foundMeans = frame::borrow(means, cols);
    auto foundSds = frame::borrow(sds, cols);
    auto weights = frame::borrow(w, rows);
    M_MeanStDev(&table, rows, cols, &foundMeans, &foundSds, frame::readOnly(iMissing), &weights, bUnbiased,
                bFreq, flag);
    return 0;
}

int VB_M_MeanStDevVar(const double* x, int rows, int cols, double* means, double* sds, double* vars,
                      const short int* iMissing, const double* w, short int bUnbiased, short int bFreq)
{
    auto table = frame::borrow(x, rows, cols);
    auto foundMeans = frame::borrow(means, cols);
    auto foundSds = frame::borrow(sds, cols);
    auto foundVars = frame::borrow(vars, cols);
    auto weights = frame::borrow(w, rows);
    M_MeanStDevVar(&table, rows, cols, &foundMeans, &foundSds, &foundVars, frame::readOnly(iMissing),
                   &weights, bUnbiased, bFreq);
    return 0;
}

int VB_M_MeanStDevByRow(const double* x, int rows, int cols, double* means, double* sds, const double* w,
                        short int bUnbiased, short int bFreq)
{
    auto table = frame::borrow(x, rows, cols);
    auto foundMeans = frame::blank<double>(rows);
    auto foundSds = frame::blank<double>(rows);
    auto weights = frame::borrow(w, cols);
    auto* toMeans = &foundMeans;
    auto* toSds = &foundSds;
    M_MeanStDevByRow(&table, rows, cols, toMeans, toSds, &weights, bUnbiased, bFreq);
    frame::copyOut(foundMeans, means);
    frame::copyOut(foundSds, sds);
    return 0;
}

int VB_M_MeanStDevVarOneInMat(const double* x, int rows, int cols, double* mean, double* sd, double* var,
                              const double* w, short int bUnbiased, short int bFreq)
{
    auto table = frame::borrow(x, rows, cols);
    auto weights = frame::borrow(w, rows);
    M_MeanStDevVarOneInMat(&table, rows, cols, mean, sd, var, &weights, bUnbiased, bFreq);
    return 0;
}
