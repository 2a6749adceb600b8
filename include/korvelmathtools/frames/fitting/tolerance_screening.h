/**
 * @file
 * Flat functions: which variables of a correlation table are collinear.
 */
#ifndef KORVEL_FRAMES_FITTING_TOLERANCE_SCREENING_H
#define KORVEL_FRAMES_FITTING_TOLERANCE_SCREENING_H

#include "frames/types.h"

/**
 * The tolerance of each variable of the selected groups, the share of its variation that the others leave
 * unexplained, and its variance inflation factor. Groups are screened from the last to the first.
 *
 * @param r              [in] p by p numbers, the correlations, column after column
 * @param p              variables
 * @param groupCount     groups
 * @param groupSelection [in] groupCount numbers; a group is screened when its number is exactly 1
 * @param groupNumbers   [in] p numbers, counted from 1: the group of each variable; the variables of a group
 * stand side by side
 * @param tolerance      limit below which a variable counts as explained; sweeping ends there
 * @param duplicates     not 0: variables that correlate with an earlier one at more than 0.999999999999 in
 * magnitude have the status 60000. -1: also those that are refused because others explain them
 * @param entered        -1: variables of status 60000 are swept too
 * @param reverse        -1: a group is walked from its last variable to its first
 * @param skipGroup      -1: variables of the same group as the one screened are not swept
 * @param status         [out] p numbers: 50000 for a variable whose cell of the diagonal is 0, 60000 for a
 * collinear one, -1 for all others
 * @param tolerances     [inout] p numbers; written for variables that are screened, and 0 for constant ones
 * and duplicates
 * @param inflationFactors [inout] p numbers, at the same places; missing where the tolerance is not above 0
 * @return 0
 */
KORVEL_FLAT int VB_CheckTolerance(const double* r, int p, int groupCount, const double* groupSelection,
                                  const double* groupNumbers, double tolerance, short int duplicates,
                                  short int entered, short int reverse, short int skipGroup, double* status,
                                  double* tolerances, double* inflationFactors);

#endif
