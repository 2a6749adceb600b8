#include "frames/fitting/least_squares_blocks.h"

#include "fitting/least_squares.h"
#include "fitting/least_squares_blocks.h"
#include "frames/frame.h"

using namespace korvel;

int RunOLSBasic2Lg(int n, int p1, const double* x1, int p2, const double* x2, int p3, const double* x3,
                   int p4, const double* x4, int p5, const double* x5, const double* y, const double* weights,
                   int degree, short int interactions, short int noConstant, double tolerance,
                   double* coefficients, double* standardErrors, double* fitted)
{
    auto first = frame::insteadOfCopy(x1, n, p1);
    auto second = frame::insteadOfCopy(x2, n, p2);
    auto third = frame::insteadOfCopy(x3, n, p3);
    auto fourth = frame::insteadOfCopy(x4, n, p4);
    auto fifth = frame::insteadOfCopy(x5, n, p5);
    auto response = frame::insteadOfCopy(y, n);
    auto w = frame::insteadOfCopy(weights, n);
    const int order = designTerms(p1 + p2 + p3 + p4 + p5, degree, interactions) + 1;
    auto estimates = frame::blank<double>(order);
    auto errors = frame::blank<double>(order);
    auto values = frame::blank<double>(n);
    OLSBasic2Lg(n, p1, &first, p2, &second, p3, &third, p4, &fourth, p5, &fifth, &response, &w, degree,
                noConstant, tolerance, &estimates, &errors, &values);
    frame::copyOut(estimates, coefficients);
    frame::copyOut(errors, standardErrors);
    frame::copyOut(values, fitted);
    return 0;
}
