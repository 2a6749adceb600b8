/**
 * @file
 * Samples of the rows of a table of texts.
 *
 * A table is a `matrix`, or an array of one-column chunks in the routines named SPV. `sample` receives the
 * sampled rows, one below the other; the caller has sized it. Writes outside a table go to its `oobValue`,
 * and reads outside give `oobValue`, or the empty text before the first row.
 */
#ifndef KORVEL_RANDOM_SAMPLING_H
#define KORVEL_RANDOM_SAMPLING_H

#include "containers/matrix.h"
#include "platform/export.h"

/**
 * Simple random sample with replacement: row `floor(rows * u) + 1` for each of `k` draws u of `Random01`, in
 * the order of the rows.
 *
 * @param table    `rows` by `cols`
 * @param rows     its rows
 * @param cols     its columns
 * @param k        size of the sample; below 1 nothing is drawn
 * @param sample   receives `k` rows
 * @param selected receives the `k` row numbers, from 1, ascending
 * @param seed     in: the seed, when `flag` is not 0. Out: the seed in use, when `flag` is 0
 * @param flag     0 when no seed is given
 * @param nextSeed receives what `GetSeedUpdate` gives
 *
 * The negative draws of MT19937 give row numbers below 1.
 */
KORVEL_API void M_SamplingWithReplacement(matrix<text>* table, int rows, int cols, int k,
                                          matrix<text>* sample, matrix<double>* selected, int* seed,
                                          short int flag, int* nextSeed);

/**
 * Takes each row as many times as the caller says, in the order of the rows.
 *
 * @param table    `rows` by `cols`
 * @param rows     its rows; below 1 nothing is done
 * @param cols     its columns
 * @param sample   receives the rows, each row's copies one below the other
 * @param counts   `rows` numbers, truncated; a row with a number below 1 is left out
 * @param selected receives the row number, from 1, of each row of the sample
 */
KORVEL_API void M_SampleUserDefined(matrix<text>* table, int rows, int cols, matrix<text>* sample,
                                    matrix<double>* counts, matrix<double>* selected);

/** The same on chunks, one for each column. */
KORVEL_API void M_SampleUserDefinedSPV(matrix<text>** table, int rows, int cols, matrix<text>** sample,
                                       matrix<double>* counts, matrix<double>* selected);

/**
 * Systematic sample with a random start. With the step s = floor((rows - 1) / (k - 1)) and the span
 * m = rows - (k - 1) * s, the start is row r0 = floor(u * m) + 1 for one draw u of `Random01`, and every s-th
 * row from there on is taken, `k` in all.
 *
 * @param table    `rows` by `cols`
 * @param rows     its rows
 * @param cols     its columns
 * @param k        size of the sample. With `k` of 1 only the start is taken, and from all rows; with more
 * than there are rows the step is 0, and only the start is taken
 * @param sample   receives the rows taken; what it has beyond them stays
 * @param selected `rows` elements: receives `rows + 1` for each row that is not taken; the others stay
 * @param seed     in: the seed, when `flag` is not 0. Out: the seed in use, when `flag` is 0
 * @param flag     0 when no seed is given
 * @param nextSeed receives what `GetSeedUpdate` gives
 */
KORVEL_API void M_SamplingSystematicRdStart(matrix<text>* table, int rows, int cols, int k,
                                            matrix<text>* sample, matrix<double>* selected, int* seed,
                                            short int flag, int* nextSeed);

/** The same on chunks, one for each column. */
KORVEL_API void M_SamplingSystematicRdStartSPV(matrix<text>** table, int rows, int cols, int k,
                                               matrix<text>** sample, matrix<double>* selected, int* seed,
                                               short int flag, int* nextSeed);

/**
 * Systematic sample with a start in the middle of the span: as `M_SamplingSystematicRdStart` with 0.5 in the
 * place of the draw. Nothing is drawn.
 *
 * @param table    `rows` by `cols`
 * @param rows     its rows
 * @param cols     its columns
 * @param k        size of the sample
 * @param sample   receives the rows taken; what it has beyond them stays
 * @param selected `rows` elements: receives `rows + 1` for each row that is not taken; the others stay
 */
KORVEL_API void M_SamplingSystematicCentered(matrix<text>* table, int rows, int cols, int k,
                                             matrix<text>* sample, matrix<double>* selected);

/** The same on chunks, one for each column. */
KORVEL_API void M_SamplingSystematicCenteredSPV(matrix<text>** table, int rows, int cols, int k,
                                                matrix<text>** sample, matrix<double>* selected);

/**
 * One random row from each stratum of consecutive rows. With step s and span m as for the systematic sample,
 * the strata are centred at rows c = floor((m + 1) / 2), c + s, ... up to `rows`. Each has `m` rows, so
 * strata overlap if m is above s, and the last one may reach beyond the table.
 *
 * @param table    `rows` by `cols`
 * @param rows     its rows
 * @param cols     its columns
 * @param k        number of strata from which step and span are computed; there may be more. A step below 1,
 *                 from a `k` of 1 or above the number of rows, makes one stratum
 * @param sample   receives the row of each stratum
 * @param selected receives the row number, from 1, of each row of the sample
 * @param seed     in: the seed, when `flag` is not 0. Out: the seed in use, when `flag` is 0
 * @param flag     0 when no seed is given
 * @param nextSeed receives what `GetSeedUpdate` gives
 */
KORVEL_API void M_SamplingRandomStratified(matrix<text>* table, int rows, int cols, int k,
                                           matrix<text>* sample, matrix<double>* selected, int* seed,
                                           short int flag, int* nextSeed);

/** The same on chunks, one for each column. */
KORVEL_API void M_SamplingRandomStratifiedSPV(matrix<text>** table, int rows, int cols, int k,
                                              matrix<text>** sample, matrix<double>* selected, int* seed,
                                              short int flag, int* nextSeed);

/**
 * Simple random sample with replacement from each stratum, a stratum being the rows of one label.
 *
 * @param table    `rows` by `cols`
 * @param rows     its rows; below 1 nothing is done
 * @param cols     its columns
 * @param k        size of the whole sample; rows beyond it are drawn but not stored
 * @param sample   receives the rows, stratum after stratum in ascending order of the labels, in each in row
 *                 order
 * @param strata   `rows` labels, in any order
 * @param selected receives the row number, from 1, of each row of the sample; 0 for one outside its stratum
 * @param counts   one number for each stratum, in the order of the sample, truncated: the size of its sample
 * @param seed     in: the seed, when `flag` is not 0. Out: the seed in use, when `flag` is 0
 * @param flag     0 when no seed is given
 * @param nextSeed receives what `GetSeedUpdate` gives after the last stratum
 *
 * Each stratum is sampled as by `M_SamplingWithReplacement`, the first from the seed and each next one
 * without one, so that the sequence goes on. Rows with the same label keep their order.
 */
KORVEL_API void M_SamplingRandomStratifiedByStr(matrix<text>* table, int rows, int cols, int k,
                                                matrix<text>* sample, matrix<text>* strata,
                                                matrix<double>* selected, matrix<double>* counts, int* seed,
                                                short int flag, int* nextSeed);

namespace korvel
{

/** Rows of the sample that `M_SampleUserDefined` makes; at most 2147483647. */
[[nodiscard]] int userDefinedSampleSize(const matrix<double>& counts, int rows);

} // namespace korvel

#endif
