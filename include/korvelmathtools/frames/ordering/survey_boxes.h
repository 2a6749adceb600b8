/**
 * @file
 * Flat functions: top and bottom boxes of survey scales. With a NaN among the scores, whose place in the
 * order is not defined, no result is defined.
 */
#ifndef KORVEL_FRAMES_ORDERING_SURVEY_BOXES_H
#define KORVEL_FRAMES_ORDERING_SURVEY_BOXES_H

#include "frames/types.h"

/**
 * Weights of the highest and lowest distinct scores, cumulative over one, two and three levels. Scores within
 * 1e-12 of the first one met of a level belong to that level.
 *
 * @param x       [in] n scores
 * @param n       number of scores; below 1 all boxes are 0
 * @param w       [in] n weights
 * @param top1    [out] one number: weight of the highest level
 * @param bottom1 [out] one number: weight of the lowest level
 * @param top2    [out] one number: weight of the highest two levels
 * @param bottom2 [out] one number: weight of the lowest two levels
 * @param top3    [out] one number: weight of the highest three levels
 * @param bottom3 [out] one number: weight of the lowest three levels
 * @return 0
 */
KORVEL_FLAT int Cpp_V_TopBottom3Box(const double* x, int n, const double* w, double* top1, double* bottom1,
                                    double* top2, double* bottom2, double* top3, double* bottom3);

/**
 * The boxes of one group: only elements whose group value is within 1e-12 of groupValue add their weight. The
 * weight that counts at a sorted position is the one that stood at that position before the sort, so weights
 * should be constant.
 *
 * @like Cpp_V_TopBottom3Box
 * @param w          [inout] n weights, moved into the order of the scores
 * @param group      [in] n group values
 * @param groupValue the group to count
 */
KORVEL_FLAT int Cpp_V_TopBottom3BoxConditional(const double* x, int n, double* w, const double* group,
                                               double groupValue, double* top1, double* bottom1, double* top2,
                                               double* bottom2, double* top3, double* bottom3);

#endif
