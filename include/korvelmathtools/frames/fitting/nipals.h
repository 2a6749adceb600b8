/**
 * @file
 * Flat functions: missing cells filled in from principal components.
 */
#ifndef KORVEL_FRAMES_FITTING_NIPALS_H
#define KORVEL_FRAMES_FITTING_NIPALS_H

#include "frames/types.h"

/**
 * Fills the missing cells of a table from its principal components, found by the NIPALS iteration over the
 * cells that are there. Cells are weighted and centred but not scaled. A missing cell in a row of weight 0
 * becomes 0.
 *
 * @param n           rows
 * @param p           columns; with a single one no component can be found
 * @param x           [inout] n by p numbers, column after column
 * @param weights     [in] n weights
 * @param tolerance   the largest variance of the changes of the loadings that ends a component
 * @param components  how many components are taken; below 1 none, so that a cell becomes the mean over the
 * weight
 * @param columnShare the largest share of missing cells in a column
 * @param tableShare  the largest share of missing cells in the table
 * @return 0 when the table is complete, or was; -6 when too many cells are missing; 1 when a component cannot
 * be found. With -6 and 1 the table is as it was
 */
KORVEL_FLAT int Cpp_NIPALS(int n, int p, double* x, const double* weights, double tolerance, int components,
                           double columnShare, double tableShare);

#endif
