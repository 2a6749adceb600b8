#include "domain/memory_probe.h"

#include "platform/memory.h"

#include <cstddef>
#include <cstdint>
#include <tuple>

namespace
{

/** The bytes of a trial block, truncated to 32 bits. */
std::uint32_t bytesOf(int rows, int cols, double factor)
{
    constexpr double limit = 0x1p63;
    const double bytes = rows * factor * cols * 8;
    return bytes > -limit && bytes < limit ? static_cast<std::uint32_t>(static_cast<std::int64_t>(bytes)) : 0;
}

/** Room for a little more than the table itself. */
constexpr double tableFactor = 1.1;

} // namespace

void* TestMemory(int rows, int cols, double factor)
{
    return korvel::platform::commitPages(bytesOf(rows, cols, factor));
}

bool GetStatusMemory(int amount)
{
    return !(amount * 1.2 > static_cast<double>(korvel::platform::availableAddressSpace()));
}

int korvel::firstThatDoesNotFit(const tables_on_trial& tables)
{
    std::array<void*, std::tuple_size_v<tables_on_trial>> blocks{};
    int result = -1;
    for (std::size_t k = 0; k < tables.size() && result == -1; ++k) {
        const auto [rows, cols] = tables[k];
        if (rows != 0 && cols != 0) {
            blocks[k] = TestMemory(rows, cols, tableFactor);
            result = blocks[k] != nullptr ? -1 : static_cast<int>(k) + 1;
        }
    }
    for (std::size_t k = 0; k < tables.size(); ++k) {
        platform::releasePages(blocks[k], bytesOf(tables[k].rows, tables[k].cols, tableFactor));
    }
    return result;
}
