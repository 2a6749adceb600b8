#include "ordering/sorted_keys.h"

#include <new>
#include <omp.h>
#include <parallel/algorithm>

namespace korvel
{

namespace
{

/** A text list shorter than this is sorted before a second thread would have woken. */
constexpr std::size_t parallelTextsFrom = 4096;

/** Up to `smallSort` pairs; the merge sort of the standard library allocates for any number above one. */
template <class Pair, class Before>
void insertionSort(std::span<Pair> pairs, Before before)
{
    for (std::size_t i = 1; i < pairs.size(); ++i) {
        const Pair moving = pairs[i];
        std::size_t place = i;
        for (; place > 0 && before(moving, pairs[place - 1]); --place) {
            pairs[place] = pairs[place - 1];
        }
        pairs[place] = moving;
    }
}

template <class Key, class Before>
void serialSort(std::span<key_pair<Key>> pairs, Before before)
{
    if (pairs.size() <= smallSort) {
        insertionSort(pairs, before);
    } else {
        std::stable_sort(pairs.begin(), pairs.end(), before);
    }
}

/** The comparison of a direction. The direction is looked up at each call: two sorts would be twice the code.
 */
template <class Key>
struct key_before {
    bool descending;

    bool operator()(const key_pair<Key>& a, const key_pair<Key>& b) const
    {
        return descending ? *a.key > *b.key : *a.key < *b.key;
    }
};

} // namespace

void comparisonSort(std::span<key_pair<double>> pairs, bool descending)
{
    serialSort(pairs, key_before<double>{descending});
}

void comparisonSort(std::span<key_pair<text>> pairs, bool descending, sort_threads threads)
{
    const key_before<text> before{descending};
    if (threads == sort_threads::one || pairs.size() < parallelTextsFrom || omp_get_max_threads() == 1) {
        serialSort(pairs, before);
    } else {
        __gnu_parallel::stable_sort(pairs.begin(), pairs.end(), before);
    }
}

void imageSort(std::span<image_pair> pairs, sort_threads threads)
{
    const auto before = [](const image_pair& a, const image_pair& b) { return a.image < b.image; };
    if (pairs.size() <= smallSort) {
        insertionSort(pairs, before);
        return;
    }
    const std::unique_ptr<image_pair[]> scratch(new (std::nothrow) image_pair[pairs.size()]);
    if (scratch == nullptr) {
        // Without scratch there is still the library's sort, which makes do with what memory there is.
        std::stable_sort(pairs.begin(), pairs.end(), before);
        return;
    }
    radixSort(pairs, {scratch.get(), pairs.size()}, threads == sort_threads::one ? 1 : omp_get_max_threads());
}

} // namespace korvel
