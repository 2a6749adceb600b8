/**
 * @file
 * Where the user's desktop lies.
 */
#ifndef KORVEL_PLATFORM_DESKTOP_FOLDER_H
#define KORVEL_PLATFORM_DESKTOP_FOLDER_H

#include <filesystem>
#include <optional>

namespace korvel::platform
{

/**
 * The folder that holds the files on the user's desktop; empty when the system cannot tell.
 *
 * On Windows the shell names it. Elsewhere it is the `XDG_DESKTOP_DIR` of the user's `user-dirs.dirs`, or
 * else `Desktop` in the home folder; there the folder need not exist.
 */
[[nodiscard]] std::optional<std::filesystem::path> desktopFolder();

} // namespace korvel::platform

#endif
