/**
 * @file
 * Flat functions: one step of the Newton-Raphson method.
 */
#ifndef KORVEL_FRAMES_FITTING_NEWTON_RAPHSON_H
#define KORVEL_FRAMES_FITTING_NEWTON_RAPHSON_H

#include "frames/types.h"

/**
 * One damped step of the Newton-Raphson method: the inverse of the Hessian over the free parameters times the
 * gradient is subtracted from the parameters. Gradient and Hessian are those of the same objective, whether
 * it is to become large or small. A singular Hessian gets a generalised inverse.
 *
 * @param parameters     [inout] n numbers; the free ones are changed
 * @param n              parameters
 * @param constraints    [in] n integers: 0 for a free parameter, any other value for one held fixed
 * @param gradient       [in] n numbers
 * @param hessian        [in] n by n numbers, column after column
 * @param tolerance      the largest absolute change that counts as none
 * @param standardErrors [out] n numbers: the roots of the magnitudes of the inverse's diagonal; 0 for a fixed
 * parameter
 * @param inverse        [out] n by n numbers: the inverse, with 0 for fixed parameters
 * @param limitStep      not 0: a step longer than stepLimit is shortened, its direction kept
 * @param stepLimit      the largest absolute change of a parameter
 * @return 1 when every free parameter moved by at most the tolerance; 0 when one moved by more; -1 when the
 * inversion failed, which it does not at present
 */
KORVEL_FLAT int NewtonRaphson(double* parameters, int n, const int* constraints, const double* gradient,
                              const double* hessian, double tolerance, double* standardErrors,
                              double* inverse, short int limitStep, double stepLimit);

#endif
