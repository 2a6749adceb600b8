/**
 * @file
 * Flat functions: products through an inverse, all tables column after column. No failure is reported, and no
 * cell is looked at for being missing. What is read is copied first, so a result may be written over an array
 * that is read.
 */
#ifndef KORVEL_FRAMES_LINALG_PRODUCTS_INVERSE_H
#define KORVEL_FRAMES_LINALG_PRODUCTS_INVERSE_H

#include "frames/types.h"

/**
 * Product c = a' * g * a with g the generalised inverse of b by sweeping, as `Cpp_M_InverseG2` makes it with
 * the tolerance 1e-12. The work is shared among threads.
 *
 * @param a         [in] n by p numbers
 * @param n         rows of a
 * @param p         columns of a
 * @param b         [in] n by n numbers
 * @param symmetric 0: all of the product is summed. Any other value promises that b is symmetric: only the
 * lower half is summed and then mirrored
 * @param c         [out] p by p numbers; may be an array that is read
 * @return 0
 */
KORVEL_FLAT int VB_M_ProductTrAinvBA(const double* a, int n, int p, const double* b, short int symmetric,
                                     double* c);

/**
 * Product c = a * i * a' with i the inverse of b, as `VB_M_Inverse1` makes it: zeros when a pivot's magnitude
 * is at most 1e-8.
 *
 * @param a [in] n by p numbers
 * @param n rows of a
 * @param p columns of a
 * @param b [in] p by p numbers
 * @param c [out] n by n numbers; may be an array that is read
 * @return 0
 */
KORVEL_FLAT int VB_M_ProductAinvBTrA(const double* a, int n, int p, const double* b, double* c);

/**
 * The quadratic form v' * i * v with i the inverse of b, as `VB_M_Inverse1` makes it: zeros when a pivot's
 * magnitude is at most 1e-8.
 *
 * @param v [in] n numbers
 * @param n elements of v
 * @param b [in] n by n numbers
 * @return the number; 0.0 when b is singular, and when n is below 1
 */
KORVEL_FLAT double VB_M_ProductTrVinvBV(const double* v, int n, const double* b);

#endif
