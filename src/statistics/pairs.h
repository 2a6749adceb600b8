/**
 * @file
 * Sums at the speed of their additions. Each addition waits for the one before; what is added is made beside
 * that chain, two neighbouring elements at a time and without a branch, so that elements left out at random
 * cost nothing. The additions themselves run one by one, in order.
 *
 * An element that is left out has all its factors replaced by +0.0, so that it adds +0.0. A sum that starts
 * at +0.0 never becomes -0.0, and such an addition changes no bit.
 */
#ifndef KORVEL_STATISTICS_PAIRS_H
#define KORVEL_STATISTICS_PAIRS_H

#include "containers/missing.h"
#include "statistics/stand_ins.h"

#include <cstdint>
#include <cstring>
#include <emmintrin.h>
#include <type_traits>

namespace korvel
{

/** Two neighbouring elements, or for each of two elements all bits set or none. */
using pair = __m128d;

/** Elements `i` and `i + 1`. */
inline pair pairAt(const double* cells, std::int64_t i)
{
    return _mm_loadu_pd(cells + i);
}
inline pair pairAt(const int* cells, std::int64_t i)
{
    return _mm_cvtepi32_pd(_mm_loadl_epi64(reinterpret_cast<const __m128i*>(cells + i)));
}
template <class Checked>
requires std::is_class_v<Checked> pair pairAt(const Checked& cells, std::int64_t i)
{
    return _mm_setr_pd(cells[i], cells[i + 1]);
}
inline pair pairAt(unit_weights, std::int64_t)
{
    return _mm_set1_pd(1.0);
}

/** For flags: whether the elements are to be kept. */
inline pair pairAt(const short int* flags, std::int64_t i)
{
    std::int32_t both = 0;
    std::memcpy(&both, flags + i, sizeof both);
    const __m128i clear = _mm_cmpeq_epi16(_mm_cvtsi32_si128(both), _mm_setzero_si128());
    const __m128i doubled = _mm_unpacklo_epi16(clear, clear);
    return _mm_castsi128_pd(_mm_unpacklo_epi32(doubled, doubled));
}
inline pair pairAt(no_flags, std::int64_t)
{
    return _mm_castsi128_pd(_mm_set1_epi32(-1));
}

/** Element `i` in both places, for the last one of an odd number. */
inline pair twice(const double* cells, std::int64_t i)
{
    return _mm_set1_pd(cells[i]);
}
inline pair twice(const int* cells, std::int64_t i)
{
    return _mm_set1_pd(cells[i]);
}
template <class Checked>
requires std::is_class_v<Checked> pair twice(const Checked& cells, std::int64_t i)
{
    return _mm_set1_pd(cells[i]);
}
inline pair twice(unit_weights weights, std::int64_t i)
{
    return pairAt(weights, i);
}
inline pair twice(const short int* flags, std::int64_t i)
{
    return _mm_castsi128_pd(_mm_set1_epi32(flags[i] == 0 ? -1 : 0));
}
inline pair twice(no_flags flags, std::int64_t i)
{
    return pairAt(flags, i);
}

/** Whether each element is present, that is, differs from the sentinel. */
inline pair present(pair x)
{
    return _mm_cmpneq_pd(x, _mm_set1_pd(MISSING_DBL));
}

/** Each element that is kept, and +0.0 in the place of the others. */
inline pair only(pair kept, pair x)
{
    return _mm_and_pd(kept, x);
}

inline pair absolute(pair x)
{
    return _mm_andnot_pd(_mm_set1_pd(-0.0), x);
}

/**
 * The sum of a term over the positions `first` to `last - 1`, from 0, in ascending order.
 *
 * @param term  makes two terms from a pair of each of `cells`
 * @param cells readers of the vectors that the term is made from
 */
template <class Term, class... Cells>
double sumOf(std::int64_t first, std::int64_t last, Term term, const Cells&... cells)
{
    double sum = 0.0;
    std::int64_t i = first;
    for (; i + 1 < last; i += 2) {
        const pair terms = term(pairAt(cells, i)...);
        sum += terms[0];
        sum += terms[1];
    }
    if (i < last) {
        sum += term(twice(cells, i)...)[0];
    }
    return sum;
}

} // namespace korvel

#endif
