#include "containers/cells.h"

#include "containers/element_types.h"

#include <type_traits>

using namespace korvel::test;

namespace
{

template <class Reader>
constexpr bool isRaw = std::is_pointer_v<Reader>;

} // namespace

TEST(Cells, ATableHoldsACountUpToItsElements)
{
    const auto m = numbered<double>(2, 3);
    EXPECT_TRUE(korvel::holds(m, -5));
    EXPECT_TRUE(korvel::holds(m, 0));
    EXPECT_TRUE(korvel::holds(m, 6));
    EXPECT_FALSE(korvel::holds(m, 7));
    EXPECT_TRUE(korvel::holds(matrix<double>(), 0));
    EXPECT_FALSE(korvel::holds(matrix<double>(), 1));
}

TEST(Cells, InsideTheBlockTheLoopGetsPlainPointers)
{
    const auto x = numbered<double>(2, 3);
    const auto y = numbered<int>(6, 1);
    const double sum = korvel::withCells(
        [&](auto a, auto b) {
            EXPECT_TRUE(isRaw<decltype(a)>);
            EXPECT_TRUE(isRaw<decltype(b)>);
            return a[5] + b[4];
        },
        6, x, y);
    EXPECT_EQ(sum, 11.0);
}

TEST(Cells, OutsideTheLoopReadsAsTheTablesDo)
{
    auto x = numbered<double>(2, 1);
    x.oobValue = 40.0;
    const auto y = numbered<double>(6, 1);
    const double sum = korvel::withCells(
        [&](auto a, auto b) {
            EXPECT_FALSE(isRaw<decltype(a)>);
            EXPECT_FALSE(isRaw<decltype(b)>);
            return a[1] + a[2] + a[-1] + b[5];
        },
        6, x, y);
    EXPECT_EQ(sum, 2.0 + 40.0 + 40.0 + 6.0);
}
