// Reference values of the last test: strtod of the C library, in the "C" locale.
#include "qualitative/leading_number.h"

#include "reference/categories.h"
#include "support/bits.h"
#include "support/random_cells.h"

#include <clocale>
#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <locale>
#include <string>
#include <utility>
#include <vector>

namespace
{

using korvel::categoryValue;
using korvel::leadingNumber;

constexpr double infinite = std::numeric_limits<double>::infinity();

void expectValues(const std::vector<std::pair<text, double>>& cases)
{
    for (const auto& [source, value] : cases) {
        EXPECT_SAME_BITS(leadingNumber(source), value) << std::string(source.begin(), source.end());
    }
}

/** A locale in which a number has a comma. */
struct comma_digits : std::numpunct<char> {
    char do_decimal_point() const override { return ','; }
};

} // namespace

TEST(LeadingNumber, IsAsMuchOfOneAsThereIs)
{
    expectValues({{u"12 months", 12.0},
                  {u"1.5.2", 1.5},
                  {u"-3kg", -3.0},
                  {u"+4", 4.0},
                  {u".5", 0.5},
                  {u"5.", 5.0},
                  {u"1e2x", 100.0},
                  {u"1E+2", 100.0},
                  {u"1e-2", 0.01},
                  {u"1e", 1.0},
                  {u"1e+", 1.0},
                  {u"1ex", 1.0},
                  {u"1d5", 1.0},
                  {u"1,5", 1.0},
                  {u"1 000", 1.0},
                  {u" \t\n\v\f\r7", 7.0}});
}

TEST(LeadingNumber, IsNoneWithoutADigit)
{
    expectValues({{u"", 0.0},
                  {u"word", 0.0},
                  {u".", 0.0},
                  {u"e5", 0.0},
                  {u"+", 0.0},
                  {u"--1", 0.0},
                  {u"+-1", 0.0},
                  {u"- 1", 0.0},
                  {u"-", 0.0},
                  {u"in", 0.0},
                  {u"\u00A07", 0.0},
                  {u"\uFF17", 0.0},
                  {u"\u0661", 0.0}});
}

TEST(LeadingNumber, MayBeHexadecimalOrAWord)
{
    expectValues({{u"0x1F", 31.0},
                  {u"0xAg", 10.0},
                  {u"0X.8p1", 1.0},
                  {u"0x1p-1z", 0.5},
                  {u"0x1p", 1.0},
                  {u"0x", 0.0},
                  {u"0xg", 0.0},
                  {u"-0x10", -16.0},
                  {u"inf", infinite},
                  {u"-Infinity", -infinite},
                  {u"infirm", infinite},
                  {u"INFINITE", infinite}});
    EXPECT_TRUE(std::isnan(leadingNumber(u"nan")));
    EXPECT_TRUE(std::isnan(leadingNumber(u"NaN(1)")));
    EXPECT_TRUE(std::isnan(leadingNumber(u"NAN")));
    EXPECT_TRUE(std::isnan(leadingNumber(u"Nantes")));
}

TEST(LeadingNumber, IsTheNearestDouble)
{
    expectValues({{u"0.1", 0.1},
                  {u"9007199254740993", 9007199254740992.0},
                  {u"9007199254740993.0000000000000000000000000001", 9007199254740994.0},
                  {u"2.5e-324", 5e-324},
                  {u"1e-400", 0.0},
                  {u"-1e-400", -0.0},
                  {u"-0", -0.0},
                  {u"0." + text(400, u'0') + u"1", 0.0},
                  {u"0." + text(400, u'0') + u"1e500", 1e99},
                  {u"0." + text(400, u'0') + u"1e50", 0.0},
                  {u"1" + text(400, u'0') + u"e-50", infinite},
                  {u"1" + text(700, u'0') + u"e-1100", 0.0},
                  {u"0." + text(499, u'0') + u"1e100", 0.0},
                  {u"0x1" + text(400, u'0') + u"p-500", infinite},
                  {u"1e400", infinite},
                  {u"-1e99999999999999999999", -infinite},
                  {u"1e-99999999999999999999", 0.0},
                  {u"1" + text(400, u'0'), infinite},
                  {u"1" + text(400, u'0') + u"e-400", 1.0},
                  {u"0e99999", 0.0},
                  {u"1.7976931348623159e308", infinite},
                  {u"0x1p5000", infinite},
                  {u"0x1p-5000", 0.0},
                  {u"0x.00000001p1050", 0x1p1018}});
}

TEST(LeadingNumber, TakesNoNoticeOfTheLocale)
{
    const std::locale before = std::locale::global(std::locale(std::locale::classic(), new comma_digits));
    EXPECT_EQ(leadingNumber(u"1.5"), 1.5);
    EXPECT_EQ(leadingNumber(u"1,5"), 1.0);
    std::locale::global(before);
    // Not every system has one of these; the others stay as they are.
    for (const char* name : {"de_DE.UTF-8", "fr_FR.UTF-8", "German"}) {
        if (std::setlocale(LC_ALL, name) != nullptr) {
            EXPECT_EQ(leadingNumber(u"1.5"), 1.5) << name;
        }
    }
    std::setlocale(LC_ALL, "C");
}

TEST(CategoryValue, HasItsFirstCommaForAFullStop)
{
    EXPECT_EQ(categoryValue(u"1,5"), 1.5);
    EXPECT_EQ(categoryValue(u"1,234,567"), 1.234);
    EXPECT_EQ(categoryValue(u"1.234,5"), 1.234);
}

TEST(CategoryValue, OfZeroIsANumberThatADigitChanges)
{
    for (const text& zero :
         {text(u"0"), text(u"0.00"), text(u"0,0"), text(u"-0"), text(u"+"), text(u"."), text(u"0x")}) {
        EXPECT_EQ(categoryValue(zero), 0.0) << std::string(zero.begin(), zero.end());
    }
    for (const text& word :
         {text(u"word"), text(u"0 "), text(u"0 months"), text(u"0e"), text(u"1e-400"), text(u"x1")}) {
        EXPECT_EQ(categoryValue(word), std::nullopt) << std::string(word.begin(), word.end());
    }
}

TEST(CategoryValue, OfNothingIsTheMissingNumber)
{
    EXPECT_EQ(categoryValue(u""), MISSING_DBL);
}

#ifndef _WIN32 // whose C library reads neither hexadecimal numbers nor words
TEST(LeadingNumber, IsWhatTheCLibraryReads)
{
    const std::u16string units = u"0019.,+-eExXpPinfaN ";
    korvel::test::random_cells cells(1, korvel::test::odd_cells::none);
    for (int round = 0; round < 20000; ++round) {
        text source;
        for (int k = cells.integer(0, 12); k > 0; --k) {
            source += units[static_cast<std::size_t>(cells.integer(0, static_cast<int>(units.size()) - 1))];
        }
        ASSERT_SAME_BITS(leadingNumber(source), korvel::reference::leadingNumber(source))
            << std::string(source.begin(), source.end());
    }
}
#endif
