#include "containers/missing.h"

#include "containers/cells.h"
#include "containers/matrix.h"

#include <bit>
#include <cstdint>

static_assert(std::bit_cast<std::uint64_t>(MISSING_DBL) == 0xFFEFFFFFFFFFFFE2u);

short int IsMissingValue(const std::basic_string<char16_t>& value)
{
    return value.empty() ? -1 : 0;
}

short int IsMissingValue(OLECHAR* const& value)
{
    return SysStringByteLen(value) == 0 ? -1 : 0;
}

int V_GetMissingDbl(matrix<double>* x, int n, short int* iMissing, short int* iMissingOut)
{
    korvel::withCells(
        [&](auto values) {
            for (int i = 0; i < n; ++i) {
                const bool flagged = iMissing != nullptr && iMissing[i] == -1;
                iMissingOut[i] = flagged || korvel::isMissingOrdered(values[i]) ? -1 : 0;
            }
        },
        n, *x);
    return 0;
}
