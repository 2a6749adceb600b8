/**
 * @file
 * Flat functions: tables written to text files in the folder "matrix" on the user's desktop, for someone to
 * look at. The file is name.csv, or, where that exists, the first of name(1).csv, name(2).csv and so on that
 * does not. Its first line is "n = rows; p = cols", and each row has a line in which every cell is followed
 * by a semicolon. Nothing is reported: when the folder is not there, nothing is written.
 */
#ifndef KORVEL_FRAMES_TABLES_MATRIX_DUMP_H
#define KORVEL_FRAMES_TABLES_MATRIX_DUMP_H

#include "frames/types.h"

/**
 * Writes a table of numbers to a text file.
 *
 * @param a    [in] rows by cols numbers,
 *             written with 20 significant digits, a missing one like the others
 * @param rows rows of a
 * @param cols columns of a
 * @param name [in] base name of the file
 */
KORVEL_FLAT void Cpp_WriteMatrixDbl(const double* a, int rows, int cols, const char* name);

/**
 * Writes a table of integers to a text file.
 *
 * @param a    [in] rows by cols integers
 * @param rows rows of a
 * @param cols columns of a
 * @param name [in] base name of the file
 */
KORVEL_FLAT void Cpp_WriteMatrixLng(const int* a, int rows, int cols, const char* name);

/**
 * Writes a table of texts to a text file.
 *
 * @param a    [in] rows by cols texts,
 *             written in UTF-8, a missing one as nothing
 * @param rows rows of a
 * @param cols columns of a
 * @param name [in] base name of the file
 * @return 0
 */
KORVEL_FLAT int Cpp_WriteMatrixStr(OLECHAR* const* a, int rows, int cols, const char* name);

#endif
