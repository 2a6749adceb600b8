/**
 * @file
 * Top and bottom boxes of survey scales: the weights of the highest and of the lowest scores.
 */
#ifndef KORVEL_ORDERING_SURVEY_BOXES_H
#define KORVEL_ORDERING_SURVEY_BOXES_H

#include "containers/matrix.h"
#include "platform/export.h"

/**
 * Weights of the three highest and of the three lowest distinct scores. Scores within 1e-12 of the first one
 * met of a level belong to that level. The boxes are cumulative: box 1 is the first level, box 2 the first
 * two, box 3 all three.
 *
 * @param x          `n` scores, not modified
 * @param n          number of scores; below 1 all boxes are 0
 * @param w          `n` weights. The sort by score moves them in place, but the weight that counts at a
 * sorted position is the one that stood at that position before: with weights that differ, they are those of
 * other rows
 * @param group      `n` group values, not modified unless they are `w`; only elements within 1e-12 of
 * `groupValue` add their weight
 * @param groupValue the group to count
 */
KORVEL_API void V_TopBottom3BoxConditional(matrix<double>* x, int n, matrix<double>* w, matrix<double>* group,
                                           double groupValue, double* top1, double* bottom1, double* top2,
                                           double* bottom2, double* top3, double* bottom3);

/** The boxes of all elements, each with its own weight; nothing is modified. */
KORVEL_API void V_TopBottom3Box(matrix<double>* x, int n, matrix<double>* w, double* top1, double* bottom1,
                                double* top2, double* bottom2, double* top3, double* bottom3);

#endif
