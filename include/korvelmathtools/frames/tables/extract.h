/**
 * @file
 * Flat functions: a range of the rows, or of the columns, of a table as a table of its own. Both are counted
 * from 1. A result may be, or share memory with, a dense table that is read.
 */
#ifndef KORVEL_FRAMES_TABLES_EXTRACT_H
#define KORVEL_FRAMES_TABLES_EXTRACT_H

#include "frames/types.h"

/**
 * Takes a range of rows of a table of numbers. A row that it does not have gives -1.
 *
 * @param x        [in] rows by cols numbers
 * @param rows     rows of the table
 * @param cols     columns of the table; 0 stands for 1
 * @param firstRow first row of the range
 * @param lastRow  last row of the range; below firstRow nothing is done
 * @param out      [out] lastRow - firstRow + 1 by cols numbers
 * @return 0
 */
KORVEL_FLAT int VB_M_ExtractMatToMatDbl(const double* x, int rows, int cols, int firstRow, int lastRow,
                                        double* out);

/**
 * Takes a range of rows of a table of texts. A row that it does not have gives empty texts.
 *
 * @like VB_M_ExtractMatToMatDbl, texts for numbers
 */
KORVEL_FLAT int VB_M_ExtractMatToMatStr(OLECHAR* const* x, int rows, int cols, int firstRow, int lastRow,
                                        OLECHAR** out);

/**
 * Takes a range of rows of a chunked table of numbers. A row that it does not have gives -1.
 *
 * @like VB_M_ExtractMatToMatDbl
 * @param x        [in] host array of cols records, each with a numeric column of rows numbers
 * @param cols     columns of the table
 */
KORVEL_FLAT int VB_M_ExtractMatToMatDblSPV(Hostarray** x, int rows, int cols, int firstRow, int lastRow,
                                           double* out);

/**
 * Takes a range of rows of a chunked table of texts. A row that it does not have gives empty texts.
 *
 * @like VB_M_ExtractMatToMatDbl, texts for numbers
 * @param x        [in] host array of cols records, each with a text column of rows texts
 * @param cols     columns of the table
 */
KORVEL_FLAT int VB_M_ExtractMatToMatStrSPV(Hostarray** x, int rows, int cols, int firstRow, int lastRow,
                                           OLECHAR** out);

/**
 * Takes a range of rows of a table of numbers. A row that it does not have gives -1.
 *
 * @param x    [in] rows by cols numbers
 * @param rows rows of the table
 * @param cols columns of the table; 0 stands for 1
 * @param i    first row of the range
 * @param j    last row of the range; below i nothing is done
 * @param out  [out] j - i + 1 by cols numbers
 * @return 0
 */
KORVEL_FLAT int Cpp_Extractij(const double* x, int rows, int cols, int i, int j, double* out);

/**
 * Takes a range of columns of a table. A column that it does not have gives -1.
 *
 * @param x        [in] rows by cols numbers
 * @param rows     rows of the table
 * @param cols     columns of the table; 0 stands for 1
 * @param firstCol first column of the range
 * @param lastCol  last column of the range; below firstCol nothing is done
 * @param out      [out] rows by lastCol - firstCol + 1 numbers
 * @return 0
 */
KORVEL_FLAT int VB_M_ExtractMatToMatByColDbl(const double* x, int rows, int cols, int firstCol, int lastCol,
                                             double* out);

#endif
