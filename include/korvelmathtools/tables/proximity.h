/**
 * @file
 * Square tables of similarities and dissimilarities.
 */
#ifndef KORVEL_TABLES_PROXIMITY_H
#define KORVEL_TABLES_PROXIMITY_H

#include "containers/matrix.h"
#include "platform/export.h"

/**
 * Tells similarities from dissimilarities by their diagonal and range. Symmetry is not asked for.
 *
 * Dissimilarities have only zeros on the diagonal and no negative cell. Similarities have a constant diagonal
 * that no other cell exceeds. Comparisons are exact. Cells off the diagonal that equal `MISSING_DBL` are
 * passed over; one on the diagonal, and a NaN anywhere, makes the table neither.
 *
 * @param x    `rows` by `cols`, read through the checked access
 * @param rows rows of the table
 * @param cols columns of the table
 * @return 1 for similarities; 2 for dissimilarities, also when they could be both (all zeros); 0 for neither,
 * and for a table that is not square or has no rows
 */
KORVEL_API int M_CheckIfSimOrDissim(matrix<double>* x, int rows, int cols);
/** The same on `cols` chunks. */
KORVEL_API int M_CheckIfSimOrDissimSPV(matrix<double>** x, int rows, int cols);

/**
 * Turns similarities into dissimilarities: every cell becomes the largest cell of the table less itself, so
 * that the most alike have 0. Cells that equal `MISSING_DBL` stay and do not count as the largest.
 *
 * @param x table of order `n`, in place
 * @param n order; nothing happens below 1
 */
KORVEL_API void M_TransformSimToDissim(matrix<double>*& x, int n);

#endif
