/**
 * @file
 * Which variables of a correlation table are collinear: the tolerance of each, the share of its variation
 * that the others leave unexplained, found by sweeping them out (Goodnight, The American Statistician 33,
 * 1979), and its variance inflation factor, the reciprocal.
 */
#ifndef KORVEL_FITTING_TOLERANCE_SCREENING_H
#define KORVEL_FITTING_TOLERANCE_SCREENING_H

#include "containers/matrix.h"
#include "platform/export.h"

/**
 * Screens the variables of the selected groups, from the last group to the first. Each in turn stands as the
 * response while the other variables are swept in, in ascending order, each when `OLSCheckIfIn` lets it in.
 * The sweeping ends early when what is left of the response falls below the tolerance. What is left then is
 * its tolerance.
 *
 * A variable whose cell of the diagonal is below 1e-12 in magnitude has the status 50000: it is neither
 * screened nor swept. One with a status above 0 is not screened.
 *
 * @param R              correlation table, `p` by `p`
 * @param p              variables
 * @param groupCount     groups
 * @param groupSelection `groupCount` numbers; a group is screened when its number is exactly 1
 * @param groupNumbers   `p` numbers, counted from 1: the group of each variable. The variables of a group
 * stand side by side: those from its first to its last one count as its own
 * @param tolerance      limit below which a variable counts as explained
 * @param duplicates     not 0: a variable that correlates with an earlier one, not of status 50000, at more
 * than 0.999999999999 in magnitude has the status 60000. -1: so has one that is not let into a sweep, when
 * its pivot is below the tolerance in magnitude
 * @param entered        -1: variables of status 60000 are swept too
 * @param reverse        -1: a group is walked from its last variable to its first
 * @param skipGroup      -1: variables of the response's own group are not swept
 * @param status         receives `p` numbers: -1, 50000 or 60000
 * @param tolerances     receives the tolerance of each variable that is screened, and 0 for those of status
 * 50000 and for duplicates. Other elements are not written
 * @param inflationFactors receives the reciprocals, and the missing value for a tolerance that is not above
 * 0, at the same places
 * @throws std::bad_alloc when memory is short
 */
KORVEL_API void CheckTolerance(matrix<double>* R, int p, int groupCount, matrix<double>* groupSelection,
                               matrix<double>* groupNumbers, double tolerance, short int duplicates,
                               short int entered, short int reverse, short int skipGroup,
                               matrix<double>* status, matrix<double>* tolerances,
                               matrix<double>* inflationFactors);

/** The same, with groups and statuses that are integers. */
KORVEL_API void CheckTolerance(matrix<double>* R, int p, int groupCount, matrix<int>* groupSelection,
                               matrix<int>* groupNumbers, double tolerance, short int duplicates,
                               short int entered, short int reverse, short int skipGroup, matrix<int>* status,
                               matrix<double>* tolerances, matrix<double>* inflationFactors);

#endif
