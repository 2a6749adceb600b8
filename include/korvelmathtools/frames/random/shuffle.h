/**
 * @file
 * Flat functions: shuffled vectors and tables.
 *
 * Places are drawn, and the random source is started from the seed, as in Cpp_Random1toNLong.
 */
#ifndef KORVEL_FRAMES_RANDOM_SHUFFLE_H
#define KORVEL_FRAMES_RANDOM_SHUFFLE_H

#include "frames/types.h"

/**
 * Shuffles a vector of numbers.
 *
 * @param x        [inout] n numbers
 * @param n        number of elements
 * @param seed     [inout] one integer: the seed, when flag is not 0; receives the seed in use when flag is 0
 * @param flag     not 0: a seed is given
 * @param nextSeed [out] one integer: a seed for the next run
 * @return 0
 */
KORVEL_FLAT int Cpp_V_Shuffle(double* x, int n, int* seed, short int flag, int* nextSeed);

/**
 * Shuffles a vector of integers.
 *
 * @like Cpp_V_Shuffle, integers for numbers
 */
KORVEL_FLAT int Cpp_V_ShuffleLng(int* x, int n, int* seed, short int flag, int* nextSeed);

/**
 * Shuffles the rows of a table of numbers in place; the columns of a row stay together.
 *
 * @param x        [inout] rows by cols numbers
 * @param rows     number of rows
 * @param cols     number of columns
 * @param seed     [inout] one integer: the seed, when flag is not 0; receives the seed in use when flag is 0
 * @param flag     not 0: a seed is given
 * @param nextSeed [out] one integer: a seed for the next run
 * @return 0
 */
KORVEL_FLAT int Cpp_M_ShuffleDbl2(double* x, int rows, int cols, int* seed, short int flag, int* nextSeed);

/**
 * Shuffles the rows of a table of texts in place; the columns of a row stay together.
 *
 * @like Cpp_M_ShuffleDbl2, texts for numbers
 */
KORVEL_FLAT int Cpp_M_ShuffleStr2(OLECHAR** x, int rows, int cols, int* seed, short int flag, int* nextSeed);

/**
 * Shuffles the rows of a table of numbers into another table; the columns of a row stay together.
 *
 * @like Cpp_M_ShuffleDbl2
 * @param x        [in] rows by cols numbers
 * @param out      [out] rows by cols numbers; may be x
 */
KORVEL_FLAT int Cpp_M_ShuffleDbl(const double* x, int rows, int cols, double* out, int* seed, short int flag,
                                 int* nextSeed);

/**
 * Shuffles the rows of a table of texts into another table; the columns of a row stay together.
 *
 * @like Cpp_M_ShuffleDbl2
 * @param x        [in] rows by cols texts
 * @param out      [inout] rows by cols texts, replaced where they differ; may be x
 */
KORVEL_FLAT int Cpp_M_ShuffleStr(OLECHAR* const* x, int rows, int cols, OLECHAR** out, int* seed,
                                 short int flag, int* nextSeed);

#endif
