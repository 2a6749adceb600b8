#include "frames/statistics/covariance.h"

#include "frames/frame.h"
#include "statistics/covariance.h"

using namespace korvel;

int VB_M_CovCorr(const double* x, int rows, int cols, double* out, short int bCorr, const short int* iMissing,
                 const double* w, short int bUnbiased, short int bFreq, short int bUndefinedIsZero)
{
    auto found = frame::borrow(out, cols, cols);
    auto table = frame::besides(found, x, rows, cols);
    auto weights = frame::borrow(w, rows);
    auto* from = &table;
    auto* result = &found;
    return M_CovCorr(from, rows, cols, result, bCorr, frame::readOnly(iMissing), &weights, bUnbiased, bFreq,
                     bUndefinedIsZero);
}

int Cpp_M_CovCorr_ST(ST_MVect* x, int rows, int cols, ST_MVect* out, short int bCorr,
                     const short int* iMissing, const double* w, short int bUnbiased, short int bFreq,
                     short int bUndefinedIsZero)
{
    auto table = frame::record<double>(x);
    auto found = frame::record<double>(out);
    auto weights = frame::borrow(w, rows);
    return M_CovCorr_ST(table, rows, cols, found, bCorr, frame::readOnly(iMissing), &weights, bUnbiased,
                        bFreq, bUndefinedIsZero);
}

int VB_M_CovCorrAndMeanStDevVar(double* x, int rows, int cols, double* out, double* means, double* sds,
                                double* vars, short int bCorr, const short int* iMissing, const double* w,
                                short int bUnbiased, short int bFreq, short int bCenter, short int bReduce,
                                short int bUndefinedIsZero)
{
    auto table = frame::borrow(x, rows, cols);
    auto found = frame::borrow(out, cols, cols);
    auto foundMeans = frame::borrow(means, cols);
    auto foundSds = frame::borrow(sds, cols);
    auto foundVars = frame::borrow(vars, cols);
    auto weights = frame::borrow(w, rows);
    return M_CovCorrAndMeanStDevVar(&table, rows, cols, &found, &foundMeans, &foundSds, &foundVars, bCorr,
                                    frame::readOnly(iMissing), &weights, bUnbiased, bFreq, bCenter, bReduce,
                                    bUndefinedIsZero);
}

int VB_M_CovCorrVAndMeanStDevVar(double* x, int rows, int cols, double* out, double* means, double* sds,
                                 double* vars, short int bCorr, const short int* iMissing, const double* w,
                                 short int bUnbiased, short int bFreq, short int bCenter, short int bReduce,
                                 short int bUndefinedIsZero)
{
    return VB_M_CovCorrAndMeanStDevVar(x, rows, cols, out, means, sds, vars, bCorr, frame::readOnly(iMissing),
                                       w, bUnbiased, bFreq, bCenter, bReduce, bUndefinedIsZero);
}
