#include "containers/json_maker.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

#if !defined(_WIN32)
#include <cstdlib>
#include <fstream>
#include <new>
#include <sys/resource.h>
#include <unistd.h>
#endif

using namespace std::string_literals;

namespace
{

template <class T>
std::string jsonOf(const T& value)
{
    JsonMaker maker;
    maker.write("", value);
    std::string json = maker.written();
    maker.dispose();
    return json;
}

} // namespace

TEST(JsonMaker, IsAHandleOfTwoPointers)
{
    static_assert(sizeof(JsonMaker) == 2 * sizeof(void*));
    static_assert(std::is_trivially_copyable_v<JsonMaker>);
    const JsonMaker maker;
    EXPECT_EQ(maker.buffer, nullptr);
    EXPECT_EQ(maker.writer, nullptr);
    EXPECT_EQ(maker.written(), "");
}

TEST(JsonMaker, MakesBufferAndWriterTogetherOnFirstUse)
{
    JsonMaker maker;
    maker.startArray("");
    EXPECT_NE(maker.buffer, nullptr);
    EXPECT_NE(maker.writer, nullptr);
    const JsonMaker former = maker;
    maker.endArray();
    EXPECT_EQ(maker.buffer, former.buffer);
    EXPECT_EQ(maker.writer, former.writer);
    EXPECT_EQ(maker.written(), "[]");
    maker.dispose();
    EXPECT_EQ(maker.buffer, nullptr);
    EXPECT_EQ(maker.writer, nullptr);
    maker.dispose();
    maker.write("", 1);
    EXPECT_EQ(maker.written(), "1");
    maker.dispose();
}

TEST(JsonMaker, IndentsObjectsAndKeepsArraysOnOneLine)
{
    JsonMaker maker;
    maker.startObject("");
    maker.write("whole", -3);
    maker.startObject("inner");
    maker.writeBoolean("yes", true);
    maker.writeBoolean("no", false);
    maker.endObject();
    maker.startArray("list");
    maker.write("", 1);
    maker.startArray("");
    maker.endArray();
    maker.write("", u"x"s);
    maker.endArray();
    maker.startObject("nothing");
    maker.endObject();
    maker.endObject();
    EXPECT_EQ(maker.written(), R"({
    "whole": -3,
    "inner": {
        "yes": true,
        "no": false
    },
    "list": [1, [], "x"],
    "nothing": {}
})");
    maker.dispose();
}

TEST(JsonMaker, WritesTheShortestNumberWithAPointOrAnExponent)
{
    EXPECT_EQ(jsonOf(1.0), "1.0");
    EXPECT_EQ(jsonOf(-0.0), "-0.0");
    EXPECT_EQ(jsonOf(0.1 + 0.2), "0.30000000000000004");
    EXPECT_EQ(jsonOf(1e21), "1e21");
    EXPECT_EQ(jsonOf(MISSING_DBL), "-1.79769313486231e308");
}

TEST(JsonMaker, WritesNumbersThatJsonLacks)
{
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const double infinity = std::numeric_limits<double>::infinity();
    EXPECT_EQ(jsonOf(nan), "NaN");
    EXPECT_EQ(jsonOf(std::copysign(nan, -1.0)), "NaN");
    EXPECT_EQ(jsonOf(infinity), "Infinity");
    EXPECT_EQ(jsonOf(-infinity), "-Infinity");
    JsonMaker maker;
    maker.startArray("");
    maker.write("", nan);
    maker.write("", -infinity);
    maker.write("", 1.0);
    maker.endArray();
    EXPECT_EQ(maker.written(), "[NaN, -Infinity, 1.0]");
    maker.dispose();
}

TEST(JsonMaker, WritesTheExtremeIntegers)
{
    EXPECT_EQ(jsonOf(MISSING_LNG), "-2147483648");
    EXPECT_EQ(jsonOf(2147483647), "2147483647");
}

TEST(JsonMaker, EscapesWhatJsonCannotHold)
{
    EXPECT_EQ(jsonOf(u"a\"b\\c/d"s), R"("a\"b\\c/d")");
    EXPECT_EQ(jsonOf(u"\b\f\n\r\t"s), R"("\b\f\n\r\t")");
    EXPECT_EQ(jsonOf(u"\0\x1\x1F\x7F"s), "\"\\u0000\\u0001\\u001F\x7F\"");
    EXPECT_EQ(jsonOf(u""s), "\"\"");
}

TEST(JsonMaker, WritesUtf8AndRepairsSurrogates)
{
    EXPECT_EQ(jsonOf(u"\u00E9\u20AC"s), "\"\xC3\xA9\xE2\x82\xAC\"");
    EXPECT_EQ(jsonOf(u"\xD83D\xDE00"s), "\"\xF0\x9F\x98\x80\"");
    EXPECT_EQ(jsonOf(u"\xD800"s), "\"\xEF\xBF\xBD\"");
    EXPECT_EQ(jsonOf(u"x\xDC00y"s), "\"x\xEF\xBF\xBDy\"");
    EXPECT_EQ(jsonOf(u"\xD800\"\xD800"s), "\"\xEF\xBF\xBD\\\"\xEF\xBF\xBD\"");
}

TEST(JsonMaker, WritesTablesByColumns)
{
    JsonMaker maker;
    maker.startObject("");
    maker.writeTable("one", matrix<int>(3, 1, 5));
    maker.writeTable("none", matrix<int>(0, 1, 5));
    maker.writeTable("neither", matrix<double>());
    maker.writeTable("row", matrix<text>(1, 2, u"t"));
    double cells[] = {1.0, 2.0, 3.0, 4.0, 5.0, 6.0};
    maker.writeTable("two", matrix<double>(3, 2, cells, true));
    maker.writeTable("unseen", matrix<double>(3, 2, nullptr, true));
    maker.endObject();
    EXPECT_EQ(maker.written(), R"({
    "one": [5, 5, 5],
    "row": [["t"], ["t"]],
    "two": [[1.0, 2.0, 3.0], [4.0, 5.0, 6.0]]
})");
    maker.dispose();
}

TEST(JsonMaker, WritesATableWithoutAKeyAsAnElement)
{
    JsonMaker maker;
    maker.writeTable("", matrix<short int>(2, 1, -1));
    EXPECT_EQ(maker.written(), "[-1, -1]");
    maker.dispose();
}

#if !defined(_WIN32)
namespace
{

/** The address space that this process has taken. */
std::size_t addressSpaceInUse()
{
    std::size_t pages = 0;
    std::ifstream("/proc/self/statm") >> pages;
    return pages * static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
}

/** Writes until 64 MB are used up; leaves the process with 0 when that is told as it should be. */
[[noreturn]] void writeUntilMemoryIsShort()
{
    const rlimit limit{addressSpaceInUse() + (64u << 20), RLIM_INFINITY};
    setrlimit(RLIMIT_AS, &limit);
    JsonMaker maker;
    maker.startArray("");
    try {
        const text kilobyte(1024, u'x');
        for (int i = 0; i < 1'000'000; ++i) {
            maker.write("", kilobyte);
        }
    } catch (const std::bad_alloc&) {
        const std::size_t kept = maker.buffer != nullptr ? 1u : 0u;
        maker.dispose();
        std::exit(kept == 1 ? 0 : 2);
    }
    std::exit(1);
}

} // namespace

TEST(JsonMakerDeathTest, TellsThatMemoryIsShort)
{
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
    GTEST_SKIP() << "a sanitizer needs more address space than the test leaves";
#endif
    EXPECT_EXIT(writeUntilMemoryIsShort(), ::testing::ExitedWithCode(0), "");
}
#endif
