/**
 * @file
 * Positions of texts by their content.
 */
#ifndef KORVEL_QUALITATIVE_TEXT_INDEX_H
#define KORVEL_QUALITATIVE_TEXT_INDEX_H

#include "containers/missing.h"

#include <algorithm>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>
#include <vector>

namespace korvel
{

/** A text and a number that is the same for equal texts, so that it is worked out once. */
class hashed_text
{
public:
    explicit hashed_text(std::u16string_view source) : source_(source), hash_(hashOf(source)) {}

    /** An equal text that stands elsewhere. */
    hashed_text(std::u16string_view source, std::uint32_t hash) : source_(source), hash_(hash) {}

    [[nodiscard]] std::u16string_view value() const { return source_; }
    [[nodiscard]] std::uint32_t hash() const { return hash_; }

private:
    static constexpr std::uint64_t multiplier = 0x9E3779B97F4A7C15u;

    /** Four units at a time; the last four overlap those before them. */
    static std::uint32_t hashOf(std::u16string_view source)
    {
        const char16_t* const units = source.data();
        const std::size_t count = source.size();
        std::uint64_t state = count * multiplier;
        if (count >= 4) {
            for (std::size_t k = 0; k + 4 < count; k += 4) {
                state = mixed(state, fourUnits(units + k));
            }
            return spread(mixed(state, fourUnits(units + (count - 4))));
        }
        for (std::size_t k = 0; k < count; ++k) {
            state = state << 16 ^ state >> 48 ^ units[k];
        }
        return spread(mixed(state, 0));
    }

    static std::uint64_t fourUnits(const char16_t* first)
    {
        std::uint64_t units = 0;
        std::memcpy(&units, first, sizeof units);
        return units;
    }

    static std::uint64_t mixed(std::uint64_t state, std::uint64_t units)
    {
        return folded((state ^ units) * multiplier);
    }

    /** A product carries differences upwards only, and an index looks at the lowest bits. The last unit of
     * four reaches them by a second fold. */
    static std::uint32_t spread(std::uint64_t state)
    {
        return static_cast<std::uint32_t>(folded(state * multiplier));
    }

    static std::uint64_t folded(std::uint64_t state) { return state ^ state >> 32; }

    std::u16string_view source_;
    std::uint32_t hash_;
};

/** Finds the position that was last put under a text. The texts stand elsewhere, outlive the index and do not
 * change. */
class text_index
{
public:
    text_index() : places_(smallest) {}

    /** The position of an equal text; -1 when there is none. */
    [[nodiscard]] int find(const hashed_text& key) const { return places_[placeOf(key)].position; }
    [[nodiscard]] int find(std::u16string_view key) const { return find(hashed_text(key)); }

    /** Puts a position under a text. A text that is there already has that position from now on. */
    void put(const hashed_text& key, int position)
    {
        entry& found = places_[placeOf(key)];
        if (found.units == nullptr) {
            found = {key.value().data(), key.value().size(), key.hash(), position};
            ++used_;
            if (fewestPlaces * used_ > places_.size()) {
                grow();
            }
        } else {
            found.position = position;
        }
    }
    void put(std::u16string_view key, int position) { put(hashed_text(key), position); }

    /** The position under the text, which is `position` from now on when there was none. */
    int findOrPut(std::u16string_view key, int position)
    {
        const hashed_text hashed(key);
        const int found = find(hashed);
        if (found < 0) {
            put(hashed, position);
        }
        return found < 0 ? position : found;
    }

    void clear()
    {
        std::fill(places_.begin(), places_.end(), entry{});
        used_ = 0;
    }

private:
    struct entry {
        const char16_t* units = nullptr; ///< Of the key; null in an empty place.
        std::size_t count = 0;
        std::uint32_t hash = 0;
        int position = -1;
    };

    static constexpr std::size_t smallest = 64;    ///< As every size, a power of two.
    static constexpr std::size_t fewestPlaces = 3; ///< For each text. Few texts then share a way.

    /** The comparison of the standard library looks at one unit after the other. */
    static bool areEqual(const entry& a, std::u16string_view b)
    {
        return a.count == b.size() && std::memcmp(a.units, b.data(), a.count * sizeof(char16_t)) == 0;
    }

    /** Where the text stands, or the empty place where it belongs. */
    [[nodiscard]] std::size_t placeOf(const hashed_text& key) const
    {
        const std::size_t last = places_.size() - 1;
        std::size_t k = static_cast<std::size_t>(key.hash()) & last;
        while (places_[k].units != nullptr &&
               (places_[k].hash != key.hash() || !areEqual(places_[k], key.value()))) {
            k = (k + 1) & last;
        }
        return k;
    }

    void grow()
    {
        std::vector<entry> larger(2 * places_.size());
        larger.swap(places_);
        for (const entry& old : larger) {
            if (old.units != nullptr) {
                std::size_t k = static_cast<std::size_t>(old.hash) & (places_.size() - 1);
                while (places_[k].units != nullptr) {
                    k = (k + 1) & (places_.size() - 1);
                }
                places_[k] = old;
            }
        }
    }

    std::vector<entry> places_;
    std::size_t used_ = 0;
};

} // namespace korvel

#endif
