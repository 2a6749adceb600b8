#ifndef KORVEL_CONTAINERS_CONSTANT_H
#define KORVEL_CONTAINERS_CONSTANT_H

#include "containers/missing.h"

namespace korvel
{

/** Whether the elements that are not `MISSING_DBL` are all equal, exactly; true when there are none. */
template <class Cells>
[[nodiscard]] bool isConstantWherePresent(const Cells& x, int n)
{
    int first = 0;
    while (first < n && x[first] == MISSING_DBL) {
        ++first;
    }
    for (int i = first + 1; i < n; ++i) {
        if (x[i] != MISSING_DBL && x[i] != x[first]) {
            return false;
        }
    }
    return true;
}

} // namespace korvel

#endif
