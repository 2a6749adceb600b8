#include "korvelmathtools/KORVELMathTools.h"
#include "support/caller_tables.h"
#include "support/guarded.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

using namespace korvel::test;

namespace
{

using numbers = std::vector<double>;

/** A diagonal table of 3 by 2, of which all results are known but for signs. */
const numbers tall{0, 3, 0, 5, 0, 0};

void expectMagnitudes(const numbers& found, const numbers& expected)
{
    ASSERT_EQ(found.size(), expected.size());
    for (std::size_t k = 0; k < found.size(); ++k) {
        EXPECT_NEAR(std::fabs(found[k]), expected[k], 1e-15) << k;
    }
}

} // namespace

TEST(FlatSingularValues, AllVectors)
{
    guarded a(tall);
    guarded s({9.0, 9.0});
    guarded u(numbers(9, 9.0));
    guarded v(numbers(4, 9.0));
    guarded info({9});
    EXPECT_EQ(VB_M_SVDecomp(a.data(), 3, 2, s.data(), u.data(), v.data(), 11, info.data()), 0);
    EXPECT_EQ(valuesOf(info)[0], 0);
    expectMagnitudes(valuesOf(s), {5, 3});
    expectMagnitudes(valuesOf(u), {1, 0, 0, 0, 1, 0, 0, 0, 1});
    expectMagnitudes(valuesOf(v), {0, 1, 1, 0});
    expectCells(a, tall);
}

TEST(FlatSingularValues, ThinVectorsAndNone)
{
    guarded a(tall);
    guarded s({9.0, 9.0});
    guarded u(numbers(6, 9.0));
    guarded info({9});
    EXPECT_EQ(VB_M_SVDecomp(a.data(), 3, 2, s.data(), u.data(), nullptr, 20, info.data()), 0);
    expectMagnitudes(valuesOf(u), {1, 0, 0, 0, 1, 0});
    s.data()[0] = 9.0;
    EXPECT_EQ(VB_M_SVDecomp(a.data(), 3, 2, s.data(), nullptr, nullptr, 0, info.data()), 0);
    expectMagnitudes(valuesOf(s), {5, 3});
    guarded wide({0.0, 5.0, 3.0, 0.0, 0.0, 0.0});
    guarded three({9.0, 9.0, 9.0});
    EXPECT_EQ(VB_M_SVDecomp(wide.data(), 2, 3, three.data(), nullptr, nullptr, 0, info.data()), 0);
    expectMagnitudes(valuesOf(three), {5, 3, 0});
}

TEST(FlatSingularValues, WhatDoesNotConverge)
{
    guarded a({1.0, std::numeric_limits<double>::quiet_NaN(), 0.0, 1.0});
    guarded s({9.0, 9.0});
    guarded info({9});
    EXPECT_EQ(VB_M_SVDecomp(a.data(), 2, 2, s.data(), nullptr, nullptr, 0, info.data()), 0);
    EXPECT_EQ(valuesOf(info)[0], -2);
}

// A wide table has one more value than columns of u, and an infinity makes steps that would turn that column
// too.
TEST(FlatSingularValues, OfAWideTableStayWithinItsVectors)
{
    constexpr double infinity = std::numeric_limits<double>::infinity();
    const std::vector<numbers> columns{{0, 0}, {0, -infinity}, {0, 1}, {-2, -1}};
    guarded a(numbers{0, 0, 0, -infinity, 0, 1, -2, -1});
    guarded s(numbers(4, 9.0));
    guarded u(numbers(4, 9.0));
    guarded info({9});
    EXPECT_EQ(VB_M_SVDecomp(a.data(), 2, 4, s.data(), u.data(), nullptr, 10, info.data()), 0);
    caller_columns chunks(columns);
    caller_columns vectors({{9, 9}, {9, 9}});
    guarded ofChunks(numbers(4, 9.0));
    SAFEARRAY* none = nullptr;
    EXPECT_EQ(VB_M_SVDecompSPV(chunks.argument(), 2, 4, ofChunks.data(), vectors.argument(),
                               reinterpret_cast<Hostarray**>(&none), 10, info.data()),
              0);
}

TEST(FlatSingularValues, OfChunks)
{
    caller_columns a({{0, 3, 0}, {5, 0, 0}});
    caller_columns u({{9, 9, 9}, {9, 9, 9}});
    caller_columns v({{9, 9}, {9, 9}});
    guarded s({9.0, 9.0});
    guarded info({9});
    EXPECT_EQ(VB_M_SVDecompSPV(a.argument(), 3, 2, s.data(), u.argument(), v.argument(), 21, info.data()), 0);
    EXPECT_EQ(valuesOf(info)[0], 0);
    expectMagnitudes(valuesOf(s), {5, 3});
    const auto left = u.values();
    expectMagnitudes(left[0], {1, 0, 0});
    expectMagnitudes(left[1], {0, 1, 0});
    const auto right = v.values();
    expectMagnitudes(right[0], {0, 1});
    expectMagnitudes(right[1], {1, 0});
    EXPECT_EQ(a.values(), (caller_columns::columns{{0, 3, 0}, {5, 0, 0}}));
    SAFEARRAY* none = nullptr;
    auto** const nothing = reinterpret_cast<Hostarray**>(&none);
    EXPECT_EQ(VB_M_SVDecompSPV(a.argument(), 3, 2, s.data(), nothing, nothing, 0, info.data()), 0);
    expectMagnitudes(valuesOf(s), {5, 3});
}
