#include "frames/fitting/newton_raphson.h"

#include "fitting/newton_raphson.h"
#include "frames/frame.h"

using namespace korvel;

int NewtonRaphson(double* parameters, int n, const int* constraints, const double* gradient,
                  const double* hessian, double tolerance, double* standardErrors, double* inverse,
                  short int limitStep, double stepLimit)
{
    auto estimates = frame::copyIn(parameters, n);
    auto fixed = frame::insteadOfCopy(constraints, n);
    auto slopes = frame::insteadOfCopy(gradient, n);
    auto curvature = frame::insteadOfCopy(hessian, n, n);
    auto errors = frame::blank<double>(n);
    auto inverted = frame::blank<double>(n, n);
    const int status = cNewtonRaphson(estimates, n, fixed, slopes, curvature, tolerance, errors, inverted,
                                      limitStep != 0, stepLimit);
    frame::copyOut(errors, standardErrors);
    frame::copyOut(estimates, parameters);
    frame::copyOut(inverted, inverse);
    return status;
}
