#include "korvelmathtools/KORVELMathTools.h"
#include "support/caller_tables.h"
#include "support/guarded.h"
#include "support/scratch_desktop.h"
#include "support/special_values.h"

#include <gtest/gtest.h>
#include <limits>
#include <string>
#include <vector>

using namespace korvel::test;

namespace
{

void writesNumbers(scratch_desktop& desktop)
{
    guarded<double> x(doubles{1.5, 2});
    Cpp_WriteMatrixDbl(x.data(), 1, 2, "korvel_numbers");
    EXPECT_EQ(desktop.content("korvel_numbers.csv"), "n = 1; p = 2\n1.5;2;\n");

    // Python 3.11: '%.20g' % x
    guarded<double> y(
        doubles{0.1, -1.0 / 3.0, -1.79769313486231e308, 1e22, 5e-324, 123456789.0, -0.0, infinite, 1e-5});
    Cpp_WriteMatrixDbl(y.data(), 9, 1, "korvel_digits");
    EXPECT_EQ(desktop.content("korvel_digits.csv"), "n = 9; p = 1\n"
                                                    "0.10000000000000000555;\n"
                                                    "-0.33333333333333331483;\n"
                                                    "-1.7976931348623099202e+308;\n"
                                                    "1e+22;\n"
                                                    "4.9406564584124654418e-324;\n"
                                                    "123456789;\n"
                                                    "-0;\n"
                                                    "inf;\n"
                                                    "1.0000000000000000818e-05;\n");
    EXPECT_EQ(valuesOf(x), (doubles{1.5, 2}));
}

void writesIntegers(scratch_desktop& desktop)
{
    guarded<int> x(ints{1, -20, std::numeric_limits<int>::min(), 2147483647, 1234567, 0});
    Cpp_WriteMatrixLng(x.data(), 3, 2, "korvel_integers");
    EXPECT_EQ(desktop.content("korvel_integers.csv"),
              "n = 3; p = 2\n1;2147483647;\n-20;1234567;\n-2147483648;0;\n");
}

void writesTexts(scratch_desktop& desktop)
{
    text_block x(texts{u"plain ASCII, \"quoted\"", u"", u"\u00e9\u4e2d", u"d"});
    EXPECT_EQ(Cpp_WriteMatrixStr(x.data(), 2, 2, "korvel_texts"), 0);
    EXPECT_EQ(desktop.content("korvel_texts.csv"),
              "n = 2; p = 2\nplain ASCII, \"quoted\";\xC3\xA9\xE4\xB8\xAD;\n;d;\n");
    EXPECT_EQ(x.values(), (texts{u"plain ASCII, \"quoted\"", u"", u"\u00e9\u4e2d", u"d"}));
}

void writesTheFirstLineAloneWithoutRows(scratch_desktop& desktop)
{
    guarded<double> x(doubles{1});
    Cpp_WriteMatrixDbl(x.data(), 0, 3, "korvel_no_rows");
    EXPECT_EQ(desktop.content("korvel_no_rows.csv"), "n = 0; p = 3\n");
    Cpp_WriteMatrixDbl(x.data(), 2, 0, "korvel_no_columns");
    EXPECT_EQ(desktop.content("korvel_no_columns.csv"), "n = 2; p = 0\n\n\n");
}

void keepsOldFiles(scratch_desktop& desktop)
{
    std::ofstream(desktop.file("korvel_old.csv")) << "first";
    std::ofstream(desktop.file("korvel_old(1).csv")) << "second";
    guarded<int> x(ints{7});
    Cpp_WriteMatrixLng(x.data(), 1, 1, "korvel_old");
    EXPECT_EQ(desktop.content("korvel_old(2).csv"), "n = 1; p = 1\n7;\n");
    EXPECT_EQ(desktop.content("korvel_old.csv"), "first");
    EXPECT_EQ(desktop.content("korvel_old(1).csv"), "second");
    EXPECT_EQ(desktop.content("korvel_old(3).csv"), "(none)");

    std::filesystem::remove(desktop.file("korvel_old(1).csv"));
    Cpp_WriteMatrixLng(x.data(), 1, 1, "korvel_old");
    EXPECT_EQ(desktop.content("korvel_old(1).csv"), "n = 1; p = 1\n7;\n") << "the first that is free";
}

void writesNothingWithoutTheFolder(scratch_desktop& desktop)
{
    std::error_code notEmpty;
    if (!std::filesystem::remove(desktop.folder(), notEmpty)) {
        GTEST_SKIP() << "the folder has files of the user";
    }
    guarded<double> x(doubles{1});
    text_block labels(texts{u"a"});
    Cpp_WriteMatrixDbl(x.data(), 1, 1, "korvel_nowhere");
    EXPECT_EQ(Cpp_WriteMatrixStr(labels.data(), 1, 1, "korvel_nowhere"), 0);
    EXPECT_FALSE(std::filesystem::exists(desktop.folder()));
    std::filesystem::create_directories(desktop.folder());
}

} // namespace

// A single test, because all dumps go to one folder.
TEST(FlatMatrixDump, WritesFilesOnTheDesktop)
{
    scratch_desktop desktop;
    writesNothingWithoutTheFolder(desktop);
    writesNumbers(desktop);
    writesIntegers(desktop);
    writesTexts(desktop);
    writesTheFirstLineAloneWithoutRows(desktop);
    keepsOldFiles(desktop);
}

#if !defined(_WIN32)
TEST(FlatMatrixDump, WritesNothingWithoutADesktop)
{
    const environment_guard home("HOME", std::nullopt);
    const environment_guard configuration("XDG_CONFIG_HOME", std::nullopt);
    guarded<double> x(doubles{1});
    Cpp_WriteMatrixDbl(x.data(), 1, 1, "korvel_nowhere");
    EXPECT_FALSE(std::filesystem::exists("/matrix/korvel_nowhere.csv"));
    EXPECT_FALSE(std::filesystem::exists("matrix/korvel_nowhere.csv"));
}

TEST(FlatMatrixDump, FollowsTheConfiguredDesktop)
{
    scratch_desktop desktop;
    const auto home = desktop.folder().parent_path().parent_path();
    std::filesystem::create_directories(home / ".config");
    std::filesystem::create_directories(home / "Schreibtisch" / "matrix");
    std::ofstream(home / ".config" / "user-dirs.dirs") << "XDG_DESKTOP_DIR=\"$HOME/Schreibtisch\"\n";
    guarded<double> x(doubles{1});
    Cpp_WriteMatrixDbl(x.data(), 1, 1, "korvel_moved");
    EXPECT_TRUE(std::filesystem::exists(home / "Schreibtisch" / "matrix" / "korvel_moved.csv"));
    EXPECT_EQ(desktop.content("korvel_moved.csv"), "(none)");
}
#endif
