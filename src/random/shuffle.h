/**
 * @file
 * Shuffling the rows of a table.
 */
#ifndef KORVEL_RANDOM_SHUFFLE_H
#define KORVEL_RANDOM_SHUFFLE_H

#include "containers/matrix.h"

namespace korvel
{

/**
 * Brings the rows of a table into the order of a random permutation, all columns alike: row i of the result
 * is row p[i] of the table, where p is what `random1toN` draws. For `double`, `int` and `text`.
 *
 * @param x        `rows` by `cols`
 * @param rows     its rows; below 2 nothing is drawn
 * @param cols     its columns; the permutation is drawn also when there are none
 * @param out      receives `rows` by `cols`; may be `x`
 * @param seed     in: the seed, when `flag` is not 0. Out: the seed in use, when `flag` is 0
 * @param flag     0 when no seed is given
 * @param nextSeed receives what `GetSeedUpdate` gives
 *
 * Under MT19937 one element of the permutation may not be a row number. That row of the result has the value
 * of an element outside a fresh matrix: -1 or the empty text.
 */
template <class T>
void shuffleRows(const matrix<T>& x, int rows, int cols, matrix<T>& out, int* seed, short int flag,
                 int* nextSeed);

} // namespace korvel

#endif
