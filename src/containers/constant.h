#ifndef KORVEL_CONTAINERS_CONSTANT_H
#define KORVEL_CONTAINERS_CONSTANT_H

#include "containers/missing.h"
#include "containers/stretches.h"

#include <type_traits>

namespace korvel
{

/** Whether all elements equal the first one, exactly; true when there are none. */
template <class Cells>
[[nodiscard]] bool isConstant(const Cells& x, int n)
{
    using element = std::remove_cvref_t<decltype(x[0])>;
    if (n < 2) {
        return true;
    }
    return allBetween(
        1, n, [first = element(x[0])](const auto& cell) { return cell == first; }, x);
}

/** The same for the elements that are not missing. */
template <class Cells>
[[nodiscard]] bool isConstantWherePresent(const Cells& x, int n)
{
    using element = std::remove_cvref_t<decltype(x[0])>;
    int first = 0;
    while (first < n && isMissing(x[first])) {
        ++first;
    }
    if (first >= n) {
        return true;
    }
    const auto isSame = [value = element(x[first])](const auto& cell) {
        if constexpr (std::is_same_v<element, text>) {
            return cell == value || cell.empty();
        } else {
            return lanes::either(cell == value, cell == missingNumber<element>);
        }
    };
    return allBetween(first + 1, n, isSame, x);
}

} // namespace korvel

#endif
