/**
 * @file
 * Correlations of columns that stand apart in memory, for routines that fit models to them.
 */
#ifndef KORVEL_STATISTICS_CHUNK_CORRELATIONS_H
#define KORVEL_STATISTICS_CHUNK_CORRELATIONS_H

#include "containers/matrix.h"

namespace korvel
{

/**
 * `M_CovCorrAndMeanStDevVar` on `cols` chunks of `rows` elements: correlations and not covariances, no row
 * left out, both denominator flags set, an undefined correlation 0, and the chunks left as they are.
 */
void correlationsOfChunks(matrix<double>* const* x, int rows, int cols, matrix<double>& out,
                          matrix<double>& means, matrix<double>& sds, matrix<double>& vars,
                          const matrix<double>& w);

} // namespace korvel

#endif
