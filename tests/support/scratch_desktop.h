/**
 * @file
 * A desktop with the folder that dump files go to. Off Windows it is a scratch folder. On Windows it is the
 * user's own, and only files of the test are touched.
 */
#ifndef KORVEL_TESTS_SUPPORT_SCRATCH_DESKTOP_H
#define KORVEL_TESTS_SUPPORT_SCRATCH_DESKTOP_H

#include <filesystem>
#include <fstream>
#include <set>
#include <string>

#if defined(_WIN32)
#include <windows.h>

#include <array>
#include <shlobj.h>
#else
#include "support/environment.h"

#include <unistd.h>
#endif

namespace korvel::test
{

class scratch_desktop
{
public:
    scratch_desktop() { std::filesystem::create_directories(folder_); }

    ~scratch_desktop()
    {
        for (const std::filesystem::path& file : written_) {
            std::filesystem::remove(file);
        }
        std::error_code notEmpty;
        std::filesystem::remove(folder_, notEmpty);
#if !defined(_WIN32)
        std::filesystem::remove_all(home_);
#endif
    }
    scratch_desktop(const scratch_desktop&) = delete;
    scratch_desktop& operator=(const scratch_desktop&) = delete;

    /** Where dump files go. */
    const std::filesystem::path& folder() const
    {
        return folder_;
    }

    /** The dump file of that name, which is removed at the end. */
    std::filesystem::path file(const std::string& name)
    {
        return *written_.insert(folder_ / name).first;
    }

    /** All characters of that file, each line end as a newline; "(none)" when it is not there. */
    std::string content(const std::string& name)
    {
        std::ifstream stream(file(name));
        if (!stream) {
            return "(none)";
        }
        return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
    }

private:
#if defined(_WIN32)
    static std::filesystem::path desktop()
    {
        std::array<wchar_t, MAX_PATH> found{};
        SHGetFolderPathW(nullptr, CSIDL_DESKTOPDIRECTORY, nullptr, 0, found.data());
        return found.data();
    }

    std::filesystem::path folder_ = desktop() / "matrix";
#else
    std::filesystem::path home_ =
        std::filesystem::temp_directory_path() / ("korvel_home_" + std::to_string(getpid()));
    environment_guard homeVariable_{"HOME", home_.string()};
    environment_guard configurationVariable_{"XDG_CONFIG_HOME", std::nullopt};
    std::filesystem::path folder_ = home_ / "Desktop" / "matrix";
#endif
    std::set<std::filesystem::path> written_;
};

} // namespace korvel::test

#endif
