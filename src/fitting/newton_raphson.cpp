#include "fitting/newton_raphson.h"

#include "containers/cells.h"
#include "linalg/constraint_cleaning.h"
#include "linalg/products_table_vector.h"

#include <algorithm>
#include <cmath>

namespace
{

/** Divides a step that is longer than the limit, so that its largest part has that size. */
void limitTo(double stepLimit, matrix<double>& step, int n)
{
    double longest = 0.0;
    for (int i = 0; i < n; ++i) {
        longest = std::max(longest, std::fabs(step[i]));
    }
    const double factor = longest / stepLimit;
    if (factor > 1.0) {
        for (int i = 0; i < n; ++i) {
            step[i] /= factor;
        }
    }
}

template <class Constraint>
int takeStep(matrix<double>& parameters, int n, const matrix<Constraint>& constraints,
             const matrix<double>& gradient, const matrix<double>& hessian, double tolerance,
             matrix<double>& standardErrors, matrix<double>& inverse, bool limitStep, double stepLimit)
{
    if (cCleanConstraintsAndInvert(n, constraints, hessian, inverse) < 0) {
        return -1;
    }
    matrix<double> step(n, 1, 0.0);
    M_ProductBV(&inverse, n, n, const_cast<matrix<double>*>(&gradient), &step);
    if (limitStep) {
        limitTo(stepLimit, step, n);
    }
    matrix<double>& proposal = step;
    for (int i = 0; i < n; ++i) {
        proposal[i] = parameters[i] - step[i];
    }
    int status = 1;
    for (int i = 0; i < n; ++i) {
        if (constraints[i] != Constraint{0}) {
            continue;
        }
        if (std::fabs(parameters[i] - proposal[i]) > tolerance) {
            status = 0;
        }
        korvel::storeChecked(parameters, i, proposal[i]);
        korvel::storeChecked(standardErrors, i, std::sqrt(std::fabs(inverse.getElement(i, i))));
    }
    return status;
}

} // namespace

int cNewtonRaphson(matrix<double>& parameters, int n, matrix<int> const& constraints,
                   matrix<double> const& gradient, matrix<double> const& hessian, double tolerance,
                   matrix<double>& standardErrors, matrix<double>& inverse, bool limitStep, double stepLimit)
{
    return takeStep(parameters, n, constraints, gradient, hessian, tolerance, standardErrors, inverse,
                    limitStep, stepLimit);
}

int cNewtonRaphson(matrix<double>* parameters, int n, matrix<int>* constraints, matrix<double>* gradient,
                   matrix<double>* hessian, double tolerance, matrix<double>* standardErrors,
                   matrix<double>* inverse, short int limitStep, double stepLimit)
{
    return cNewtonRaphson(*parameters, n, *constraints, *gradient, *hessian, tolerance, *standardErrors,
                          *inverse, limitStep != 0, stepLimit);
}

int cNewtonRaphson(matrix<double>* parameters, int n, matrix<double>* constraints, matrix<double>* gradient,
                   matrix<double>* hessian, double tolerance, matrix<double>* standardErrors,
                   matrix<double>* inverse, short int limitStep, double stepLimit)
{
    return takeStep(*parameters, n, *constraints, *gradient, *hessian, tolerance, *standardErrors, *inverse,
                    limitStep == -1, stepLimit);
}
