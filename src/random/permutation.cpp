#include "random/permutation.h"

#include "random/random_source.h"

#include <algorithm>
#include <array>
#include <concepts>
#include <cstdint>
#include <utility>

namespace korvel
{

namespace
{

/** Scales a raw number, times the number of places, to a place. The value is not exactly 1 / (2^31 - 1). */
constexpr double placeScale = 4.656613057e-10;

/** 32-bit arithmetic that wraps. */
int wrapped(std::uint32_t value) noexcept
{
    return static_cast<int>(value);
}

std::uint32_t bits(int value) noexcept
{
    return static_cast<std::uint32_t>(value);
}

/** Starts the source from the given seed, or else from the seed that it has. */
void restart(int* seed, short int* flag)
{
    if (*flag == 0) {
        GetSeed(seed, flag);
    }
    GetSeed(seed, flag);
}

template <class T>
void exchangeFromTheLast(matrix<T>& out, int n)
{
    const double placesPerRaw = n * placeScale;
    std::array<std::int32_t, laneBlock> raw;
    for (std::int64_t last = std::int64_t{n} - 1; last >= 1;) {
        const auto count = std::min<std::int64_t>(last, raw.size());
        drawRawBlock(processSource, raw.data(), static_cast<std::size_t>(count));
        for (std::int64_t k = 0; k < count; ++k, --last) {
            const auto place = static_cast<std::int64_t>(raw[static_cast<std::size_t>(k)] * placesPerRaw);
            std::swap(out[place], out[last]);
        }
    }
}

} // namespace

template <class T>
void random1toN(matrix<T>& out, int n, short int bReset, int* seed, short int* flag, int* nextSeed)
{
    restart(seed, flag);
    if (bReset == -1 || out[0] == T{0}) {
        for (int k = 0; k < n; ++k) {
            out[k] = static_cast<T>(k + 1);
        }
    }
    exchangeFromTheLast(out, n);
    GetSeedUpdate(nextSeed);
}

template void random1toN(matrix<int>&, int, short int, int*, short int*, int*);
template void random1toN(matrix<double>&, int, short int, int*, short int*, int*);

} // namespace korvel

template <class T>
void RandomAtoB(matrix<T>* out, int a, int b, short int bReset, int& seed, short int& flag, int& nextSeed)
{
    using korvel::bits;
    using korvel::wrapped;
    const int n = wrapped(bits(b) - bits(a) + 1);
    korvel::random1toN(*out, n, bReset, &seed, &flag, &nextSeed);
    for (int k = 0; k < n; ++k) {
        T& element = (*out)[k];
        if constexpr (std::same_as<T, int>) {
            element = wrapped(bits(element) + bits(a) - 1);
        } else {
            element += static_cast<double>(a) - 1.0;
        }
    }
}

template KORVEL_API void RandomAtoB(matrix<int>*, int, int, short int, int&, short int&, int&);
template KORVEL_API void RandomAtoB(matrix<double>*, int, int, short int, int&, short int&, int&);
