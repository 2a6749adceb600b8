/**
 * @file
 * Flat functions: missing cells filled by the value of the nearest row.
 *
 * Three groups of columns take part: a primary one of numbers or of texts, a second one of numbers, and a
 * third one of texts. Rows whose flag is not 0 are filled, in ascending order, first in the primary columns,
 * then in the second and in the third ones; a filled cell counts as observed from then on. The other rows are
 * the candidates for giving a cell. The distance of two rows is the sum, over the columns in which the row to
 * be filled has a cell, of the squared difference of the numbers over the variance of their column, where
 * that is above 0, and of 1 for each pair of different texts.
 *
 * A primary cell is filled by the distance over all groups, of which a candidate must have all cells, but for
 * that of the column to be filled when there are no other groups. The other groups' cells are filled by the
 * distance over those two groups, of which a candidate must have all cells; for column c of the third group a
 * candidate's number in column c of the second group may be missing, and makes the distance infinite when it
 * is compared. The nearest candidate is taken, the first one of equals; one that no number and no different
 * text was compared with is none, nor is one at an infinite distance. Without one, a number becomes the mean
 * of its column and a text the mode.
 *
 * A number is missing when it is at or below `KORVEL_MISSING_DBL`, a text when it is empty.
 */
#ifndef KORVEL_FRAMES_MISSING_NEAREST_NEIGHBOURS_H
#define KORVEL_FRAMES_MISSING_NEAREST_NEIGHBOURS_H

#include "frames/types.h"

/**
 * Fills missing cells of flagged rows by the value of the nearest row; see the head of this file.
 *
 * @param primary        [inout] n by primaryColumns numbers; may be null when primaryColumns is 0
 * @param n              rows of all groups
 * @param primaryColumns columns of the primary group; below 1 there is none
 * @param rowFlags       [in] n flags; a row whose flag is not 0 is filled. Null: no row is
 * @param second         [inout] n by secondColumns numbers; may be null when secondColumns is 0
 * @param secondColumns  columns of the second group; below 1 there is none
 * @param third          [inout] n by thirdColumns texts, replaced where they are empty; may be null when
 * thirdColumns is 0
 * @param thirdColumns   columns of the third group; below 1 there is none
 * @param w              [in] n weights for means, variances and modes
 * @return 0
 */
KORVEL_FLAT int VB_EstimateRowsWithMissingNN(double* primary, int n, int primaryColumns,
                                             const short int* rowFlags, double* second, int secondColumns,
                                             OLECHAR** third, int thirdColumns, const double* w);

/**
 * Fills missing cells of flagged rows by the value of the nearest row; see the head of this file. Means,
 * variances and modes are those of other tables.
 *
 * @param primaryStatistics [in] n by primaryColumns numbers; may be null when primaryColumns is 0
 * @param n                 rows of the tables of which means, variances and modes are taken
 * @param primary           [inout] rows by primaryColumns numbers; may be null when primaryColumns is 0
 * @param rows              rows of the tables that are filled
 * @param primaryColumns    columns of the primary group; below 1 there is none
 * @param rowFlags          [in] rows flags; a row whose flag is not 0 is filled. Null: no row is
 * @param secondStatistics  [in] n by secondColumns numbers; may be null when secondColumns is 0
 * @param second            [inout] rows by secondColumns numbers; may be null when secondColumns is 0
 * @param secondColumns     columns of the second group; below 1 there is none
 * @param thirdStatistics   [in] n by thirdColumns texts; may be null when thirdColumns is 0
 * @param third             [inout] rows by thirdColumns texts, replaced where they are empty; may be null
 * when thirdColumns is 0
 * @param thirdColumns      columns of the third group; below 1 there is none
 * @param w                 [in] n weights for means, variances and modes
 * @return 0
 */
KORVEL_FLAT int VB_EstimateRowsWithMissingNNPred(const double* primaryStatistics, int n, double* primary,
                                                 int rows, int primaryColumns, const short int* rowFlags,
                                                 const double* secondStatistics, double* second,
                                                 int secondColumns, OLECHAR* const* thirdStatistics,
                                                 OLECHAR** third, int thirdColumns, const double* w);

/**
 * Fills missing cells of flagged rows by the value of the nearest row; see the head of this file. The primary
 * group is chunked.
 *
 * @param primary        [inout] primaryColumns columns of n numbers; may be null when primaryColumns is 0
 * @param n              rows of all groups
 * @param primaryColumns columns of the primary group; below 1 there is none
 * @param rowFlags       [in] n flags; a row whose flag is not 0 is filled. Null: no row is
 * @param second         [inout] n by secondColumns numbers; may be null when secondColumns is 0
 * @param secondColumns  columns of the second group; below 1 there is none
 * @param third          [inout] n by thirdColumns texts, replaced where they are empty; may be null when
 * thirdColumns is 0
 * @param thirdColumns   columns of the third group; below 1 there is none
 * @param w              [in] n weights for means, variances and modes
 * @return 0
 */
KORVEL_FLAT int VB_EstimateRowsWithMissingNNSPV(Hostarray** primary, int n, int primaryColumns,
                                                const short int* rowFlags, double* second, int secondColumns,
                                                OLECHAR** third, int thirdColumns, const double* w);

/**
 * Fills missing cells of flagged rows by the value of the nearest row; see the head of this file. The primary
 * and second groups are chunked.
 *
 * @like VB_EstimateRowsWithMissingNNSPV
 * @param second [inout] secondColumns columns of n numbers; may be null when secondColumns is 0
 */
KORVEL_FLAT int VB_EstimateRowsWithMissingNNSPV2(Hostarray** primary, int n, int primaryColumns,
                                                 const short int* rowFlags, Hostarray** second,
                                                 int secondColumns, OLECHAR** third, int thirdColumns,
                                                 const double* w);

/**
 * Fills missing cells of flagged rows by the value of the nearest row; see the head of this file. The primary
 * group is one of texts.
 *
 * @like VB_EstimateRowsWithMissingNN
 * @param primary [inout] n by primaryColumns texts, replaced where they are empty; may be null when
 * primaryColumns is 0
 */
KORVEL_FLAT int VB_EstimateRowsWithMissingNNStr(OLECHAR** primary, int n, int primaryColumns,
                                                const short int* rowFlags, double* second, int secondColumns,
                                                OLECHAR** third, int thirdColumns, const double* w);

/**
 * Fills missing cells of flagged rows by the value of the nearest row; see the head of this file. The primary
 * group is one of texts; means, variances and modes are those of other tables.
 *
 * @like VB_EstimateRowsWithMissingNNPred
 * @param primaryStatistics [in] n by primaryColumns texts; may be null when primaryColumns is 0
 * @param primary           [inout] rows by primaryColumns texts, replaced where they are empty; may be null
 * when primaryColumns is 0
 */
KORVEL_FLAT int VB_EstimateRowsWithMissingNNStrPred(OLECHAR* const* primaryStatistics, int n,
                                                    OLECHAR** primary, int rows, int primaryColumns,
                                                    const short int* rowFlags, const double* secondStatistics,
                                                    double* second, int secondColumns,
                                                    OLECHAR* const* thirdStatistics, OLECHAR** third,
                                                    int thirdColumns, const double* w);

#endif
