#ifndef KORVEL_TESTS_ABI_RANDOM_FLAT_RANDOM_H
#define KORVEL_TESTS_ABI_RANDOM_FLAT_RANDOM_H

#include "korvelmathtools/KORVELMathTools.h"

#include <gtest/gtest.h>

namespace korvel::test
{

/** Starts each test, and leaves the process, at the combined generator and a fixed seed. */
class FlatRandom : public ::testing::Test
{
protected:
    FlatRandom() { restart(); }
    ~FlatRandom() override { restart(); }
    FlatRandom(const FlatRandom&) = delete;
    FlatRandom& operator=(const FlatRandom&) = delete;

    static void restart()
    {
        Cpp_set_rand_algo(0);
        int seed = 777;
        int next = 0;
        Cpp_Random01(&seed, -1, &next);
    }
};

} // namespace korvel::test

#endif
