/**
 * @file
 * Tables filled with random numbers.
 */
#ifndef KORVEL_RANDOM_RANDOM_TABLE_H
#define KORVEL_RANDOM_RANDOM_TABLE_H

#include "containers/matrix.h"
#include "platform/export.h"

/**
 * Fills a table with `Random01` draws, row after row.
 *
 * @param out      the table, `rows` by `cols`, already sized; cells that it does not have are drawn and go to
 *                 its `oobValue`, which ends holding the last draw
 * @param rows     number of rows; below 1 nothing is drawn
 * @param cols     number of columns; below 1 nothing is drawn
 * @param seed     in: the seed, when `flag` is not 0. Out: the seed in use, when `flag` is 0
 * @param flag     0 when no seed is given
 * @param nextSeed receives what `GetSeedUpdate` gives
 *
 * Seeding and next seed are done in every case, as by `GetSeed` and `GetSeedUpdate`.
 */
KORVEL_API void M_GenerateRandom01(matrix<double>& out, int rows, int cols, int* seed, short int flag,
                                   int* nextSeed);

/**
 * The same with each draw truncated toward zero. Every cell is 0, except where MT19937 draws -1 or 1, the
 * ends of its range.
 *
 * @param out      the table, `rows` by `cols`, already sized
 * @param rows     number of rows; below 1 nothing is drawn
 * @param cols     number of columns; below 1 nothing is drawn
 * @param seed     in: the seed, when `flag` is not 0. Out: the seed in use, when `flag` is 0
 * @param flag     0 when no seed is given
 * @param nextSeed receives what `GetSeedUpdate` gives
 */
KORVEL_API void M_GenerateRandom01(matrix<int>* out, int rows, int cols, int* seed, short int flag,
                                   int* nextSeed);

namespace korvel
{

/**
 * Fills a column-major array with `Random01` draws in storage order, column after column.
 *
 * Takes and hands back seeds as `M_GenerateRandom01`, which gives the same draws to the transposed cells.
 */
void generateRandom01(double* out, int rows, int cols, int* seed, short int flag, int* nextSeed);

} // namespace korvel

#endif
