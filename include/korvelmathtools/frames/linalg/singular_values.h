/**
 * @file
 * Flat functions: singular value decomposition a = u * diag(s) * v', by Householder bidiagonalisation and QR
 * iteration.
 *
 * The tests are absolute: a norm up to 1e-31 counts as zero, and so does an element of the bidiagonal form
 * that adds less than 2.220446049250313e-16 to its neighbours. Missing elements are the numbers that they
 * are.
 *
 * job is a number of two digits; higher ones are ignored. The tens digit asks for u: 0 none, 1 all n columns,
 * above 1 the first min(n, p). The units digit asks for v unless it is 0.
 */
#ifndef KORVEL_FRAMES_LINALG_SINGULAR_VALUES_H
#define KORVEL_FRAMES_LINALG_SINGULAR_VALUES_H

#include "frames/types.h"

/**
 * Singular value decomposition. A value may take 500 steps.
 *
 * @param a    [in] n by p numbers, column after column
 * @param n    rows
 * @param p    columns
 * @param s    [out] p numbers, of which the first min(n + 1, p) are written: min(n, p) singular values,
 * descending, and perhaps a 0
 * @param u    [out] n by n numbers, column after column; n by p numbers are enough when the job asks for
 * min(n, p) columns. May be null when it asks for none
 * @param v    [out] p by p numbers, column after column. May be null when the job does not ask for it
 * @param job  what is wanted, see above
 * @param info [out] one integer: 0; minus the number of values that did not converge, which are the first
 * ones
 * @return 0
 */
KORVEL_FLAT int VB_M_SVDecomp(const double* a, int n, int p, double* s, double* u, double* v, int job,
                              int* info);

/**
 * Singular value decomposition of a chunked table. A value may take 60 steps.
 *
 * @param a    [in] host array of p records, each with a numeric column of n numbers
 * @param n    rows
 * @param p    columns
 * @param s    [out] p numbers, of which the first min(n + 1, p) are written: min(n, p) singular values,
 * descending, and perhaps a 0
 * @param u    [inout] host array of a record for each column that the job asks for, each with a numeric
 * column of n numbers; a null array when it asks for none
 * @param v    [inout] host array of p records, each with a numeric column of p numbers; a null array when the
 * job does not ask for it
 * @param job  what is wanted, see above
 * @param info [out] one integer: 0; minus the number of values that did not converge, which are the first
 * ones
 * @return 0
 */
KORVEL_FLAT int VB_M_SVDecompSPV(Hostarray** a, int n, int p, double* s, Hostarray** u, Hostarray** v,
                                 int job, int* info);

#endif
