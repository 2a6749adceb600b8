/**
 * @file
 * Missing cells filled by the value of the nearest row. Three groups of columns take part, with the same
 * rows: a primary group of numbers or of texts, a second one of numbers, and a third one of texts. A group
 * without columns is absent: its tables are not looked at and may be null.
 *
 * Rows whose flag is not 0 are filled, in ascending order, in each first the primary columns, then the
 * second and the third ones. A filled cell counts as observed from then on. The other rows are the candidates
 * for giving a cell. The distance between the two rows is the sum, over the columns compared, of the squared
 * difference of the numbers over the variance of their column, and of 1 for each pair of different texts. A
 * column is compared where the row to be filled has a cell, and, of numbers, where its variance is above 0.
 *
 * - A primary cell is filled by the distance over all three groups. A candidate must have all its cells; its
 *   cell in the column that is filled may be missing when there is neither a second nor a third group.
 * - A cell of the second group is filled by the distance over the second and third groups, of which a
 *   candidate must have all cells.
 * - A text of the third group is filled by the same distance. In column c a candidate's number in column c of
 *   the second group may be missing, but its distance is then infinite if that column is compared.
 *
 * The nearest candidate is taken, the first one of equals. A candidate of which no column could be compared,
 * but for equal texts, is none; nor is one whose distance is infinite or a NaN. Without a nearest
 * candidate a number becomes the mean of its column, and a text the mode (see `column_estimates.h`). Means
 * and variances are those of `M_MeanStDevVar` with both flags -1.
 *
 * A number is missing when it is at or below `MISSING_DBL`, a text when it is empty. Tables are read and
 * written through the checked access of `matrix`.
 */
#ifndef KORVEL_MISSING_NEAREST_NEIGHBOURS_H
#define KORVEL_MISSING_NEAREST_NEIGHBOURS_H

#include "containers/matrix.h"
#include "platform/export.h"

/**
 * Fills the missing cells of flagged rows by their nearest neighbours, as above.
 *
 * @param primaryStatisticsTable `n` by `primaryColumns`, of which means and variances are taken; may be the
 * table that is filled, as the other two may
 * @param n                      rows of the statistics tables
 * @param primary                `rows` by `primaryColumns`, in place
 * @param rows                   rows of the tables that are filled
 * @param primaryColumns         columns of the primary group
 * @param rowFlags               `rows` flags: not 0 for a row to be filled. Null: no row is flagged
 * @param secondStatisticsTable  `n` by `secondColumns`
 * @param second                 `rows` by `secondColumns`, in place
 * @param secondColumns          columns of the second group
 * @param thirdStatisticsTable   `n` by `thirdColumns`, of which the modes are taken
 * @param third                  `rows` by `thirdColumns`, in place
 * @param thirdColumns           columns of the third group
 * @param weights                `n` weights of the rows of the statistics tables; null: all are 1.0
 * @throws std::bad_alloc when memory is short
 */
KORVEL_API void EstimateRowsWithMissingNN(matrix<double>* primaryStatisticsTable, int n,
                                          matrix<double>*& primary, int rows, int primaryColumns,
                                          short int* rowFlags, matrix<double>* secondStatisticsTable,
                                          matrix<double>*& second, int secondColumns,
                                          matrix<text>* thirdStatisticsTable, matrix<text>*& third,
                                          int thirdColumns, matrix<double>* weights);

/** The same with a primary group of texts, of which the modes are taken. */
KORVEL_API void EstimateRowsWithMissingNNStr(matrix<text>* primaryStatisticsTable, int n,
                                             matrix<text>*& primary, int rows, int primaryColumns,
                                             short int* rowFlags, matrix<double>* secondStatisticsTable,
                                             matrix<double>*& second, int secondColumns,
                                             matrix<text>* thirdStatisticsTable, matrix<text>*& third,
                                             int thirdColumns, matrix<double>* weights);

/**
 * The same with a primary group of chunks, each of `n` rows, of which means and variances are taken and which
 * is filled.
 */
KORVEL_API void EstimateRowsWithMissingNNSPV(matrix<double>** primary, int n, int primaryColumns,
                                             short int* rowFlags, matrix<double>* secondStatisticsTable,
                                             matrix<double>*& second, int secondColumns,
                                             matrix<text>* thirdStatisticsTable, matrix<text>*& third,
                                             int thirdColumns, matrix<double>* weights);

/** The same with a second group of chunks too. */
KORVEL_API void EstimateRowsWithMissingNNSPV2(matrix<double>** primary, int n, int primaryColumns,
                                              short int* rowFlags, matrix<double>** secondStatisticsTable,
                                              matrix<double>** second, int secondColumns,
                                              matrix<text>* thirdStatisticsTable, matrix<text>*& third,
                                              int thirdColumns, matrix<double>* weights);

#endif
