/**
 * @file
 * All pivots of a table swept, for routines that have made the table themselves.
 */
#ifndef KORVEL_LINALG_SWEEP_PIVOTS_H
#define KORVEL_LINALG_SWEEP_PIVOTS_H

#include "containers/matrix.h"

namespace korvel
{

/** `G2SweepStep(&table, n, k, tolerance)` for each pivot k, in ascending order. */
void sweepPivots(matrix<double>& table, int n, double tolerance);

} // namespace korvel

#endif
