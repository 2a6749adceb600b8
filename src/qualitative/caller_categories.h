/**
 * @file
 * Categories of texts that are read where the caller has them. A copy of a million texts takes longer than
 * listing their categories.
 */
#ifndef KORVEL_QUALITATIVE_CALLER_CATEGORIES_H
#define KORVEL_QUALITATIVE_CALLER_CATEGORIES_H

#include "containers/caller_texts.h"
#include "containers/matrix.h"

namespace korvel
{

/** As `M_InfoQuali2`. */
void infoQuali2(const caller_texts& data, int n, int p, int width, matrix<int>& categoryCounts,
                matrix<text>& modes, matrix<double>& modeFrequencies, matrix<text>& categories,
                matrix<double>& frequencies, const matrix<double>& weights, int* total, short int sort);

/** As `M_InfoQuali3`. */
void infoQuali3(const caller_texts& data, int n, int p, int width, int count, matrix<text>& modes,
                matrix<double>& modeFrequencies, matrix<text>& categories, matrix<double>& frequencies,
                matrix<double>& weightedFrequencies, const matrix<double>& weights, int* total,
                short int sort);

/** As `GetMaxCat`. */
[[nodiscard]] int largestCategoryCount(const caller_texts& data, int n, int p, matrix<int>& categoryCounts);

} // namespace korvel

#endif
