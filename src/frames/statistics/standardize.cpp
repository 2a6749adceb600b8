#include "frames/statistics/standardize.h"

#include "frames/frame.h"
#include "statistics/standardize.h"

using namespace korvel;

int VB_M_Standardize(double* x, int rows, int cols, double* out, double* means, double* sds, double* vars,
                     const short int* iMissing, const double* w, short int bUnbiased, short int bFreq)
{
    auto result = frame::borrowIfGiven(out, rows, cols);
    auto table = frame::besides(result, x, rows, cols);
    auto foundMeans = frame::borrowIfGiven(means, cols);
    auto foundSds = frame::borrowIfGiven(sds, cols);
    auto foundVars = frame::borrowIfGiven(vars, cols);
    auto weights = frame::besidesIfGiven(frame::resultOr(table, result), w, rows);
    M_Standardize(&table, rows, cols, frame::pointerTo(result), frame::pointerTo(foundMeans),
                  frame::pointerTo(foundSds), frame::pointerTo(foundVars), frame::readOnly(iMissing),
                  frame::pointerTo(weights), bUnbiased, bFreq);
    return 0;
}

int VB_V_Standardize(const double* x, int n, const short int* iMissing, const double* w, short int bUnbiased,
                     double* out)
{
    auto result = frame::borrow(out, n);
    auto values = frame::besides(result, x, n);
    auto weights = frame::besidesIfGiven(result, w, n);
    standardizeInto(values, n, frame::readOnly(iMissing), frame::pointerTo(weights), bUnbiased, result);
    return 0;
}

int VB_V_Standardize2(double* x, int n, const short int* iMissing, const double* w, short int bUnbiased)
{
    auto values = frame::borrow(x, n);
    auto weights = frame::besidesIfGiven(values, w, n);
    V_Standardize2(&values, n, frame::readOnly(iMissing), frame::pointerTo(weights), bUnbiased);
    return 0;
}

int VB_M_StandardizeKnownMeansStDev(double* x, int rows, int cols, const double* means, const double* sds,
                                    double* out, const double* vars, const short int* iMissing)
{
    auto result = frame::borrowIfGiven(out, rows, cols);
    auto table = frame::besides(result, x, rows, cols);
    const auto& written = frame::resultOr(table, result);
    auto knownMeans = frame::besides(written, means, cols);
    auto knownSds = frame::besidesIfGiven(written, sds, cols);
    auto knownVars = frame::besidesIfGiven(written, vars, cols);
    return M_StandardizeKnownMeansStDev(&table, rows, cols, &knownMeans, frame::pointerTo(knownSds),
                                        frame::pointerTo(result), frame::pointerTo(knownVars),
                                        frame::readOnly(iMissing));
}

int VB_M_StandardizeByVect(const double* x, int rows, int cols, const double* means, const double* sds,
                           double* out)
{
    auto result = frame::borrow(out, rows, cols);
    auto table = frame::besides(result, x, rows, cols);
    auto knownMeans = frame::besides(result, means, cols);
    auto knownSds = frame::besides(result, sds, cols);
    return M_StandardizeKnownMeansStDev(&table, rows, cols, &knownMeans, &knownSds, &result, nullptr,
                                        nullptr);
}

int VB_M_StandardizeByVect2(double* x, int rows, int cols, const double* means, const double* sds)
{
    auto table = frame::borrow(x, rows, cols);
    auto knownMeans = frame::besides(table, means, cols);
    auto knownSds = frame::besides(table, sds, cols);
    return M_StandardizeKnownMeansStDev(&table, rows, cols, &knownMeans, &knownSds, nullptr, nullptr,
                                        nullptr);
}

int Cpp_M_StandardizeApply2(double* x, int rows, int cols, const double* means, const double* sds)
{
    auto table = frame::borrow(x, rows, cols);
    auto knownMeans = frame::besides(table, means, cols);
    auto knownSds = frame::besides(table, sds, cols);
    M_StandardizeApply2(&table, rows, cols, &knownMeans, &knownSds);
    return 0;
}
