#include "containers/utf8.h"

#include <gtest/gtest.h>

using korvel::toUtf8;
using namespace std::string_literals;

TEST(Utf8, EncodesEachLengthAtItsBounds)
{
    EXPECT_EQ(toUtf8(u""), "");
    EXPECT_EQ(toUtf8(u"\0A\x7F"s), "\0A\x7F"s);
    EXPECT_EQ(toUtf8(u"\x80\u07FF"), "\xC2\x80\xDF\xBF");
    EXPECT_EQ(toUtf8(u"\u0800\xD7FF\xE000\xFFFF"), "\xE0\xA0\x80\xED\x9F\xBF\xEE\x80\x80\xEF\xBF\xBF");
    EXPECT_EQ(toUtf8(u"\xD800\xDC00"), "\xF0\x90\x80\x80");
    EXPECT_EQ(toUtf8(u"\xDBFF\xDFFF"), "\xF4\x8F\xBF\xBF");
    EXPECT_EQ(toUtf8(u"\xD83D\xDE00"), "\xF0\x9F\x98\x80");
}

TEST(Utf8, ReplacesALoneSurrogateAndReadsTheNextUnitAgain)
{
    const std::string replaced = "\xEF\xBF\xBD";
    EXPECT_EQ(toUtf8(u"\xD800"), replaced);
    EXPECT_EQ(toUtf8(u"\xDBFF"), replaced);
    EXPECT_EQ(toUtf8(u"\xDC00"), replaced);
    EXPECT_EQ(toUtf8(u"\xDFFF"), replaced);
    EXPECT_EQ(toUtf8(u"\xD800x"), replaced + "x");
    EXPECT_EQ(toUtf8(u"\xD800\xD800"), replaced + replaced);
    EXPECT_EQ(toUtf8(u"\xD800\xD83D\xDE00"), replaced + "\xF0\x9F\x98\x80");
    EXPECT_EQ(toUtf8(u"\xDC00\xD800"), replaced + replaced);
    EXPECT_EQ(toUtf8(u"a\xDE00\xD83D"
                     u"b"),
              "a" + replaced + replaced + "b");
}
