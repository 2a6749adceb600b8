/**
 * @file
 * The forward Doolittle reduction of a symmetric table and its Hermite canonical form, which show what can be
 * estimated in a model that has not full rank.
 *
 * All tests are absolute, at 1e-12: what is no larger counts as zero, and a pivot that is no farther from 1
 * is left as it is. So a table in units of 1e-13 is a zero table. Cells are reached through the checked
 * access; missing ones are numbers.
 */
#ifndef KORVEL_LINALG_HERMITE_FORM_H
#define KORVEL_LINALG_HERMITE_FORM_H

#include "containers/matrix.h"
#include "platform/export.h"

/**
 * Forward Doolittle reduction of a symmetric table, of which the upper triangle is read and mirrored first.
 * For each k in ascending order:
 * - With |H(k,k)| at most 1e-12 row k becomes zeros from column k on, and the next k follows.
 * - With H(k,k) farther than 1e-12 from 1 the elements right of it are divided by it, and it becomes 1.
 * - Each row i below has H(k,j)·H(i,k) taken off its elements right of column k, H(i,k) becomes 0, and the
 *   row next to the pivot is divided by its new diagonal element d; when |d| is at most 1e-12 that row
 *   becomes zeros from column k on instead. No other row is divided.
 *
 * @param A `n` by `n`
 * @param n order; below 1 nothing is done
 * @param H receives `n` by `n`; not resized. May be A
 * @throws std::bad_alloc when memory is short
 */
KORVEL_API void M_ForwardDoolittle(matrix<double>* A, int n, matrix<double>* H);

/**
 * Hermite canonical form: the forward Doolittle reduction, in which then, for each k in ascending order whose
 * H(k,k) is nearer to 1 than 1e-12, every row i above with |H(i,k)| above 1e-12 has H(i,k) times row k taken
 * off right of column k, and H(i,k) becomes 0. What is no larger stays as it is.
 *
 * @param A `n` by `n`
 * @param n order; below 1 nothing is done
 * @param H receives `n` by `n`; not resized. May be A
 * @throws std::bad_alloc when memory is short
 */
KORVEL_API void M_HermiteCanonical(matrix<double>* A, int n, matrix<double>* H);

#endif
