/**
 * @file
 * The variables of a correlation table in an order for display.
 */
#ifndef KORVEL_DOMAIN_CORRELATION_ORDER_H
#define KORVEL_DOMAIN_CORRELATION_ORDER_H

#include "containers/matrix.h"
#include "platform/export.h"

/**
 * Sorts the variables of a correlation table by a key of each, from the largest down; equal keys keep their
 * order. The diagonal of the table is set to 1.0 first.
 *
 * The keys of methods 1 and 2 are taken from the first row of the table, whichever variable they are for. All
 * but the key of variable 1 see the 1.0 on the diagonal; that one does not. So these keys tell apart only
 * variable 1 from the others.
 *
 * @param corr    `n` by `n`, in place; only its rows and columns move. A table that is not symmetric comes
 * back transposed, and so do `pValues` and `flags`
 * @param n       number of variables
 * @param method  1: the key is the largest cell; 2: the variance of the cells, by `V_Var` with both flags -1;
 * 3: the cell of the first eigenvector, by `M_Eigen`, unless a cell of the table is missing or the iteration
 * does not converge; otherwise all keys are 0.0, and the order stays
 * @param labels  `n` labels, in place
 * @param pValues `n` by `n`, in place
 * @param flags   `n` by `n`, in place
 * @throws std::bad_alloc when memory is short
 */
KORVEL_API void ReOrderCorrelations(matrix<double>* corr, int n, int method, matrix<text>* labels,
                                    matrix<double>* pValues, matrix<int>* flags);

#endif
