/**
 * @file
 * Flat functions: the variables of a correlation table in an order for display.
 */
#ifndef KORVEL_FRAMES_DOMAIN_CORRELATION_ORDER_H
#define KORVEL_FRAMES_DOMAIN_CORRELATION_ORDER_H

#include "frames/types.h"

/**
 * Sorts the variables of a correlation table by a key of each, from the largest down; equal keys keep their
 * order. The diagonal is set to 1.0 first. The keys of methods 1 and 2 are taken from the first row for all
 * variables, and only that of variable 1 leaves the diagonal out.
 *
 * @param corr    [inout] n by n numbers; not symmetric ones come back transposed
 * @param n       number of variables
 * @param method  1: the key is the largest cell; 2: the variance of the cells; 3: the cell of the first
 * eigenvector, unless a cell is missing; any other number: the order stays
 * @param labels  [inout] n texts
 * @param pValues [inout] n by n numbers, which move along
 * @param flags   [inout] n by n integers, which move along
 * @return 0
 */
KORVEL_FLAT int Cpp_ReOrderCorrelations(double* corr, int n, int method, OLECHAR** labels, double* pValues,
                                        int* flags);

#endif
