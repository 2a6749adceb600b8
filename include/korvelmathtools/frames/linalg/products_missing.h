/**
 * @file
 * Flat functions: products of tables with missing cells. Every element is one sum from 0.0 in ascending
 * order, each term a multiplication and then an addition. What is read is copied first, so a result may be
 * written over an array that is read.
 */
#ifndef KORVEL_FRAMES_LINALG_PRODUCTS_MISSING_H
#define KORVEL_FRAMES_LINALG_PRODUCTS_MISSING_H

#include "frames/types.h"

/**
 * Product of two tables that heeds missing cells: where a term has a missing factor, c(i,j) is missing. So
 * one missing cell of a blanks a row of c, and one of b a column.
 *
 * @param a [in] n by p numbers
 * @param n rows of a
 * @param p columns of a
 * @param b [in] p by q numbers
 * @param q columns of b
 * @param c [out] n by q numbers, column after column; may be an array that is read
 * @return 0
 */
KORVEL_FLAT int VB_M_ProductABMissing(const double* a, int n, int p, const double* b, int q, double* c);

#endif
