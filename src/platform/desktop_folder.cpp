#include "platform/desktop_folder.h"

#if defined(_WIN32)

#include <windows.h>

#include <array>
#include <shlobj.h>

namespace korvel::platform
{

std::optional<std::filesystem::path> desktopFolder()
{
    std::array<wchar_t, MAX_PATH> folder{};
    if (FAILED(SHGetFolderPathW(nullptr, CSIDL_DESKTOPDIRECTORY, nullptr, 0, folder.data()))) {
        return std::nullopt;
    }
    return std::filesystem::path(folder.data());
}

} // namespace korvel::platform

#else

#include <cstdlib>
#include <fstream>
#include <string>
#include <string_view>

namespace korvel::platform
{

namespace
{

using std::filesystem::path;

/** An environment variable that holds an absolute path; any other value counts as not set. */
std::optional<path> pathFromEnvironment(const char* name)
{
    const char* value = std::getenv(name);
    if (value == nullptr || *value != '/') {
        return std::nullopt;
    }
    return path(value);
}

std::string_view withoutLeadingBlanks(std::string_view rest)
{
    rest.remove_prefix(std::min(rest.find_first_not_of(" \t"), rest.size()));
    return rest;
}

bool consume(std::string_view& rest, std::string_view token)
{
    if (!rest.starts_with(token)) {
        return false;
    }
    rest.remove_prefix(token.size());
    return true;
}

/** The characters up to the closing quote. The character after a backslash is taken literally. */
std::string unquoted(std::string_view rest)
{
    std::string value;
    for (std::size_t k = 0; k < rest.size() && rest[k] != '"'; ++k) {
        if (rest[k] == '\\' && k + 1 < rest.size()) {
            ++k;
        }
        value += rest[k];
    }
    return value;
}

/** The path in a line `XDG_DESKTOP_DIR="..."`: absolute, or below `$HOME/`. Other lines have none. */
std::optional<path> desktopFromLine(std::string_view line, const std::optional<path>& home)
{
    std::string_view rest = withoutLeadingBlanks(line);
    if (!consume(rest, "XDG_DESKTOP_DIR")) {
        return std::nullopt;
    }
    rest = withoutLeadingBlanks(rest);
    if (!consume(rest, "=")) {
        return std::nullopt;
    }
    rest = withoutLeadingBlanks(rest);
    if (!consume(rest, "\"")) {
        return std::nullopt;
    }
    if (consume(rest, "$HOME/")) {
        return home ? std::optional(*home / unquoted(rest)) : std::nullopt;
    }
    return rest.starts_with('/') ? std::optional(path(unquoted(rest))) : std::nullopt;
}

} // namespace

std::optional<path> desktopFolder()
{
    const std::optional<path> home = pathFromEnvironment("HOME");
    std::optional<path> configuration = pathFromEnvironment("XDG_CONFIG_HOME");
    std::optional<path> desktop;
    if (home) {
        configuration = configuration.value_or(*home / ".config");
        desktop = *home / "Desktop";
    }
    if (configuration) {
        std::ifstream userFolders(*configuration / "user-dirs.dirs");
        for (std::string line; std::getline(userFolders, line);) {
            if (auto named = desktopFromLine(line, home)) {
                desktop = std::move(named);
            }
        }
    }
    return desktop;
}

} // namespace korvel::platform

#endif
