#ifndef KORVEL_TESTS_SUPPORT_GUARDED_H
#define KORVEL_TESTS_SUPPORT_GUARDED_H

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

} // namespace korvel::test

#endif
