/**
 * @file
 * Flat functions: copying a block of a table, and writing one into a table. Rows and columns are counted from
 * 1.
 *
 * A dense result may be, or share memory with, the table that is read. Cells that nothing goes to stay.
 */
#ifndef KORVEL_FRAMES_TABLES_BLOCKS_H
#define KORVEL_FRAMES_TABLES_BLOCKS_H

#include "frames/types.h"

/**
 * Copies a block of a table of numbers.
 *
 * @param x        [in] rows by cols numbers; cells outside of them read as -1
 * @param rows     rows of the table
 * @param cols     columns of the table; 0 stands for 1
 * @param firstRow first row of the block
 * @param lastRow  last row of the block; below firstRow nothing is done
 * @param firstCol first column of the block
 * @param lastCol  last column of the block; below firstCol nothing is done
 * @param out      [out] lastRow - firstRow + 1 by lastCol - firstCol + 1 numbers
 * @return 0
 */
KORVEL_FLAT int VB_M_CopyBlock(const double* x, int rows, int cols, int firstRow, int lastRow, int firstCol,
                               int lastCol, double* out);

/**
 * Copies a block of a table of texts.
 *
 * @like VB_M_CopyBlock, texts for numbers
 * @param x        [in] rows by cols texts; cells outside of them read as the empty text
 */
KORVEL_FLAT int VB_M_CopyBlockStr(OLECHAR* const* x, int rows, int cols, int firstRow, int lastRow,
                                  int firstCol, int lastCol, OLECHAR** out);

/**
 * Copies a block of a chunked table.
 *
 * @param x        [in] host array of cols records, each with a numeric column of rows numbers
 * @param rows     rows of the table
 * @param cols     columns of the table
 * @param firstRow first row of the block
 * @param lastRow  last row of the block; below firstRow nothing is done
 * @param firstCol first column of the block, at least 1
 * @param lastCol  last column of the block, at most cols; below firstCol nothing is done
 * @param out      [inout] host array of a record for each column of the block, each with a numeric column of
 * as many numbers as the block has rows
 * @return 0
 */
KORVEL_FLAT int VB_M_CopyBlockSPV(Hostarray** x, int rows, int cols, int firstRow, int lastRow, int firstCol,
                                  int lastCol, Hostarray** out);

/**
 * Copies a block of a chunked table.
 *
 * @like VB_M_CopyBlockSPV
 */
KORVEL_FLAT int Cpp_M_CopyBlockSPV2(Hostarray** x, int rows, int cols, int firstRow, int lastRow,
                                    int firstCol, int lastCol, Hostarray** out);

/**
 * Copies a block of a symmetric table, of which each column is held from the diagonal down.
 *
 * @param x        [in] host array of n records, each with a numeric column: of n numbers the first, and of
one less each next
 * @param n        order of the table
 * @param firstRow first row of the block, at least 1
 * @param lastRow  last row of the block, at most n; below firstRow nothing is done
 * @param firstCol first column of the block, at least 1
 * @param lastCol  last column of the block, at most n; below firstCol nothing is done
 * @param out      [inout] host array of a record for each column of the block, each with a numeric column of
as many numbers as the block has rows
 * @return 0
 */
KORVEL_FLAT int Cpp_M_CopyBlockSPV2_T(Hostarray** x, int n, int firstRow, int lastRow, int firstCol,
                                      int lastCol, Hostarray** out);

/**
 * Writes a table of numbers into a larger one. What would fall outside of it is left out.
 *
 * @param x     [in] rows by cols numbers
 * @param rows  rows of the table
 * @param cols  columns of the table; 0 stands for 1
 * @param y     [inout] yRows by yCols numbers
 * @param yRows rows of the larger table
 * @param yCols columns of the larger table; 0 stands for 1
 * @param row   its row for the first row
 * @param col   its column for the first column
 * @return 0
 */
KORVEL_FLAT int VB_M_PasteBlock(const double* x, int rows, int cols, double* y, int yRows, int yCols, int row,
                                int col);

/**
 * Writes a table of integers into a larger one. What would fall outside of it is left out.
 *
 * @like VB_M_PasteBlock, integers for numbers
 */
KORVEL_FLAT int VB_M_PasteBlockLng(const int* x, int rows, int cols, int* y, int yRows, int yCols, int row,
                                   int col);

/**
 * Copies a block of a table of numbers to a place in another, which may be the same. What would fall outside
 * of it is left out.
 *
 * @like VB_M_CopyBlock
 * @param y        [inout] yRows by yCols numbers
 * @param yRows    rows of the other table
 * @param yCols    columns of the other table; 0 stands for 1
 * @param row      its row for the first row of the block
 * @param col      its column for the first column of the block
 */
KORVEL_FLAT int Cpp_M_CopyPasteBlock(const double* x, int rows, int cols, int firstRow, int lastRow,
                                     int firstCol, int lastCol, double* y, int yRows, int yCols, int row,
                                     int col);

/**
 * Copies a block of a table of texts to a place in another, which may be the same. What would fall outside of
 * it is left out.
 *
 * @param x        [in] rows by cols texts; cells outside of them read as the empty text
 * @param rows     rows of the table
 * @param cols     columns of the table; 0 stands for 1
 * @param firstRow first row of the block
 * @param lastRow  last row of the block; below firstRow nothing is done
 * @param firstCol first column of the block
 * @param lastCol  last column of the block; below firstCol nothing is done
 * @param y        [inout] yRows by yCols texts
 * @param yRows    rows of the other table
 * @param yCols    columns of the other table; 0 stands for 1
 * @param row      its row for the first row of the block
 * @param col      its column for the first column of the block
 * @return 0
 */
KORVEL_FLAT int Cpp_M_CopyPasteBlockStr(OLECHAR* const* x, int rows, int cols, int firstRow, int lastRow,
                                        int firstCol, int lastCol, OLECHAR** y, int yRows, int yCols, int row,
                                        int col);

/**
 * Copies a block of a chunked table to a place in another.
 *
 * @like VB_M_CopyBlockSPV
 * @param y        [inout] host array of yCols records, each with a numeric column of yRows numbers; another
 * than x
 * @param yRows    rows of the other table; what would fall below is left out
 * @param yCols    columns of the other table; all columns of the block must fall among them
 * @param row      its row for the first row of the block
 * @param col      its column for the first column of the block
 */
KORVEL_FLAT int Cpp_M_CopyPasteBlockSPV(Hostarray** x, int rows, int cols, int firstRow, int lastRow,
                                        int firstCol, int lastCol, Hostarray** y, int yRows, int yCols,
                                        int row, int col);

#endif
