/**
 * @file
 * Labelled tables of texts into tables of numbers, and back.
 */
#ifndef KORVEL_CONTAINERS_RECORD_CONVERSION_H
#define KORVEL_CONTAINERS_RECORD_CONVERSION_H

#include "containers/records.h"
#include "platform/export.h"

/**
 * Turns a block of texts into numbers. An empty text is a missing number; any other is read by the library's
 * own rules (see `korvel::parseNumber`), so that no locale decides what a number is.
 *
 * @param rowFrom,rowTo       first and last row of the source, from 1
 * @param colFrom,colTo       first and last column of the source, from 1
 * @param outRows,outCols     size of the block that is written. Its cells that the source does not fill are
 *                            0.0; source cells outside it are read but not kept
 * @param rowOffset,colOffset row and column of the target at which the block begins, from 1
 * @param src                 the texts; a cell outside the table counts as empty
 * @param decimalSep          its first character is the decimal separator
 * @param dst                 receives the block, and in `CLabels` the label of each source column at its
 * place. What lies outside the table is dropped
 * @return 0; -1 at the first text that is not a number, with `dst` as it was
 * @throws std::bad_alloc when memory is short
 */
KORVEL_API int Convert_MVectStrToMVectDbl_ST(int rowFrom, int rowTo, int colFrom, int colTo, int outRows,
                                             int outCols, int rowOffset, int colOffset, cST_MVect<text>& src,
                                             std::basic_string<char16_t> decimalSep, cST_MVect<double>& dst);

/**
 * Turns a block of numbers into texts without decimals, rounded half to even. A missing number gets no
 * special treatment and becomes "-2e+308".
 *
 * @param rowFrom,rowTo       first and last row of the source, from 1
 * @param colFrom,colTo       first and last column of the source, from 1
 * @param outRows,outCols     size of the block that is written. Its cells that the source does not fill are
 *                            empty; source cells outside it are not kept
 * @param rowOffset,colOffset row and column of the target at which the block begins, from 1
 * @param src                 the numbers; a cell outside the table reads as -1 (or the column's `oobValue`)
 * @param dst                 receives the block, and in `CLabels` the label of each source column at its
 * place. What lies outside the table is dropped
 * @return 0
 * @throws std::bad_alloc when memory is short
 */
KORVEL_API int Convert_MVectDblToMVectStr_ST(int rowFrom, int rowTo, int colFrom, int colTo, int outRows,
                                             int outCols, int rowOffset, int colOffset,
                                             cST_MVect<double>& src, cST_MVect<text>& dst);

#endif
