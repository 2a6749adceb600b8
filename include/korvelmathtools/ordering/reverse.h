/**
 * @file
 * A vector back to front.
 */
#ifndef KORVEL_ORDERING_REVERSE_H
#define KORVEL_ORDERING_REVERSE_H

#include "containers/matrix.h"
#include "platform/export.h"

/** Element i of the result is element n - 1 - i of `x`, both of `n` elements; `out` may be `x`. */
KORVEL_API void V_Reverse(matrix<double>* x, int n, matrix<double>* out);
/** The same on `n` flags. */
KORVEL_API void V_ReverseBool(short int* x, int n, short int* out);

/** The first `n` elements in place; nothing happens when the vector has fewer. */
KORVEL_API void V_Reverse2(matrix<double>* x, int n);
KORVEL_API void V_Reverse2(matrix<int>* x, int n);
KORVEL_API void V_Reverse2(matrix<short int>* x, int n);

#endif
