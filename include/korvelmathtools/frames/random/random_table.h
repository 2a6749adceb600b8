/**
 * @file
 * Flat functions: arrays of random numbers.
 */
#ifndef KORVEL_FRAMES_RANDOM_RANDOM_TABLE_H
#define KORVEL_FRAMES_RANDOM_RANDOM_TABLE_H

#include "frames/types.h"

/**
 * Seeds the random source and fills an array with uniform numbers in storage order, column after column.
 *
 * @param out      [out] rows by cols numbers, each as Cpp_Random01 returns it
 * @param rows     number of rows; below 1 nothing is drawn
 * @param cols     number of columns; below 1 nothing is drawn
 * @param seed     [inout] one integer: the seed, when flag is not 0; receives the seed in use when flag is 0
 * @param flag     not 0: a seed is given
 * @param nextSeed [out] one integer: a seed for the next run
 * @return 0
 *
 * The seeding and the next seed are done in every case.
 */
KORVEL_FLAT int VB_M_GenerateRandom01(double* out, int rows, int cols, int* seed, short int flag,
                                      int* nextSeed);

#endif
