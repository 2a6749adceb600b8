/**
 * @file
 * Flat functions: the categories of qualitative variables as a record.
 */
#ifndef KORVEL_FRAMES_QUALITATIVE_CATEGORY_RECORDS_H
#define KORVEL_FRAMES_QUALITATIVE_CATEGORY_RECORDS_H

#include "frames/types.h"

/**
 * The categories of each variable of a labelled table, in order of first appearance, with their numbers of
 * rows and their weights. The empty text is no category. The arrays of the record are filled as far as they
 * go; none is resized.
 *
 * Of the record are read `withRecode`, `codeStart`, `withSort`, `noWeights` and `withLongLabels`, each of the
 * flags set when it is -1. These are written:
 *
 * - `VarLabels`: the labels of the columns, `CLabels` of the table;
 * - `NbCat`: the number of categories of each variable; 1 for a column without any, whose slots stay as they
 * are;
 * - `CatNames`: the text of the category; with `withLongLabels` the label of the variable, "-" and the text,
 * so that each row starts a category of its own;
 * - `CatFreq`: the number of rows, and `CatFreqW`: the sum of their weights, or again the number with
 * `noWeights`;
 * - `Codes`, with `withRecode`: `codeStart` for the first category of the variable and one more for each next
 * one; missing for an empty text;
 * - `Count`: the number of variables; `NbCatTotal`: the sum of `NbCat`; `FreqMax`: the largest number of rows
 * of a category, unless it was larger before; `SumW`: the sum of the weights that are not missing, or the
 * number of rows with `noWeights`.
 *
 * With `withSort` the categories of each variable are sorted as `VB_M_InfoQuali` sorts them, and the codes
 * follow their categories.
 *
 * @param data    [in] labelled table of texts. All columns are read down to the longest one: `nbrowsmax` rows
 * of `nbcols`
 * @param weights [in] data.nbrowsmax weights, a weight for each row; may be null with `noWeights`
 * @param info    [inout] category statistics: the record
 * @return 0
 */
KORVEL_FLAT int Cpp_M_InfoQuali3_ST(ST_MVect* data, const double* weights, ST_QualiInfo* info);

#endif
