/**
 * @file
 * Missing cells of a table filled in from its principal components, found by the NIPALS iteration, which
 * passes missing cells over (H. Wold, Estimation of principal components and related models by iterative
 * least squares, 1966).
 */
#ifndef KORVEL_FITTING_NIPALS_H
#define KORVEL_FITTING_NIPALS_H

#include "containers/matrix.h"
#include "platform/export.h"

/**
 * Fills the missing cells of a table.
 *
 * Each cell is taken times its weight, less the weighted mean of its column, on the scale of the covariances;
 * a column whose weighted deviation is not above 1e-6 is all 0. Scores and loadings are improved in turn,
 * over the cells that are there, until the loadings change by no more than the tolerance; then the component
 * is taken off, and the next one follows. A missing cell becomes the sum of its scores times loadings, plus
 * the mean, over the weight; 0 in a row of weight 0. Each component starts from the same column: the last one
 * that misses fewer cells than the one before it.
 *
 * There is no limit to the passes. But one that comes back, bit for bit, to loadings that it had before would
 * go on for ever: it ends. So it is with one column alone, and with a tolerance that is never met.
 *
 * @param n            rows
 * @param p            columns; below 1 nothing is done
 * @param X            the table, `n` by `p`, completed in place. A NaN is a number
 * @param weights      `n` weights
 * @param tolerance    the largest variance of the changes of the loadings that ends a component
 * @param components   how many components are taken; below 1 none, so that a cell becomes the mean over the
 * weight. Beyond `p` there is no room for them: all scores, and all loadings, of such a one are a single
 * number
 * @param columnShare  the largest share of missing cells in a column
 * @param tableShare   the largest share of missing cells in the table
 * @return 0 when the table is complete, or was; -6 when too many cells are missing; 1 when a component cannot
 * be found, for the scores vanish, or its iteration does not end. With -6 and 1 the table is as it was
 * @throws std::bad_alloc when memory is short
 */
KORVEL_API int NIPALS(int n, int p, matrix<double>* X, matrix<double>* weights, double tolerance,
                      int components, double columnShare, double tableShare);

#endif
