#include "frames/fitting/least_squares.h"

#include "fitting/least_squares.h"
#include "frames/frame.h"

using namespace korvel;

int RunOLSBasic(int n, int p, const double* x, const double* y, const double* weights, int degree,
                short int interactions, short int noConstant, double tolerance, double* coefficients,
                double* fitted)
{
    auto predictors = frame::insteadOfCopy(x, n, p);
    auto response = frame::insteadOfCopy(y, n);
    auto w = frame::insteadOfCopy(weights, n);
    auto estimates = frame::blank<double>(designTerms(p, degree, interactions) + 1);
    auto values = frame::blank<double>(n);
    OLSBasic(n, p, &predictors, &response, &w, degree, interactions, noConstant, tolerance, &estimates,
             &values);
    frame::copyOut(estimates, coefficients);
    frame::copyOut(values, fitted);
    return 0;
}

int RunOLSBasic2(int n, int p, const double* x, const double* y, const double* weights, int degree,
                 short int interactions, short int noConstant, double tolerance, double* coefficients,
                 double* standardErrors, double* fitted)
{
    auto predictors = frame::insteadOfCopy(x, n, p);
    auto response = frame::insteadOfCopy(y, n);
    auto w = frame::insteadOfCopy(weights, n);
    auto estimates = frame::blank<double>(designTerms(p, degree, interactions) + 1);
    auto errors = frame::blank<double>(designTerms(p, degree, interactions) + 1);
    auto values = frame::blank<double>(n);
    OLSBasic2(n, p, &predictors, &response, &w, degree, interactions, noConstant, tolerance, &estimates,
              &errors, &values);
    frame::copyOut(estimates, coefficients);
    frame::copyOut(errors, standardErrors);
    frame::copyOut(values, fitted);
    return 0;
}

int RunOLSBasic3(int n, int p, const double* x, const double* y, const double* weights, int degree,
                 short int interactions, short int noConstant, double tolerance, double* coefficients,
                 double* standardErrors, double* fitted, double* sweptMatrix, double* means,
                 double* standardDeviations)
{
    auto predictors = frame::insteadOfCopy(x, n, p);
    auto response = frame::insteadOfCopy(y, n);
    auto w = frame::insteadOfCopy(weights, n);
    const int order = designTerms(p, degree, interactions) + 1;
    auto estimates = frame::blank<double>(order);
    auto errors = frame::blank<double>(order);
    auto values = frame::blank<double>(n);
    auto swept = frame::blank<double>(order, order);
    auto centres = frame::blank<double>(order);
    auto spreads = frame::blank<double>(order);
    OLSBasic3(n, p, &predictors, &response, &w, degree, interactions, noConstant, tolerance, &estimates,
              &errors, &values, &swept, &centres, &spreads);
    frame::copyOut(estimates, coefficients);
    frame::copyOut(errors, standardErrors);
    frame::copyOut(values, fitted);
    frame::copyOut(swept, sweptMatrix);
    frame::copyOut(centres, means);
    frame::copyOut(spreads, standardDeviations);
    return 0;
}
