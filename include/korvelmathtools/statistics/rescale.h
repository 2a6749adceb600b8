/**
 * @file
 * Vectors brought to a range, and scores of their elements.
 *
 * A vector is the first `n` elements of a `matrix`, through its checked access. An element that equals
 * `MISSING_DBL` is missing; a NaN is a number. With `n` below 1 no element is read or written.
 */
#ifndef KORVEL_STATISTICS_RESCALE_H
#define KORVEL_STATISTICS_RESCALE_H

#include "containers/matrix.h"
#include "platform/export.h"

/**
 * Brings a vector to the range from `lo` to `hi`: (x - a) * (hi - lo) / r + lo, where a is the smallest
 * element kept and r the largest less the smallest. Where all elements kept are equal, r is 0, and the result
 * is what the division gives: a NaN.
 *
 * @param x        the vector
 * @param n        number of elements
 * @param lo       what the smallest element becomes
 * @param hi       what the largest element becomes
 * @param iMissing `n` flags; an element with a non-zero flag is left out, and so is a missing one. Null: no
 *                 flag is set
 * @param out      receives the result, room for `n` elements; an element left out becomes missing. Null: `x`
 *                 is changed in place, and an element left out stays. May be `x`
 */
KORVEL_API void V_Rescale(matrix<double>* x, int n, double lo, double hi, short int* iMissing,
                          matrix<double>* out);

/**
 * Scores of the elements: how far each lies from the centre, in deviations. A missing element has a missing
 * score, and so has every element when the deviation is not greater than 2.220446049250313e-16.
 *
 * @param x       the vector
 * @param n       number of elements
 * @param bRobust 0: (x - centre) / scale. Any other value: the modified scores of B. Iglewicz and D. Hoaglin
 *                (How to Detect and Handle Outliers, 1993), 0.6745 * (x - median) / MAD, the median and the
 *                median absolute deviation being those of `V_MedianAbsDev2`, in which a missing element
 *                counts as the smallest number
 * @param centre  the centre; when it is missing, it and `scale` become the mean and the standard deviation of
 *                `V_MeanStdev2`, divided by the number of elements less 1. Not read or written by the robust
 *                scores
 * @param scale   the deviation; not read or written by the robust scores
 * @param out     receives the scores, room for `n`. May be `x`
 */
KORVEL_API void V_ZScores(matrix<double>* x, int n, short int bRobust, double& centre, double& scale,
                          matrix<double>* out);

namespace korvel
{

/**
 * `V_Rescale` on each column of a table, each to a range of its own.
 *
 * @param x        `rows` by `cols`
 * @param lo       `cols` lower ends
 * @param hi       `cols` upper ends
 * @param iMissing `rows` flags, or null
 * @param out      receives `rows` by `cols` cells; null: `x` is changed in place
 */
void rescaleColumns(matrix<double>& x, int rows, int cols, const matrix<double>& lo, const matrix<double>& hi,
                    short int* iMissing, matrix<double>* out);

/** `V_ZScores`; for the robust scores `centre` and `scale` may be null. */
void zScores(matrix<double>& x, int n, short int bRobust, double* centre, double* scale, matrix<double>& out);

} // namespace korvel

#endif
