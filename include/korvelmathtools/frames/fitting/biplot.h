/**
 * @file
 * Flat functions: coordinates for a biplot, and squared cosines.
 */
#ifndef KORVEL_FRAMES_FITTING_BIPLOT_H
#define KORVEL_FRAMES_FITTING_BIPLOT_H

#include "frames/types.h"

/**
 * Rescales the coordinates of a biplot by powers of the singular values: those of rows by s^(alpha/2 - 1/2),
 * those of columns by s^(-alpha/2). A missing cell stays missing.
 *
 * @param rowCoordinates      [in] rows by axes numbers, column after column
 * @param extraRowCoordinates [in] extraRows by axes numbers, to stand below them; may be null when there are
 * none
 * @param columnCoordinates   [in] columns by axes numbers
 * @param rows                rows
 * @param extraRows           further rows
 * @param columns             columns
 * @param axes                axes
 * @param singularValues      [in] axes numbers
 * @param scale               the coordinates of columns are multiplied by its root; a negative one makes them
 * missing numbers or what these come to
 * @param alpha               1: rows stay as they are; 0: columns do
 * @param rowResult           [out] rows + extraRows by axes numbers
 * @param columnResult        [out] columns by axes numbers
 * @return 0
 */
KORVEL_FLAT int VB_BiplotTransData(const double* rowCoordinates, const double* extraRowCoordinates,
                                   const double* columnCoordinates, int rows, int extraRows, int columns,
                                   int axes, const double* singularValues, double scale, double alpha,
                                   double* rowResult, double* columnResult);

/**
 * The same with coordinates in chunks.
 *
 * @like VB_BiplotTransData
 * @param rowCoordinates    [in] host array of axes columns of rows numbers
 * @param columnCoordinates [in] host array of axes columns of columns numbers
 */
KORVEL_FLAT int VB_BiplotTransDataSPV(Hostarray** rowCoordinates, const double* extraRowCoordinates,
                                      Hostarray** columnCoordinates, int rows, int extraRows, int columns,
                                      int axes, const double* singularValues, double scale, double alpha,
                                      double* rowResult, double* columnResult);

/**
 * Squared cosines of the rows of a table: each cell squared, over the sum of squares of its row.
 *
 * @param x      [in] n by p numbers, column after column
 * @param n      rows
 * @param p      columns
 * @param result [inout] n by p numbers; rows whose sum of squares is not above 1e-12 stay as they are. May be
 * x
 * @return 0
 */
KORVEL_FLAT int ComputeCosines(const double* x, int n, int p, double* result);

/**
 * Marks one cell in each row of a table with -1.
 *
 * @param positions [in] n integers: the columns, counted from 1; one below 1 marks nothing
 * @param n         rows
 * @param table     [inout] n by max(positions) integers, or more columns, one after the other
 * @return 0
 */
KORVEL_FLAT int Cpp_M_BoldCosines(const int* positions, int n, int* table);

#endif
