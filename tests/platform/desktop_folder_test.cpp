#include "platform/desktop_folder.h"

#include <gtest/gtest.h>

#if defined(_WIN32)

#include <windows.h>

#include <array>
#include <shlobj.h>

TEST(DesktopFolder, IsTheOneThatTheShellNames)
{
    std::array<wchar_t, MAX_PATH> expected{};
    ASSERT_TRUE(SHGetSpecialFolderPathW(nullptr, expected.data(), CSIDL_DESKTOPDIRECTORY, FALSE));
    const auto folder = korvel::platform::desktopFolder();
    ASSERT_TRUE(folder.has_value());
    EXPECT_EQ(folder->wstring(), expected.data());
}

#else

#include "support/environment.h"

#include <fstream>
#include <optional>
#include <string>
#include <string_view>
#include <unistd.h>

using korvel::platform::desktopFolder;
using korvel::test::environment_guard;
using std::filesystem::path;

namespace
{

/** A home folder of its own for each test, with no configuration in it. */
class DesktopFolder : public ::testing::Test
{
protected:
    DesktopFolder()
        : home(std::filesystem::temp_directory_path() / ("korvel_desktop_" + std::to_string(getpid()))),
          homeVariable("HOME", home.string()), configurationVariable("XDG_CONFIG_HOME", std::nullopt)
    {
        std::filesystem::create_directories(home / ".config");
    }
    ~DesktopFolder() override { std::filesystem::remove_all(home); }

    static void write(const path& file, std::string_view content) { std::ofstream(file) << content; }
    void configure(std::string_view content) const { write(home / ".config" / "user-dirs.dirs", content); }

    path home;
    environment_guard homeVariable;
    environment_guard configurationVariable;
};

} // namespace

TEST_F(DesktopFolder, IsDesktopInTheHomeFolderWithoutConfiguration)
{
    EXPECT_EQ(desktopFolder(), home / "Desktop");
}

TEST_F(DesktopFolder, FollowsTheConfigurationBelowHome)
{
    configure("# a comment\nXDG_DOWNLOAD_DIR=\"$HOME/Loads\"\nXDG_DESKTOP_DIR=\"$HOME/My Files/Desk\"\n");
    EXPECT_EQ(desktopFolder(), home / "My Files" / "Desk");
}

TEST_F(DesktopFolder, TakesAnAbsolutePathAndIgnoresBlanks)
{
    configure("  XDG_DESKTOP_DIR = \"/srv/desk\"");
    EXPECT_EQ(desktopFolder(), path("/srv/desk"));
}

TEST_F(DesktopFolder, TheLastLineCounts)
{
    configure("XDG_DESKTOP_DIR=\"/first\"\nXDG_DESKTOP_DIR=\"/second\"\n");
    EXPECT_EQ(desktopFolder(), path("/second"));
}

TEST_F(DesktopFolder, ABackslashTakesTheNextCharacterAsItIs)
{
    configure("XDG_DESKTOP_DIR=\"/srv/a \\\"b\\\" \\$HOME \\\\ c\"\n");
    EXPECT_EQ(desktopFolder(), path("/srv/a \"b\" $HOME \\ c"));
}

TEST_F(DesktopFolder, WithoutAClosingQuoteTheLineEndsIt)
{
    configure("XDG_DESKTOP_DIR=\"/srv/desk\n# a comment\n");
    EXPECT_EQ(desktopFolder(), path("/srv/desk"));
    configure("XDG_DESKTOP_DIR=\"$HOME/Desk");
    EXPECT_EQ(desktopFolder(), home / "Desk");
    configure("XDG_DESKTOP_DIR=\"/srv/desk\\");
    EXPECT_EQ(desktopFolder(), path("/srv/desk\\")) << "a backslash with nothing behind it stands for itself";
    configure("XDG_DESKTOP_DIR=\"");
    EXPECT_EQ(desktopFolder(), home / "Desktop");
}

TEST_F(DesktopFolder, OtherLinesNameNoFolder)
{
    for (const char* line : {"XDG_DESKTOP_DIR=\"relative\"", "XDG_DESKTOP_DIR=/unquoted", "XDG_DESKTOP_DIR",
                             "XDG_DESKTOP_DIRS=\"/x\"", "#XDG_DESKTOP_DIR=\"/x\"",
                             "XDG_DESKTOP_DIR=\"$OTHER/x\"", "XDG_DESKTOP_DIR=\"\""}) {
        configure(line);
        EXPECT_EQ(desktopFolder(), home / "Desktop") << line;
    }
}

TEST_F(DesktopFolder, AnotherConfigurationFolderIsRead)
{
    std::filesystem::create_directories(home / "settings");
    write(home / "settings" / "user-dirs.dirs", "XDG_DESKTOP_DIR=\"$HOME/there\"\n");
    configure("XDG_DESKTOP_DIR=\"$HOME/here\"\n");
    const environment_guard elsewhere("XDG_CONFIG_HOME", (home / "settings").string());
    EXPECT_EQ(desktopFolder(), home / "there");
}

TEST_F(DesktopFolder, ARelativeConfigurationFolderCountsAsNotSet)
{
    configure("XDG_DESKTOP_DIR=\"$HOME/here\"\n");
    const environment_guard elsewhere("XDG_CONFIG_HOME", "settings");
    EXPECT_EQ(desktopFolder(), home / "here");
}

TEST_F(DesktopFolder, IsUnknownWithoutHomeUnlessTheConfigurationIsAbsolute)
{
    const environment_guard nowhere("HOME", std::nullopt);
    EXPECT_EQ(desktopFolder(), std::nullopt);

    const environment_guard configuration("XDG_CONFIG_HOME", (home / ".config").string());
    configure("XDG_DESKTOP_DIR=\"$HOME/here\"\n");
    EXPECT_EQ(desktopFolder(), std::nullopt);
    configure("XDG_DESKTOP_DIR=\"/srv/desk\"\n");
    EXPECT_EQ(desktopFolder(), path("/srv/desk"));
}

#endif
