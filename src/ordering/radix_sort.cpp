#include "ordering/radix_sort.h"

#include "ordering/insertion_sort.h"
#include "platform/work_share.h"

#include <algorithm>
#include <array>
#include <memory>
#include <utility>
#include <vector>

namespace korvel
{

namespace
{

constexpr int digitBits = 11;
constexpr std::size_t digitValues = std::size_t{1} << digitBits;
/** Counting digits does not pay for few pairs: up to the first length they are sorted by insertion, up to the
 * second by merging. */
constexpr std::size_t insertionLimit = 32;
constexpr std::size_t mergeLimit = 512;
/** Wanted length of a bucket in the parallel sort: with its scratch it stays in the cache of one core. */
constexpr std::size_t bucketLength = 16'384;
constexpr std::size_t mostBuckets = 2048;
constexpr std::size_t samplesPerBucket = 16;

constexpr auto imageBefore = [](const image_pair& a, const image_pair& b) { return a.image < b.image; };

/** Merges two sorted runs that lie side by side. No branch depends on the keys. */
void merge(const image_pair* first, const image_pair* middle, const image_pair* last, image_pair* out)
{
    const image_pair* left = first;
    const image_pair* right = middle;
    while (left != middle && right != last) {
        const bool takeRight = right->image < left->image;
        *out++ = *(takeRight ? right : left);
        right += takeRight ? 1 : 0;
        left += takeRight ? 0 : 1;
    }
    std::copy(right, last, std::copy(left, middle, out));
}

/** Sorts short runs, then merges them pairwise, back and forth between the pairs and the scratch. */
void mergeSort(image_pair* pairs, image_pair* scratch, std::size_t count)
{
    constexpr std::size_t run = 8;
    for (std::size_t first = 0; first < count; first += run) {
        insertionSort(std::span(pairs + first, std::min(run, count - first)), imageBefore);
    }
    image_pair* from = pairs;
    image_pair* to = scratch;
    for (std::size_t width = run; width < count; width *= 2) {
        for (std::size_t first = 0; first < count; first += 2 * width) {
            const std::size_t middle = std::min(first + width, count);
            const std::size_t last = std::min(first + 2 * width, count);
            merge(from + first, from + middle, from + last, to + first);
        }
        std::swap(from, to);
    }
    if (from != pairs) {
        std::copy_n(from, count, pairs);
    }
}

using digit_counts = std::array<std::uint32_t, digitValues>;

/** Turns counts into the places where each digit value starts. */
void startPlaces(digit_counts& counts)
{
    std::uint32_t place = 0;
    for (std::uint32_t& count : counts) {
        place += std::exchange(count, place);
    }
}

template <class Digit>
void scatter(const image_pair* from, std::size_t count, image_pair* to, digit_counts& places, Digit digit)
{
    for (std::size_t i = 0; i < count; ++i) {
        to[places[digit(from[i].image)]++] = from[i];
    }
}

void serialRadixSort(image_pair* pairs, image_pair* scratch, std::size_t count);

/** Sorts each run of pairs that agree in the bits above `shift`; the runs are in order already. */
void sortWithinRuns(image_pair* pairs, image_pair* scratch, std::size_t count, std::uint64_t least, int shift)
{
    std::size_t first = 0;
    while (first < count) {
        const std::uint64_t prefix = (pairs[first].image - least) >> shift;
        std::size_t last = first + 1;
        while (last < count && (pairs[last].image - least) >> shift == prefix) {
            ++last;
        }
        if (last - first > 1) {
            serialRadixSort(pairs + first, scratch + first, last - first);
        }
        first = last;
    }
}

/**
 * Sorts on one thread. Two counting passes, the lower digit first, order the pairs by the 22 most significant
 * bits in which they differ. Most keys are then in place; those that agree in all 22 bits are sorted further.
 */
void serialRadixSort(image_pair* pairs, image_pair* scratch, std::size_t count)
{
    if (count <= insertionLimit) {
        insertionSort(std::span(pairs, count), imageBefore);
        return;
    }
    if (count <= mergeLimit) {
        mergeSort(pairs, scratch, count);
        return;
    }
    const auto [least, greatest] = std::minmax_element(pairs, pairs + count, imageBefore);
    const std::uint64_t origin = least->image;
    const auto width = static_cast<int>(std::bit_width(greatest->image - origin));
    if (width == 0) {
        return;
    }
    const int shift = std::max(0, width - 2 * digitBits);
    const auto lowDigit = [=](std::uint64_t image) {
        return ((image - origin) >> shift) & (digitValues - 1);
    };
    const auto highDigit = [=](std::uint64_t image) { return (image - origin) >> (shift + digitBits); };

    digit_counts low{};
    digit_counts high{};
    for (std::size_t i = 0; i < count; ++i) {
        ++low[lowDigit(pairs[i].image)];
        ++high[highDigit(pairs[i].image)];
    }
    startPlaces(low);
    startPlaces(high);
    scatter(pairs, count, scratch, low, lowDigit);
    scatter(scratch, count, pairs, high, highDigit);
    if (shift > 0) {
        sortWithinRuns(pairs, scratch, count, origin, shift);
    }
}

/** Chooses ascending images that cut the keys into buckets of about equal length, from a sample of the keys.
 */
std::vector<std::uint64_t> chooseSplitters(std::span<const image_pair> pairs, std::size_t buckets)
{
    const std::size_t samples = buckets * samplesPerBucket;
    std::vector<std::uint64_t> sample(samples);
    // A fixed pseudorandom walk: a regular one could follow a period in the keys.
    std::uint64_t walk = 0x9E3779B97F4A7C15u;
    for (std::uint64_t& image : sample) {
        walk = walk * 6364136223846793005u + 1442695040888963407u;
        image = pairs[static_cast<std::size_t>((walk >> 32) * pairs.size() >> 32)].image;
    }
    std::sort(sample.begin(), sample.end());
    std::vector<std::uint64_t> splitters(buckets - 1);
    for (std::size_t b = 0; b + 1 < buckets; ++b) {
        splitters[b] = sample[(b + 1) * samplesPerBucket];
    }
    return splitters;
}

/**
 * Finds the bucket of an image, which is the number of splitters at or below it. The number of splitters is
 * one less than a power of two.
 */
class bucket_finder
{
public:
    explicit bucket_finder(const std::vector<std::uint64_t>& splitters)
        : tree_(splitters.size() + 1), levels_(static_cast<int>(std::bit_width(splitters.size())))
    {
        fill(splitters, 1, 0, splitters.size());
    }

    std::size_t operator()(std::uint64_t image) const
    {
        std::size_t node = 1;
        for (int level = 0; level < levels_; ++level) {
            node = 2 * node + (tree_[node] <= image ? 1 : 0);
        }
        return node - tree_.size();
    }

private:
    /** Puts the middle splitter of [first, last) at `node` and the two halves below that node. */
    void fill(const std::vector<std::uint64_t>& splitters, std::size_t node, std::size_t first,
              std::size_t last)
    {
        if (first < last) {
            const std::size_t middle = (first + last) / 2;
            tree_[node] = splitters[middle];
            fill(splitters, 2 * node, first, middle);
            fill(splitters, 2 * node + 1, middle + 1, last);
        }
    }

    std::vector<std::uint64_t> tree_;
    int levels_;
};

/**
 * Sorts on several threads. Each thread counts how many pairs of its share of the input go to each bucket,
 * and then scatters its share. Within a bucket earlier shares come first, which keeps equal keys in order.
 * The buckets are then sorted one by one.
 */
void parallelRadixSort(std::span<image_pair> pairs, std::span<image_pair> scratch, std::size_t threads)
{
    const std::size_t count = pairs.size();
    const std::size_t buckets = std::min(mostBuckets, std::bit_ceil(count / bucketLength));
    const bucket_finder bucketOf(chooseSplitters(pairs, buckets));
    const auto bucketNumbers = std::make_unique_for_overwrite<std::uint16_t[]>(count);
    std::vector<std::size_t> places(threads * buckets);
    std::vector<std::size_t> bucketStarts(buckets + 1, count);

    const int parts = static_cast<int>(threads);
    const auto startOf = [&](int part) {
        return static_cast<std::size_t>(shareOf(static_cast<std::ptrdiff_t>(count), part, parts).first);
    };
#pragma omp parallel for schedule(static) num_threads(parts)
    for (int part = 0; part < parts; ++part) {
        const auto p = static_cast<std::size_t>(part);
        std::size_t* counts = places.data() + p * buckets;
        const std::size_t end = startOf(part + 1);
        for (std::size_t i = startOf(part); i < end; ++i) {
            const std::size_t bucket = bucketOf(pairs[i].image);
            bucketNumbers[i] = static_cast<std::uint16_t>(bucket);
            ++counts[bucket];
        }
    }

    std::size_t place = 0;
    for (std::size_t bucket = 0; bucket < buckets; ++bucket) {
        bucketStarts[bucket] = place;
        for (std::size_t part = 0; part < threads; ++part) {
            place += std::exchange(places[part * buckets + bucket], place);
        }
    }

#pragma omp parallel for schedule(static) num_threads(parts)
    for (int part = 0; part < parts; ++part) {
        const auto p = static_cast<std::size_t>(part);
        std::size_t* next = places.data() + p * buckets;
        const std::size_t end = startOf(part + 1);
        for (std::size_t i = startOf(part); i < end; ++i) {
            scratch[next[bucketNumbers[i]]++] = pairs[i];
        }
    }

    const int allBuckets = static_cast<int>(buckets);
#pragma omp parallel for schedule(static) num_threads(parts)
    for (int bucket = 0; bucket < allBuckets; ++bucket) {
        const std::size_t first = bucketStarts[static_cast<std::size_t>(bucket)];
        const std::size_t length = bucketStarts[static_cast<std::size_t>(bucket) + 1] - first;
        std::copy_n(scratch.data() + first, length, pairs.data() + first);
        serialRadixSort(pairs.data() + first, scratch.data() + first, length);
    }
}

} // namespace

void radixSort(std::span<image_pair> pairs, std::span<image_pair> scratch, int threads)
{
    if (pairs.size() < parallelFrom) {
        serialRadixSort(pairs.data(), scratch.data(), pairs.size());
    } else {
        parallelRadixSort(pairs, scratch, static_cast<std::size_t>(std::max(1, threads)));
    }
}

} // namespace korvel
