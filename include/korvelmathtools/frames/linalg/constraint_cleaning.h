/**
 * @file
 * Flat functions: determinants, factors and inverses of the free part of a table, where some parameters of a
 * model are held fixed. A position is free when its constraint is 0; a positive one takes it out. A negative
 * one is neither: it leaves a row and a column of zeros in the reduced table.
 */
#ifndef KORVEL_FRAMES_LINALG_CONSTRAINT_CLEANING_H
#define KORVEL_FRAMES_LINALG_CONSTRAINT_CLEANING_H

#include "frames/types.h"

/**
 * The determinant of the free rows and columns.
 *
 * @param a           [in] n by n numbers, column after column
 * @param n           rows and columns
 * @param constraints [in] n integers
 * @param status      [out] one status: 0; -1: a row has only zeros, or the logarithm of the magnitude is
 * above 709, or memory is short; 1: all of the first column is NaN
 * @return the determinant, as VB_M_Determinant returns it; 1.0 when no position is left
 */
KORVEL_FLAT double VB_M_DeterminantCleaned(const double* a, int n, const int* constraints, short int* status);

/**
 * The determinant of the free rows and columns of a symmetric table, held as a triangle.
 *
 * @like VB_M_DeterminantCleaned
 * @param a           [in] host array of n columns of numbers; column j runs from the diagonal down
 */
KORVEL_FLAT double Cpp_M_DeterminantCleanedSPV_T(Hostarray** a, int n, const int* constraints,
                                                 short int* status);

/**
 * Cholesky factor of the free rows and columns. A pivot fails when it is below 0, or is 0 and has elements
 * below it: a positive semidefinite table may pass.
 *
 * @param a           [in] n by n numbers, column after column
 * @param n           rows and columns
 * @param constraints [in] n integers
 * @param l           [inout] n by n numbers; the columns of free positions are written whole, with 0 in the
 * other rows. The other columns stay as they are, and so does all of l on failure
 * @return 0; -1: a pivot fails
 */
KORVEL_FLAT int VB_M_CholDecompCleaned(const double* a, int n, const int* constraints, double* l);

/**
 * Inverse of the free rows and columns. A table with a pivot of at most 1e-8 in magnitude is singular and
 * gets a generalised inverse by sweeping, in which pivots below 1e-12 give zeros. A single free cell gives
 * its reciprocal, 0 counting as 1e-12.
 *
 * @param n           rows and columns
 * @param constraints [in] n integers
 * @param h           [in] n by n numbers, column after column
 * @param inverse     [inout] n by n numbers; the columns of free positions are written whole, with 0 in the
 * other rows. The other columns stay as they are: pass zeros. May be the array that is read
 * @return 0; 1: the reduced table was singular
 */
KORVEL_FLAT int CleanConstraintsAndInvert(int n, const int* constraints, const double* h, double* inverse);

/**
 * Inverse of the free rows and columns of a triangular table. A single free cell gives its reciprocal, 0
 * counting as 1e-12.
 *
 * @param n           rows and columns
 * @param constraints [in] n integers
 * @param t           [in] n by n numbers, column after column
 * @param lowerFlag   0: t is upper triangular; any other value: lower triangular
 * @param inverse     [inout] n by n numbers, as for CleanConstraintsAndInvert; stays as it is on failure
 * @return 0; -1: an element of the diagonal is below 1e-12 in magnitude
 */
KORVEL_FLAT int CleanConstraintsAndInvertTriang(int n, const int* constraints, const double* t,
                                                short int lowerFlag, double* inverse);

#endif
