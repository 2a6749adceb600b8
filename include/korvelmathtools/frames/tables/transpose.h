/**
 * @file
 * Flat functions: transposed tables. Cells are moved as they are, missing ones too.
 */
#ifndef KORVEL_FRAMES_TABLES_TRANSPOSE_H
#define KORVEL_FRAMES_TABLES_TRANSPOSE_H

#include "frames/types.h"

/**
 * Transposes a table of numbers.
 *
 * @param x    [in] rows by cols numbers
 * @param rows rows of x
 * @param cols columns of x
 * @param y    [out] cols by rows numbers; may be x
 * @return 0
 */
KORVEL_FLAT int VB_M_Transpose(const double* x, int rows, int cols, double* y);

/**
 * Transposes a table of integers.
 *
 * @like VB_M_Transpose, integers for numbers
 */
KORVEL_FLAT int VB_M_TransposeLng(const int* x, int rows, int cols, int* y);

/**
 * Transposes a table of texts.
 *
 * @like VB_M_Transpose, texts for numbers
 * @param y    [inout] cols by rows texts, replaced where they differ; may be x
 */
KORVEL_FLAT int VB_M_TransposeStr(OLECHAR* const* x, int rows, int cols, OLECHAR** y);

/**
 * Transposes a table of numbers in place.
 *
 * @param x    [inout] rows by cols numbers; cols by rows on return
 * @param rows rows of x
 * @param cols columns of x
 * @return 0
 */
KORVEL_FLAT int VB_M_Transpose2(double* x, int rows, int cols);

/**
 * Transposes a table of integers in place.
 *
 * @like VB_M_Transpose2, integers for numbers
 */
KORVEL_FLAT int VB_M_Transpose2Lng(int* x, int rows, int cols);

/**
 * Transposes a table of texts in place.
 *
 * @param x    [inout] rows by cols texts, replaced where they differ; cols by rows on return
 * @param rows rows of x
 * @param cols columns of x
 * @return 0
 */
KORVEL_FLAT int VB_M_Transpose2Str(OLECHAR** x, int rows, int cols);

/**
 * Transposes a table of separate columns of numbers.
 *
 * @param x    [in] chunked table of cols columns of rows numbers
 * @param rows rows of x
 * @param cols columns of x
 * @param y    [out] chunked table of rows columns of cols numbers; none of x
 * @return 0
 */
KORVEL_FLAT int VB_M_TransposeSPV(Hostarray** x, int rows, int cols, Hostarray** y);

#endif
