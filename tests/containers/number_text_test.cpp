#include "containers/number_text.h"
#include "support/bits.h"

#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>
#include <locale>
#include <random>
#include <sstream>
#include <vector>

using korvel::parseNumber;
using korvel::renderWhole;

namespace
{

constexpr double infinity = std::numeric_limits<double>::infinity();

/** A locale in which a number has a comma and grouped digits. */
class grouped_digits : public std::numpunct<char>
{
    char do_decimal_point() const override { return ','; }
    char do_thousands_sep() const override { return '.'; }
    std::string do_grouping() const override { return "\3"; }
};

/** Replaces the global locale while it lives. */
class global_locale
{
public:
    explicit global_locale(const std::locale& wanted) : former_(std::locale::global(wanted)) {}
    ~global_locale() { std::locale::global(former_); }
    global_locale(const global_locale&) = delete;
    global_locale& operator=(const global_locale&) = delete;

private:
    std::locale former_;
};

/** `pow` may differ by a unit in the last place from one platform to the next. */
/** How far the platform's power function may be off, in units in the last place: what was measured. */
#ifdef _WIN32
constexpr int powerError = 3; // 10^308
#else
constexpr int powerError = 1;
#endif

::testing::AssertionResult withinPowerError(double actual, double expected)
{
    const auto distance = std::bit_cast<std::int64_t>(actual) - std::bit_cast<std::int64_t>(expected);
    if (distance >= -powerError && distance <= powerError) {
        return ::testing::AssertionSuccess();
    }
    return ::testing::AssertionFailure() << actual << " is not " << expected;
}

} // namespace

TEST(NumberText, FoldsDigitsFromBothEnds)
{
    // The figures come from the same two folds in Python.
    const std::pair<std::u16string_view, double> cases[] = {
        {u"0", 0.0},
        {u"1", 1.0},
        {u"+17", 17.0},
        {u"-17", -17.0},
        {u"007", 7.0},
        {u".5", 0.5},
        {u"-.25", -0.25},
        {u"5.", 5.0},
        {u"0.1", 0x1.999999999999ap-4},
        {u"0.3", 0x1.3333333333334p-2},
        {u"0.12", 0x1.eb851eb851eb9p-4},
        {u"0.7", 0x1.6666666666667p-1},
        {u"3.14159", 0x1.921f9f01b866ep+1},
        {u"-2.675", -0x1.5666666666666p+1},
        {u"123456.789", 0x1.e240c9fbe76c9p+16},
        {u"0.001", 0x1.0624dd2f1a9fdp-10},
        {u"0.333333333333333333", 0x1.5555555555556p-2},
        {u"9007199254740993", 0x1.0p+53},
        {u"99999999999999999999", 0x1.5af1d78b58c41p+66},
    };
    for (const auto& [number, value] : cases) {
        const auto parsed = parseNumber(number, u".");
        ASSERT_TRUE(parsed.has_value());
        EXPECT_SAME_BITS(*parsed, value);
    }
}

TEST(NumberText, NeedsNoDigits)
{
    for (const std::u16string_view number :
         {u"", u"+", u".", u"+.", u"e", u"E", u"e5", u".e5", u"+e5", u"e+5"}) {
        const auto parsed = parseNumber(number, u".");
        ASSERT_TRUE(parsed.has_value());
        EXPECT_SAME_BITS(*parsed, 0.0);
    }
    EXPECT_SAME_BITS(*parseNumber(u"-", u"."), -0.0);
    EXPECT_SAME_BITS(*parseNumber(u"-.", u"."), -0.0);
    EXPECT_SAME_BITS(*parseNumber(u"-0", u"."), -0.0);
}

TEST(NumberText, MultipliesByAPowerOfTen)
{
    const std::pair<std::u16string_view, double> cases[] = {
        {u"1,5e2", 150.0},
        {u"1e+5", 1e5},
        {u"1E-2", 0.01},
        {u"-3e0", -3.0},
        {u"1e", 1.0},
        {u"1e+", 1.0},
        {u"1e-", 1.0},
        {u"2e0000000000000001", 20.0},
        {u"-1e-2", -0.01},
        {u"1e22", 1e22},
        {u"12e-1", 1.2},
        {u"1e308", 1e308},
        {u"1e5+", 1e5},
        {u"1e2,5", 1e2},
        {u"1e+-5", 1.0},
        {u"1e--5", 1.0},
        {u"-1e5+", -1e5},
        {u"1e4294967297", 10},
        {u"1e1-7", 10.0},
        {u"1e,5", 1.0},
        {u"1e-4294967298", 0.01},
    };
    for (const auto& [number, value] : cases) {
        const auto parsed = parseNumber(number, u",");
        ASSERT_TRUE(parsed.has_value());
        EXPECT_TRUE(withinPowerError(*parsed, value));
    }
}

TEST(NumberText, WrapsAnExponentThatDoesNotFit)
{
    // 2147483648 wraps to -2147483648, and so does its negative.
    EXPECT_SAME_BITS(*parseNumber(u"1e2147483648", u"."), 0.0);
    EXPECT_SAME_BITS(*parseNumber(u"1e-2147483648", u"."), 0.0);
    EXPECT_SAME_BITS(*parseNumber(u"1e2147483647", u"."), infinity);
    EXPECT_SAME_BITS(*parseNumber(u"1e4294967296", u"."), 1.0);
}

TEST(NumberText, RunsOutOfRangeAsItsProductsDo)
{
    EXPECT_SAME_BITS(*parseNumber(u"1e309", u"."), infinity);
    EXPECT_SAME_BITS(*parseNumber(u"-1e309", u"."), -infinity);
    EXPECT_SAME_BITS(*parseNumber(u"1e-400", u"."), 0.0);
    EXPECT_SAME_BITS(*parseNumber(u"0e400", u"."), std::numeric_limits<double>::quiet_NaN());
    EXPECT_SAME_BITS(*parseNumber(std::u16string(400, u'9'), u"."), infinity);
}

TEST(NumberText, AcceptsTheSeparatorOnce)
{
    EXPECT_SAME_BITS(*parseNumber(u"1,5", u","), 1.5);
    EXPECT_SAME_BITS(*parseNumber(u"1,5", u",."), 1.5);
    EXPECT_SAME_BITS(*parseNumber(u"1\u066B5", u"\u066B"), 1.5);
    EXPECT_FALSE(parseNumber(u"1.5", u","));
    EXPECT_FALSE(parseNumber(u"1.5", u",."));
    EXPECT_FALSE(parseNumber(u"1,5,0", u","));
    EXPECT_FALSE(parseNumber(u"1,5e2,0", u","));
    EXPECT_FALSE(parseNumber(u"1.5", u""));
    EXPECT_SAME_BITS(*parseNumber(u"15", u""), 15.0);
}

TEST(NumberText, AcceptsASignFirstAndAfterTheMark)
{
    EXPECT_FALSE(parseNumber(u"--1", u"."));
    EXPECT_FALSE(parseNumber(u"+-1", u"."));
    EXPECT_FALSE(parseNumber(u"1-", u"."));
    EXPECT_FALSE(parseNumber(u"1+1", u"."));
    EXPECT_FALSE(parseNumber(u".-1", u"."));
    // The count starts at 0, or at 1 with a leading sign; the mark takes 1 off.
    EXPECT_TRUE(parseNumber(u"1e+-", u"."));
    EXPECT_FALSE(parseNumber(u"1e+-+", u"."));
    EXPECT_TRUE(parseNumber(u"-1e+", u"."));
    EXPECT_FALSE(parseNumber(u"-1e+5-", u"."));
}

TEST(NumberText, AcceptsTheMarkOnce)
{
    EXPECT_FALSE(parseNumber(u"1e5e5", u"."));
    EXPECT_FALSE(parseNumber(u"1e5E5", u"."));
    EXPECT_FALSE(parseNumber(u"ee", u"."));
}

TEST(NumberText, RejectsEverythingElse)
{
    for (const std::u16string_view number :
         {u" ", u" 1", u"1 ", u"x", u"0x10", u"nan", u"inf", u"1d5", u"1_0", u"\uFF11", u"\u0661",
          u"1\u00A0000", u"\u22121", u"\xD800"}) {
        EXPECT_FALSE(parseNumber(number, u"."));
    }
    EXPECT_FALSE(parseNumber(std::u16string_view(u"1\0", 2), u"."));
}

TEST(NumberText, AcceptsWhatTheRulesAcceptAndNothingMore)
{
    std::mt19937 random(20);
    const std::u16string_view alphabet = u"+-eE,0123456789,+-e.";
    int accepted = 0;
    for (int round = 0; round < 200000; ++round) {
        std::u16string number(random() % 9, u' ');
        for (char16_t& unit : number) {
            unit = alphabet[random() % alphabet.size()];
        }
        // The rules once more, by counting.
        const auto count = [](std::u16string_view part, std::u16string_view wanted) {
            return std::count_if(part.begin(), part.end(), [&](char16_t unit) {
                return wanted.find(unit) != std::u16string_view::npos;
            });
        };
        const std::size_t mark = number.find_first_of(u"eE");
        const std::u16string_view mantissa = std::u16string_view(number).substr(0, mark);
        const bool leadingSign = count(mantissa.substr(0, 1), u"+-") == 1;
        const auto laterSigns = count(number, u"+-") - count(mantissa, u"+-");
        const bool valid = count(number, u"eE") <= 1 && count(number, u",") <= 1 &&
                           count(number, u".") == 0 && count(mantissa, u"+-") == (leadingSign ? 1 : 0) &&
                           laterSigns <= (leadingSign ? 1 : 2);
        EXPECT_EQ(parseNumber(number, u",").has_value(), valid);
        accepted += valid ? 1 : 0;
    }
    EXPECT_GT(accepted, 20000);
}

TEST(WholeNumberText, RoundsHalfToEven)
{
    const std::pair<double, std::u16string_view> cases[] = {
        {0.0, u"0"},
        {-0.0, u"-0"},
        {1.0, u"1"},
        {-17.0, u"-17"},
        {0.5, u"0"},
        {1.5, u"2"},
        {2.5, u"2"},
        {3.5, u"4"},
        {-0.5, u"-0"},
        {-2.5, u"-2"},
        {0.49999999999999994, u"0"},
        {0.5000000000000001, u"1"},
        {-0.3, u"-0"},
        {999999.5, u"1000000"},
        {123456789.5, u"123456790"},
        {4503599627370495.5, u"4503599627370496"},
        {4503599627370497.5, u"4503599627370498"},
        {1e22, u"10000000000000000000000"},
        {1e23, u"99999999999999991611392"},
        {5e-324, u"0"},
    };
    for (const auto& [value, expected] : cases) {
        EXPECT_EQ(renderWhole(value), expected);
    }
}

TEST(WholeNumberText, WritesAllDigitsOfALargeNumber)
{
    // Exact decimal expansions, from Python's integers.
    EXPECT_EQ(
        renderWhole(1e300),
        u"100000000000000005250476025520442024870446858110815915491585411551180245798890819578637137508044786"
        u"40437"
        u"044438328838781769425232353604305756447921847867069828483872009265758037378302337947880900593689532"
        u"34970"
        u"799945081119038967640880074652742780142494579258788820056842838115669472196386865459400540160");
    EXPECT_EQ(renderWhole(std::numeric_limits<double>::lowest()),
              u"-17976931348623157081452742373170435679807056752584499659891747680315726078002853876058955863"
              u"27668781715"
              u"404589535143824642343213268894641827684675467035375169860499105765512820762454900903893289440"
              u"75868508455"
              u"133942304583236903222948165808559332123348274797826204144723168738177180919299881250404026184"
              u"124858368");
}

TEST(WholeNumberText, LeavesTheMissingNumberInTheShorterForm)
{
    EXPECT_EQ(renderWhole(MISSING_DBL), u"-2e+308");
    EXPECT_EQ(renderWhole(std::nextafter(MISSING_DBL, 0.0)).size(), 310u);
    EXPECT_EQ(renderWhole(std::nextafter(MISSING_DBL, -infinity)).size(), 310u);
    EXPECT_EQ(renderWhole(-MISSING_DBL).size(), 309u);
}

TEST(WholeNumberText, NamesWhatIsNoNumber)
{
    const double nan = std::numeric_limits<double>::quiet_NaN();
    EXPECT_EQ(renderWhole(infinity), u"inf");
    EXPECT_EQ(renderWhole(-infinity), u"-inf");
    EXPECT_EQ(renderWhole(std::copysign(nan, 1.0)), u"nan");
    EXPECT_EQ(renderWhole(std::copysign(nan, -1.0)), u"-nan");
}

TEST(WholeNumberText, KnowsNoLocale)
{
    const global_locale grouping(std::locale(std::locale::classic(), new grouped_digits));
    std::ostringstream stream;
    stream << std::fixed << 1234567.0;
    ASSERT_EQ(stream.str(), "1.234.567,000000");
    EXPECT_EQ(renderWhole(1234567.0), u"1234567");
    EXPECT_SAME_BITS(*parseNumber(u"1234.5", u"."), 1234.5);
}

TEST(WholeNumberText, IsWhatAWideStreamOfTheClassicLocaleWrites)
{
    std::mt19937_64 random(21);
    std::vector<double> values{0.5, 1.5, 2.5, -0.5, MISSING_DBL, infinity, -infinity, 0.0, -0.0, 1e15 + 0.5};
    for (int round = 0; round < 20000; ++round) {
        values.push_back(std::bit_cast<double>(random()));
        values.push_back(static_cast<double>(static_cast<std::int64_t>(random()) >> (round % 50)) / 2.0);
    }
    for (const double value : values) {
        std::wostringstream stream;
        stream.imbue(std::locale::classic());
        stream.precision(0);
        if (value != MISSING_DBL) {
            stream << std::fixed;
        }
        stream << value;
        const std::wstring wide = stream.str();
#ifdef _WIN32
        // The runtime there leaves out the sign of a NaN.
        const std::wstring sign = std::isnan(value) && std::signbit(value) ? L"-" : L"";
        const std::wstring expected = sign + wide;
#else
        const std::wstring& expected = wide;
#endif
        EXPECT_EQ(renderWhole(value), text(expected.begin(), expected.end()));
    }
}
