/**
 * @file
 * Vectors of random cells for comparing a routine with its plain twin: ordinary numbers, and among them odd
 * ones that a routine may treat specially.
 */
#ifndef KORVEL_TESTS_SUPPORT_RANDOM_CELLS_H
#define KORVEL_TESTS_SUPPORT_RANDOM_CELLS_H

#include "containers/matrix.h"
#include "containers/missing.h"
#include "support/special_values.h"

#include <array>
#include <cstdint>
#include <limits>
#include <random>
#include <vector>

namespace korvel::test
{

/** The odd cells among the ordinary numbers. */
enum class odd_cells { none, missing, missing_and_zeros, all };

/** The same cells on every system for the same seed. */
class random_cells
{
public:
    explicit random_cells(std::uint64_t seed, odd_cells odd) : engine_(seed), odd_(odd) {}

    /** A whole number from `low` to `high`. */
    int integer(int low, int high)
    {
        const auto span = static_cast<std::uint64_t>(std::int64_t{high} - low) + 1;
        return static_cast<int>(low + static_cast<std::int64_t>(engine_() % span));
    }

    /** A number of either sign; about one in six is an odd one, when there are any. */
    double value()
    {
        if (odd_ == odd_cells::none || integer(0, 5) != 0) {
            return static_cast<double>(integer(-1000000, 1000000)) / 977.0;
        }
        if (odd_ == odd_cells::missing) {
            return MISSING_DBL;
        }
        constexpr double smallest = std::numeric_limits<double>::denorm_min();
        constexpr std::array odd{MISSING_DBL, 0.0,      -0.0,      MISSING_DBL, belowSentinel, largest,
                                 smallest,    infinite, -infinite, notANumber,  1e200};
        const std::size_t kinds = odd_ == odd_cells::all ? odd.size() : 4;
        return odd[engine_() % kinds];
    }

    /** A weight: mostly positive; some are 0, missing, negative and so on, when there are odd cells. */
    double weight()
    {
        if (odd_ == odd_cells::none || integer(0, 5) != 0) {
            return static_cast<double>(integer(1, 4000)) / 613.0;
        }
        return integer(0, 1) == 0 ? 0.0 : value();
    }

    /** A flag: one in six is set, to one of several values. */
    short int flag()
    {
        constexpr std::array<short int, 4> set{-1, 1, 7, -32768};
        return odd_ == odd_cells::none || integer(0, 5) != 0 ? short{0} : set[engine_() % set.size()];
    }

    matrix<double> values(int n)
    {
        return filled<double>(n, [this] { return value(); });
    }
    matrix<double> weights(int n)
    {
        return filled<double>(n, [this] { return weight(); });
    }
    matrix<int> integers(int n, int low, int high)
    {
        return filled<int>(n, [&] { return integer(low, high); });
    }
    std::vector<short int> flags(int n)
    {
        std::vector<short int> made;
        for (int i = 0; i < n; ++i) {
            made.push_back(flag());
        }
        return made;
    }

private:
    template <class T, class Draw>
    static matrix<T> filled(int n, Draw draw)
    {
        matrix<T> made(n, 1, T{});
        for (int i = 0; i < n; ++i) {
            made.data[i] = draw();
        }
        return made;
    }

    std::mt19937_64 engine_;
    odd_cells odd_;
};

/** A vector of the given numbers. */
template <class T>
matrix<T> vectorOf(std::vector<T> cells)
{
    return matrix<T>(static_cast<int>(cells.size()), 1, cells.data(), false);
}

/**
 * Calls `compare(cells, n, held)` for each kind of odd cells and for lengths round every unrolling: vectors
 * of `held` elements, of which `n` are to be read. `held` is now and then below `n`.
 */
template <class Compare>
void forRandomVectors(Compare compare)
{
    constexpr std::array lengths{0,  1,  2,  3,  4,  5,  6,  7,  8,  9,  10,  11,
                                 13, 15, 16, 17, 31, 32, 33, 63, 64, 65, 257, 1001};
    for (const odd_cells odd :
         {odd_cells::none, odd_cells::missing, odd_cells::missing_and_zeros, odd_cells::all}) {
        for (const int n : lengths) {
            for (std::uint64_t seed = 1; seed <= 12; ++seed) {
                random_cells cells(seed * 1000 + static_cast<std::uint64_t>(n), odd);
                const int held = seed % 4 == 0 && n > 0 ? cells.integer(0, n - 1) : n;
                compare(cells, n, held);
            }
        }
    }
}

} // namespace korvel::test

#endif
