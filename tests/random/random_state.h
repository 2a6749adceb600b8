#ifndef KORVEL_TESTS_RANDOM_RANDOM_STATE_H
#define KORVEL_TESTS_RANDOM_RANDOM_STATE_H

#include "random/clock_seed.h"
#include "random/random_source.h"

#include <gtest/gtest.h>

namespace korvel::test
{

/** The word that MT19937 hands out as `output`: the four steps of tempering undone. */
inline std::uint32_t untemper(std::uint32_t output)
{
    output ^= output >> 18;
    output ^= (output << 15) & 0xEFC60000U;
    std::uint32_t left = output;
    for (int bits = 7; bits < 32; bits += 7) {
        left = output ^ ((left << 7) & 0x9D2C5680U);
    }
    std::uint32_t right = left;
    for (int bits = 11; bits < 32; bits += 11) {
        right = left ^ (right >> 11);
    }
    return right;
}

/** Gives each test a random source at a known state, and puts the state and the clock back afterwards. */
class RandomState : public ::testing::Test
{
protected:
    RandomState()
        : algo_(processSource.algo), engine_(processSource.engine), s1_(processSource.s1),
          s2_(processSource.s2), clock_(exchangeLocalClock(setClock))
    {
        now = {};
        now.wYear = 2026;
        now.wMonth = 3;
        now.wDay = 14;
        now.wHour = 15;
        now.wMinute = 9;
        now.wSecond = 26;
        setStates(0, 1, 1);
        processSource.engine.seed(mersenne_twister::defaultSeed);
    }

    ~RandomState() override
    {
        processSource.engine = engine_;
        setStates(algo_, s1_, s2_);
        exchangeLocalClock(clock_);
    }

    RandomState(const RandomState&) = delete;
    RandomState& operator=(const RandomState&) = delete;

    static void setStates(int algo, std::int32_t s1, std::int32_t s2)
    {
        processSource.algo = algo;
        processSource.s1 = s1;
        processSource.s2 = s2;
    }

    static void seedWith(int seed)
    {
        short int given = -1;
        GetSeed(&seed, &given);
    }

    /** The seed of `now`: 46095 days after 30 December 1899, as Python's datetime counts them. */
    static constexpr int seedOfNow = 26 + 100 * (100 * 15 + 46095 + 9);

    static inline SYSTEMTIME now{};

private:
    static bool setClock(SYSTEMTIME& time)
    {
        time = now;
        return true;
    }

    int algo_;
    mersenne_twister engine_;
    std::int32_t s1_;
    std::int32_t s2_;
    local_clock clock_;
};

} // namespace korvel::test

#endif
