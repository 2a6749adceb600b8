/**
 * @file
 * Plain random source and permutation, drawn one number at a time from standard engines.
 */
#ifndef KORVEL_TESTS_REFERENCE_RANDOM_PLAIN_H
#define KORVEL_TESTS_REFERENCE_RANDOM_PLAIN_H

#include <cmath>
#include <cstdint>
#include <numeric>
#include <random>
#include <utility>
#include <vector>

namespace korvel::test
{

/** The random source after a seeding with a given seed. */
class plain_source
{
public:
    plain_source(int algorithm, int seed)
        : algorithm_(algorithm), s1_(seed), s2_(seed / 10), twister_(static_cast<std::uint32_t>(seed))
    {
    }

    std::int32_t raw()
    {
        if (algorithm_ == 1) {
            return static_cast<std::int32_t>(twister_());
        }
        s1_ = positive(40014 * s1_, 2147483563);
        s2_ = positive(40692 * s2_, 2147483399);
        const std::int64_t z = s1_ - s2_;
        return static_cast<std::int32_t>(z < 1 ? z + 2147483562 : z);
    }

    double uniform() { return raw() * 4.656612875245797e-10; }

    int nextSeed() { return algorithm_ == 1 ? raw() : static_cast<int>(s1_); }

private:
    static std::int64_t positive(std::int64_t product, std::int64_t modulus)
    {
        return (product % modulus + modulus) % modulus;
    }

    int algorithm_;
    std::int64_t s1_;
    std::int64_t s2_;
    std::mt19937 twister_;
};

/** A vector of which every place outside is one spare element. */
template <class T>
struct plain_vector {
    std::vector<T> cells;
    T spare = T{-1};

    T& at(std::int64_t place)
    {
        const bool inside = place >= 0 && place < static_cast<std::int64_t>(cells.size());
        return inside ? cells[static_cast<std::size_t>(place)] : spare;
    }
};

template <class T>
void plainFill(plain_vector<T>& out, int n)
{
    for (int k = 0; k < n; ++k) {
        out.at(k) = static_cast<T>(k + 1);
    }
}

template <class T>
void plainShuffle(plain_vector<T>& out, int n, plain_source& source)
{
    for (int i = n; i >= 2; --i) {
        const int z = source.raw();
        const auto j = static_cast<std::int64_t>(std::trunc(z * (n * 4.656613057e-10)));
        const T other = out.at(j);
        out.at(j) = out.at(i - 1);
        out.at(i - 1) = other;
    }
}

} // namespace korvel::test

#endif
