/**
 * @file
 * Labels of rows or columns: made distinct, and joined.
 */
#ifndef KORVEL_TABLES_LABELS_H
#define KORVEL_TABLES_LABELS_H

#include "containers/matrix.h"
#include "platform/export.h"

/**
 * Makes repeated labels distinct. Each label in turn is compared with those behind it, and one that equals it
 * becomes that text with a number behind it, which starts at 2. A number that would make one of the labels
 * further in front is passed over.
 *
 * @param labels `n` texts, in place; one that repeats none in front of it stays as it is
 * @param n      number of labels
 * @throws std::bad_alloc when memory is short
 */
KORVEL_API void V_ReplaceDoubles(matrix<text>* labels, int n);

/**
 * Joins two vectors of labels.
 *
 * @param a   `n` texts
 * @param n   number of labels
 * @param b   `n` texts
 * @param sep what stands between them
 * @param out receives `n` texts, sized by the caller: `a[i]`, `sep`, `b[i]`. It may be `a` or `b`
 */
KORVEL_API void V_MergeVectorsStr(matrix<text>* a, int n, matrix<text>* b, text sep, matrix<text>* out);

namespace korvel
{

/** A text with a number behind it, in decimal digits. */
[[nodiscard]] text numbered(const text& label, int number);

} // namespace korvel

#endif
