/**
 * @file
 * The sort engine. It sorts a list of pairs, each a key and its position; rows of any width are moved once,
 * afterwards. Every sort is stable in both directions: equal keys keep their order, also when descending.
 */
#ifndef KORVEL_ORDERING_SORTED_KEYS_H
#define KORVEL_ORDERING_SORTED_KEYS_H

#include "containers/missing.h"
#include "ordering/radix_sort.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <concepts>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <type_traits>

namespace korvel
{

/** Lists up to this length are sorted by insertion and are part of their object, so that they allocate
 * nothing. */
inline constexpr std::size_t smallSort = 32;

/** A key that is compared where it lies: a text, or a number of a list that contains a NaN. */
template <class Key>
struct key_pair {
    const Key* key;
    std::int32_t position;
};

/** Which threads may work on a sort: all that OpenMP grants, where that pays, or the caller's alone. */
enum class sort_threads { shared, one };

/** Stable comparison sort, `a < b` ascending and `a > b` descending. */
void comparisonSort(std::span<key_pair<text>> pairs, bool descending, sort_threads threads);
/** The same on one thread: where NaN keys end depends on the steps of the sort, which must not vary. */
void comparisonSort(std::span<key_pair<double>> pairs, bool descending);

/** How keys stand before they are sorted. */
enum class key_order {
    none,
    sorted,  ///< In the order that is wanted.
    reverse, ///< In the opposite order, and no two are equal: a stable sort turns them round.
};

/**
 * Finds out how keys stand. Input is often in order already; otherwise the first few keys tell. A list that
 * contains a NaN is in no order. Short lists are not examined, since insertion costs as little.
 */
template <class KeyAt>
[[nodiscard]] key_order orderOf(int count, bool descending, const KeyAt& keyAt)
{
    if (count <= static_cast<int>(smallSort)) {
        return key_order::none;
    }
    const auto everyPair = [&](auto stands) {
        std::int32_t k = 1;
        while (k < count && stands(keyAt(k - 1), keyAt(k))) {
            ++k;
        }
        return k == count;
    };
    if (everyPair([=](const auto& a, const auto& b) { return descending ? a >= b : a <= b; })) {
        return key_order::sorted;
    }
    const bool turned = everyPair([=](const auto& a, const auto& b) { return descending ? a < b : a > b; });
    return turned ? key_order::reverse : key_order::none;
}

/** Sorts `pairs` by image. Allocates scratch unless they are few. */
void imageSort(std::span<image_pair> pairs, sort_threads threads);

/** An array that is part of its object when it is small. */
template <class T>
class small_array
{
public:
    explicit small_array(std::size_t count)
        : heap_(count > smallSort ? std::make_unique_for_overwrite<T[]>(count) : nullptr), count_(count)
    {
    }

    [[nodiscard]] std::span<T> cells() { return {heap_ ? heap_.get() : inside_.data(), count_}; }
    [[nodiscard]] std::span<const T> cells() const { return {heap_ ? heap_.get() : inside_.data(), count_}; }

private:
    std::array<T, smallSort> inside_;
    std::unique_ptr<T[]> heap_;
    std::size_t count_;
};

/**
 * The original positions of number keys (`double`, `int`), in sorted order. `keyAt(k)` gives the key at
 * position k, 0-based. Several threads call it when there are many keys. It is not called once this object is
 * made.
 */
template <class Key>
requires(std::same_as<Key, double> || std::same_as<Key, int>) class sorted_positions
{
public:
    template <class KeyAt>
    sorted_positions(int count, bool descending, KeyAt keyAt, sort_threads threads = sort_threads::shared)
        : count_(std::max(count, 0)), found_(orderOf(count, descending, keyAt)),
          pairs_(found_ == key_order::none ? size() : 0), flip_(descending ? ~std::uint64_t{0} : 0)
    {
        if (found_ != key_order::none) {
            return;
        }
        const bool unordered = readKeys(keyAt, threads);
        if constexpr (std::same_as<Key, double>) {
            if (unordered) {
                sortUnordered(descending, keyAt);
                return;
            }
        }
        imageSort(pairs_.cells(), threads);
    }

    [[nodiscard]] std::size_t size() const { return static_cast<std::size_t>(count_); }

    /** The original position of the key of rank `k`, both 0-based. */
    [[nodiscard]] int position(std::size_t k) const
    {
        switch (found_) {
        case key_order::sorted:
            return static_cast<int>(k);
        case key_order::reverse:
            return count_ - 1 - static_cast<int>(k);
        default:
            return pairs_.cells()[k].position;
        }
    }

protected:
    /** Whether the keys were found in order, so that there is no list of them. */
    [[nodiscard]] bool isComputed() const { return found_ != key_order::none; }

    /** The key at rank `k` of the list, with the bits that it had. */
    [[nodiscard]] Key listedKey(std::size_t k) const
    {
        const image_pair& pair = pairs_.cells()[k];
        if constexpr (std::same_as<Key, double>) {
            if (raw_) {
                return std::bit_cast<double>(pair.image);
            }
            return pair.negativeZero != 0 ? -0.0 : keyOfImage(pair.image ^ flip_);
        } else {
            return static_cast<int>(static_cast<std::uint32_t>(pair.image ^ flip_) ^ 0x80000000u);
        }
    }

private:
    /** Fills the pairs; true when there is a NaN, which has no image. */
    template <class KeyAt>
    bool readKeys(KeyAt& keyAt, sort_threads threads)
    {
        const std::span<image_pair> pairs = pairs_.cells();
        const auto count = static_cast<std::int32_t>(pairs.size());
        int unordered = 0;
        if (pairs.size() < parallelFrom || threads == sort_threads::one) {
            for (std::int32_t k = 0; k < count; ++k) {
                unordered |= readKey(pairs, k, keyAt);
            }
        } else {
#pragma omp parallel for schedule(static) reduction(| : unordered)
            for (std::int32_t k = 0; k < count; ++k) {
                unordered |= readKey(pairs, k, keyAt);
            }
        }
        return unordered != 0;
    }

    template <class KeyAt>
    int readKey(std::span<image_pair> pairs, std::int32_t k, KeyAt& keyAt) const
    {
        const Key key = keyAt(k);
        std::uint32_t negativeZero = 0;
        int unordered = 0;
        if constexpr (std::same_as<Key, double>) {
            unordered = std::isnan(key) ? 1 : 0;
            negativeZero = std::bit_cast<std::uint64_t>(key) == signBit ? 1 : 0;
        }
        pairs[static_cast<std::size_t>(k)] = {orderImage(key) ^ flip_, k, negativeZero};
        return unordered;
    }

    template <class KeyAt>
    void sortUnordered(bool descending, KeyAt& keyAt)
    {
        const std::span<image_pair> pairs = pairs_.cells();
        const auto keys = std::make_unique_for_overwrite<double[]>(pairs.size());
        const auto list = std::make_unique_for_overwrite<key_pair<double>[]>(pairs.size());
        for (std::size_t k = 0; k < pairs.size(); ++k) {
            keys[k] = keyAt(static_cast<std::int32_t>(k));
            list[k] = {&keys[k], static_cast<std::int32_t>(k)};
        }
        comparisonSort({list.get(), pairs.size()}, descending);
        for (std::size_t k = 0; k < pairs.size(); ++k) {
            pairs[k] = {std::bit_cast<std::uint64_t>(*list[k].key), list[k].position, 0};
        }
        raw_ = true;
    }

    int count_;
    key_order found_;
    small_array<image_pair> pairs_; ///< None when the keys were found in order.
    std::uint64_t flip_;
    bool raw_ = false;
};

/** Number keys in sorted order, copied, so that the original keys may be overwritten. */
template <class Key>
class sorted_numbers : public sorted_positions<Key>
{
public:
    template <class KeyAt>
    sorted_numbers(int count, bool descending, KeyAt keyAt, sort_threads threads = sort_threads::shared)
        : sorted_positions<Key>(count, descending, keyAt, threads)
    {
        if (this->isComputed()) {
            keys_ = std::make_unique_for_overwrite<Key[]>(this->size());
            for (std::size_t k = 0; k < this->size(); ++k) {
                keys_[k] = keyAt(this->position(k));
            }
        }
    }

    /** The key at rank `k`, with the bits that it had. */
    [[nodiscard]] Key key(std::size_t k) const { return keys_ ? keys_[k] : this->listedKey(k); }

private:
    std::unique_ptr<Key[]> keys_; ///< Where there is no list.
};

/** Text keys in sorted order, by 16-bit code units. `keyAt(k)` is a reference to the key, which must outlive
 * this object. */
class sorted_texts
{
public:
    template <class KeyAt>
    sorted_texts(int count, bool descending, KeyAt keyAt, sort_threads threads = sort_threads::shared)
        : pairs_(static_cast<std::size_t>(std::max(count, 0)))
    {
        const std::span<key_pair<text>> pairs = pairs_.cells();
        const key_order found = orderOf(count, descending, keyAt);
        for (std::size_t k = 0; k < pairs.size(); ++k) {
            const auto position =
                static_cast<std::int32_t>(found == key_order::reverse ? pairs.size() - 1 - k : k);
            pairs[k] = {&keyAt(position), position};
        }
        if (found == key_order::none) {
            comparisonSort(pairs, descending, threads);
        }
    }

    [[nodiscard]] std::size_t size() const { return pairs_.cells().size(); }
    [[nodiscard]] int position(std::size_t k) const { return pairs_.cells()[k].position; }
    [[nodiscard]] const text& key(std::size_t k) const { return *pairs_.cells()[k].key; }

private:
    small_array<key_pair<text>> pairs_;
};

namespace detail
{

template <class Key>
struct sorted {
    using keys = sorted_numbers<Key>;
    using order = sorted_positions<Key>;
};
template <>
struct sorted<text> {
    using keys = sorted_texts;
    using order = sorted_texts;
};

} // namespace detail

/** Keys of type `Key` in sorted order; positions count from 0. */
template <class Key>
using sorted_keys = typename detail::sorted<Key>::keys;

/** The same without the keys themselves. */
template <class Key>
using sorted_order = typename detail::sorted<Key>::order;

} // namespace korvel

#endif
