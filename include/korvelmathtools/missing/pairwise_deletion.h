/**
 * @file
 * The positions at which two series are both observed.
 */
#ifndef KORVEL_MISSING_PAIRWISE_DELETION_H
#define KORVEL_MISSING_PAIRWISE_DELETION_H

#include "containers/matrix.h"
#include "platform/export.h"

/**
 * Keeps the elements of three series where the first two are both above `MISSING_DBL`; a NaN is not.
 *
 * Vectors are read and written through the checked access of `matrix`. A series and a result that are the
 * same vector are read and written in turn.
 *
 * @param x    the first series, `n` elements
 * @param y    the second series, `n` elements
 * @param z    what goes with them, `n` elements
 * @param n    length of the series
 * @param xOut receives the kept elements of `x` from position 1 on. Position 0 is spare and never written, so
 * `n + 1` elements are room enough
 * @param yOut receives those of `y` likewise
 * @param zOut receives those of `z` likewise
 * @return how many positions are kept; 0 when there is none, and then nothing is written
 */
KORVEL_API int V_PairwiseDeletion(matrix<double> const& x, matrix<double> const& y, matrix<double> const& z,
                                  int n, matrix<double>& xOut, matrix<double>& yOut, matrix<double>& zOut);

#endif
