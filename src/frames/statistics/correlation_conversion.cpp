#include "frames/statistics/correlation_conversion.h"

#include "containers/matrix3d.h"
#include "frames/frame.h"
#include "statistics/correlation_conversion.h"

using namespace korvel;

int VB_M_CorrMatFromCovMat(const double* cov, int n, double* out, short int bUndefinedIsZero)
{
    auto correlations = frame::borrow(out, n, n);
    auto covariances = frame::besides(correlations, cov, n, n);
    M_CorrMatFromCovMat(&covariances, n, &correlations, bUndefinedIsZero);
    return 0;
}

int Cpp_M_CorrMatFromCovMatSPV2_T(Hostarray** table, int n)
{
    matrix3D<matrix<double>> covariances(n, table);
    M_CorrMatFromCovMatSPV2_T(&covariances, n);
    return 0;
}

int Cpp_M_CovMatFromCorrMat(const double* corr, int n, const double* vars, double* out)
{
    auto covariances = frame::borrow(out, n, n);
    auto correlations = frame::besides(covariances, corr, n, n);
    auto variances = frame::borrow(vars, n);
    M_CovMatFromCorrMat(&correlations, n, &variances, &covariances);
    return 0;
}
