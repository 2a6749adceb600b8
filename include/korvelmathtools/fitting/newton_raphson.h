/**
 * @file
 * One damped step of the Newton-Raphson method, for a caller that runs the iteration: it computes the
 * gradient and the Hessian of its objective, and each call moves the parameters. No state is kept between
 * calls.
 */
#ifndef KORVEL_FITTING_NEWTON_RAPHSON_H
#define KORVEL_FITTING_NEWTON_RAPHSON_H

#include "containers/matrix.h"
#include "platform/export.h"

/**
 * The step: the inverse of the Hessian over the free parameters, by `cCleanConstraintsAndInvert`, times the
 * gradient is subtracted from the parameters. So gradient and Hessian are those of the same objective,
 * whether it is to become large or small. A singular Hessian is no failure: its generalised inverse is taken.
 *
 * Vectors are reached by linear index, tables by row and column, all of them checked; no two may be one.
 *
 * @param parameters     `n` elements; the free ones are changed in place
 * @param n              parameters
 * @param constraints    `n` elements: 0 for a free parameter, any other value for one held fixed
 * @param gradient       `n` elements
 * @param hessian        `n` by `n`
 * @param tolerance      the largest absolute change that counts as none
 * @param standardErrors receives for each free parameter the root of the magnitude of its diagonal element of
 * the inverse
 * @param inverse        `n` by `n`, cleared by the caller; receives the inverse in the columns of free
 * parameters
 * @param limitStep      whether the step is limited
 * @param stepLimit      the largest absolute change allowed. A longer step is divided as a whole, so that its
 * direction stays; what the step would be for fixed parameters counts too
 * @return 1 when every free parameter moved by at most the tolerance; 0 when one moved by more; -1 when the
 * inversion failed, which it does not at present: parameters and standard errors then stay as they are. A
 * step of NaN counts as none
 * @throws std::bad_alloc when memory is short
 */
KORVEL_API int cNewtonRaphson(matrix<double>& parameters, int n, matrix<int> const& constraints,
                              matrix<double> const& gradient, matrix<double> const& hessian, double tolerance,
                              matrix<double>& standardErrors, matrix<double>& inverse, bool limitStep,
                              double stepLimit);

/** The same, given by pointers; `limitStep` is true unless it is 0. */
KORVEL_API int cNewtonRaphson(matrix<double>* parameters, int n, matrix<int>* constraints,
                              matrix<double>* gradient, matrix<double>* hessian, double tolerance,
                              matrix<double>* standardErrors, matrix<double>* inverse, short int limitStep,
                              double stepLimit);

/** The same with constraints that are numbers; `limitStep` is true only when it is -1. */
KORVEL_API int cNewtonRaphson(matrix<double>* parameters, int n, matrix<double>* constraints,
                              matrix<double>* gradient, matrix<double>* hessian, double tolerance,
                              matrix<double>* standardErrors, matrix<double>* inverse, short int limitStep,
                              double stepLimit);

#endif
