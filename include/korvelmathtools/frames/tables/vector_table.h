/**
 * @file
 * Flat functions: tables laid out as vectors and vectors as tables, by column or by row. Cells are moved as
 * they are, missing ones too, unless a function says otherwise.
 */
#ifndef KORVEL_FRAMES_TABLES_VECTOR_TABLE_H
#define KORVEL_FRAMES_TABLES_VECTOR_TABLE_H

#include "frames/types.h"

/**
 * The columns of a table one below the other, as a vector.
 *
 * @param x    [in] rows by cols numbers
 * @param rows rows of x
 * @param cols columns of x
 * @param v    [out] rows by cols numbers; may be x
 * @return 0
 */
KORVEL_FLAT int Cpp_MatToVect(const double* x, int rows, int cols, double* v);

/**
 * A vector back in the shape of the table that Cpp_MatToVect laid it out from. What is missing in that table
 * is missing in the result, whatever the vector has in its place.
 *
 * @param v       [in] rows by cols numbers
 * @param pattern [in] rows by cols numbers; only its missing cells matter
 * @param rows    rows of the tables
 * @param cols    columns of the tables
 * @param x       [out] rows by cols numbers; may be v or pattern
 * @return 0
 */
KORVEL_FLAT int Cpp_VectToMat(const double* v, const double* pattern, int rows, int cols, double* x);

/**
 * The rows of a table one after the other, as a vector.
 *
 * @like Cpp_MatToVect
 */
KORVEL_FLAT int Cpp_M_CopyTabletoVectorByRowDbl(const double* x, int rows, int cols, double* v);

/**
 * The rows of a table one after the other, as a vector.
 *
 * @like Cpp_MatToVect, texts for numbers
 * @param v    [inout] rows by cols texts, replaced where they differ; may be x
 */
KORVEL_FLAT int Cpp_M_CopyTabletoVectorByRowStr(OLECHAR* const* x, int rows, int cols, OLECHAR** v);

/**
 * A vector cut into the rows of a table.
 *
 * @param v    [in] rows by cols numbers, row after row
 * @param rows rows of x
 * @param cols columns of x
 * @param x    [out] rows by cols numbers; may be v
 * @return 0
 */
KORVEL_FLAT int Cpp_M_CopyVectortoTableByRowDbl(const double* v, int rows, int cols, double* x);

/**
 * A vector cut into the rows of a table.
 *
 * @like Cpp_M_CopyVectortoTableByRowDbl, texts for numbers
 * @param x    [inout] rows by cols texts, replaced where they differ; may be v
 */
KORVEL_FLAT int Cpp_M_CopyVectortoTableByRowStr(OLECHAR* const* v, int rows, int cols, OLECHAR** x);

#endif
