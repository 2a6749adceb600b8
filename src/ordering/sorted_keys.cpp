#include "ordering/sorted_keys.h"

#include "ordering/insertion_sort.h"

#include <new>
#include <omp.h>
#include <parallel/algorithm>

namespace korvel
{

namespace
{

/** Fewer texts than this are sorted in less time than it takes to wake a second thread. */
constexpr std::size_t parallelTextsFrom = 4096;

/** Sorts on this thread; short lists by insertion, since `std::stable_sort` would allocate. */
template <class Key, class Before>
void serialSort(std::span<key_pair<Key>> pairs, Before before)
{
    if (pairs.size() <= smallSort) {
        insertionSort(pairs, before);
    } else {
        std::stable_sort(pairs.begin(), pairs.end(), before);
    }
}

/** Compares two keys in the wanted direction. One sort serves both directions, which halves the code. */
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
        // The standard library's sort works with whatever memory it can get.
        std::stable_sort(pairs.begin(), pairs.end(), before);
        return;
    }
    radixSort(pairs, {scratch.get(), pairs.size()}, threads == sort_threads::one ? 1 : omp_get_max_threads());
}

} // namespace korvel
