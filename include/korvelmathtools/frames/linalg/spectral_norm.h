/**
 * @file
 * Flat functions: the spectral norm of a table.
 */
#ifndef KORVEL_FRAMES_LINALG_SPECTRAL_NORM_H
#define KORVEL_FRAMES_LINALG_SPECTRAL_NORM_H

#include "frames/types.h"

/**
 * The largest singular value of a square table.
 *
 * @param a    [in] rows by cols numbers, column after column; not read unless the counts are equal
 * @param rows rows
 * @param cols columns
 * @return the norm; 0.0 when the counts differ; the missing value when a product of two rows is missing, or
 * for counts of 0
 */
KORVEL_FLAT double Cpp_M_Norm2(const double* a, int rows, int cols);

#endif
