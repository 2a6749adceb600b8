/**
 * @file
 * The system's figures on this process's memory, and blocks that are allocated to probe what is available.
 */
#ifndef KORVEL_PLATFORM_MEMORY_H
#define KORVEL_PLATFORM_MEMORY_H

#include <cstddef>
#include <cstdint>

namespace korvel::platform
{

/** Bytes of this process's address space that are still free; 0 when the system does not tell. */
[[nodiscard]] std::uint64_t availableAddressSpace();

/**
 * Takes fresh pages straight from the system. Their memory is committed but not touched.
 * @return the zeroed block, or null when `bytes` is 0 or the system refuses
 */
[[nodiscard]] void* commitPages(std::size_t bytes) noexcept;

/** Gives back a block of `commitPages`, with the size that was asked for; a null pointer is ignored. */
void releasePages(void* block, std::size_t bytes) noexcept;

} // namespace korvel::platform

#endif
