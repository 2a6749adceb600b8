#ifndef KORVEL_TESTS_SUPPORT_GUARDED_H
#define KORVEL_TESTS_SUPPORT_GUARDED_H

#include "support/bits.h"

#include <algorithm>
#include <cstddef>
#include <gtest/gtest.h>
#include <initializer_list>
#include <vector>

namespace korvel::test
{

/** A caller's array between guard cells. */
template <class T>
class guarded
{
public:
    guarded(std::initializer_list<T> values) : guarded(std::vector<T>(values)) {}
    explicit guarded(const std::vector<T>& values) : cells_(values.size() + 2 * guards, guardValue)
    {
        std::copy(values.begin(), values.end(), cells_.begin() + guards);
    }

    T* data() { return cells_.data() + guards; }

    std::vector<T> values() const { return {cells_.begin() + guards, cells_.end() - guards}; }

    bool intact() const
    {
        return std::all_of(cells_.begin(), cells_.begin() + guards, [](T x) { return x == guardValue; }) &&
               std::all_of(cells_.end() - guards, cells_.end(), [](T x) { return x == guardValue; });
    }

private:
    static constexpr std::ptrdiff_t guards = 8;
    static constexpr T guardValue = T{77};
    std::vector<T> cells_;
};

/** Values of a guarded array, after a check that nothing round it was written. */
template <class T>
std::vector<T> valuesOf(const guarded<T>& array)
{
    EXPECT_TRUE(array.intact());
    return array.values();
}

/** Every cell of a guarded array, bit for bit, and that nothing round it was written. */
inline void expectCells(const guarded<double>& actual, const std::vector<double>& expected)
{
    const auto cells = valuesOf(actual);
    ASSERT_EQ(cells.size(), expected.size());
    for (std::size_t k = 0; k < cells.size(); ++k) {
        EXPECT_SAME_BITS(cells[k], expected[k]) << "cell " << k;
    }
}

} // namespace korvel::test

#endif
