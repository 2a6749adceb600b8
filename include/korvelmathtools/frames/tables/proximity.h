/**
 * @file
 * Flat functions: tables of similarities and of dissimilarities.
 */
#ifndef KORVEL_FRAMES_TABLES_PROXIMITY_H
#define KORVEL_FRAMES_TABLES_PROXIMITY_H

#include "frames/types.h"

/**
 * Tells similarities from dissimilarities. Dissimilarities have only zeros on the diagonal and no negative
 * cell; similarities have a constant diagonal that no other cell exceeds. Symmetry is not asked for. Missing
 * cells off the diagonal are passed over.
 *
 * @param x    [in] rows by cols numbers
 * @param rows rows of x
 * @param cols columns of x
 * @return 1 for similarities; 2 for dissimilarities, also when all cells are 0; 0 for neither, and for a
 * table that is not square or has no rows
 */
KORVEL_FLAT int VB_M_CheckIfSimOrDissim(const double* x, int rows, int cols);

/**
 * Tells similarities from dissimilarities. Dissimilarities have only zeros on the diagonal and no negative
 * cell; similarities have a constant diagonal that no other cell exceeds. Symmetry is not asked for. Missing
 * cells off the diagonal are passed over.
 *
 * @param x    [in] chunked table of cols columns of rows numbers
 * @param rows rows of x
 * @param cols columns of x
 * @return 1 for similarities; 2 for dissimilarities, also when all cells are 0; 0 for neither, and for a
 * table that is not square or has no rows
 */
KORVEL_FLAT int VB_M_CheckIfSimOrDissimSPV(Hostarray** x, int rows, int cols);

/**
 * Turns similarities into dissimilarities: every cell becomes the largest cell of the table less itself.
 * Missing cells stay and do not count as the largest.
 *
 * @param x [inout] n by n numbers
 * @param n order
 * @return 0
 */
KORVEL_FLAT int VB_M_TransformSimToDissim(double* x, int n);

#endif
