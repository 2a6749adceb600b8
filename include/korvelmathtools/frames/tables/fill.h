/**
 * @file
 * Flat functions: vectors and flags filled by a rule.
 */
#ifndef KORVEL_FRAMES_TABLES_FILL_H
#define KORVEL_FRAMES_TABLES_FILL_H

#include "frames/types.h"

/**
 * Numbers a vector: element k, from 1, becomes k.
 *
 * @param x [out] n numbers
 * @param n number of elements
 * @return 0
 */
KORVEL_FLAT int VB_V_Set1toNDbl(double* x, int n);

/**
 * Numbers a vector: element k, from 1, becomes k.
 *
 * @param x [out] n integers
 * @param n number of elements
 * @return 0
 */
KORVEL_FLAT int VB_V_Set1toNLng(int* x, int n);

/**
 * Numbers a vector: element k, from 1, becomes k, in decimal digits.
 *
 * @param x [inout] n texts, replaced where they differ
 * @param n number of elements
 * @return 0
 */
KORVEL_FLAT int VB_V_Set1toNStr(OLECHAR** x, int n);

/**
 * Sets flags to false.
 *
 * @param flags [out] n flags, each 0 on return
 * @param n     number of flags
 * @return 0
 */
KORVEL_FLAT int VB_InitVectorToFalse(short int* flags, int n);

/**
 * Sets flags to true.
 *
 * @param flags [out] n flags, each -1 on return
 * @param n     number of flags
 * @return 0
 */
KORVEL_FLAT int VB_InitVectorToTrue(short int* flags, int n);

/**
 * Flags the cells of a table that equal a number.
 *
 * @param x     [in] rows by cols integers
 * @param rows  rows of both tables
 * @param cols  columns of both tables; 0 stands for 1
 * @param value the number; the missing integer is one like the others
 * @param flags [out] rows by cols flags: -1 where the cell equals value, otherwise 0
 * @return 0
 */
KORVEL_FLAT int Cpp_M_SetBooleanIfLng(const int* x, int rows, int cols, int value, short int* flags);

#endif
