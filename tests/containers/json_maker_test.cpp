#include "containers/json_maker.h"
#include "containers/missing.h"
#include "support/address_space.h"
#include "support/bits.h"

#include <bit>
#include <charconv>
#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <random>
#include <rapidjson/prettywriter.h>
#include <rapidjson/stringbuffer.h>
#include <utility>

#if !defined(_WIN32)
#include <cstdlib>
#include <fstream>
#include <new>
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

TEST(JsonMaker, WritesNumbersWithAPointOrAnExponent)
{
    const std::pair<double, const char*> cases[] = {
        {0.0, "0.0"},
        {-0.0, "-0.0"},
        {1.0, "1.0"},
        {-17.0, "-17.0"},
        {12.5, "12.5"},
        {0.1, "0.1"},
        {0.05, "0.05"},
        {1.0 / 3.0, "0.3333333333333333"},
        {123456.789, "123456.789"},
        {9007199254740993.0, "9007199254740992.0"},
        {1e20, "100000000000000000000.0"},
        {123456789012345678901.0, "123456789012345680000.0"},
        {-9.999999999999999e20, "-999999999999999900000.0"},
        {1e21, "1e21"},
        {1.5e21, "1.5e21"},
        {1e-5, "0.00001"},
        {1.25e-6, "0.00000125"},
        {1e-6, "0.000001"},
        {9.5e-7, "9.5e-7"},
        {-1.25e-10, "-1.25e-10"},
        {5e-324, "5e-324"},
        {std::numeric_limits<double>::max(), "1.7976931348623157e308"},
        {std::numeric_limits<double>::min(), "2.2250738585072014e-308"},
        {MISSING_DBL, "-1.79769313486231e308"},
    };
    for (const auto& [value, expected] : cases) {
        EXPECT_EQ(jsonOf(value), expected);
    }
}

/** The digits are RapidJSON's own. They read back as the number, but are not always the nearest or fewest. */
TEST(JsonMaker, WritesTheDigitsThatReadersOfItsTextsKnow)
{
    EXPECT_EQ(jsonOf(0.1 + 0.2), "0.30000000000000007");
    EXPECT_EQ(jsonOf(0.13640703636619722), "0.13640703636619723");
    EXPECT_EQ(jsonOf(2.517779544046383e16), "25177795440463833.0");
    EXPECT_EQ(jsonOf(-3.223839540649372e-236), "-3.2238395406493718e-236");
}

TEST(JsonMaker, WritesANumberAsAPlainPrettyWriterDoes)
{
    using plain_buffer = rapidjson::GenericStringBuffer<rapidjson::UTF8<>, rapidjson::MemoryPoolAllocator<>>;
    using plain_writer = rapidjson::PrettyWriter<plain_buffer, rapidjson::UTF8<>, rapidjson::UTF8<>,
                                                 rapidjson::MemoryPoolAllocator<>>;
    const auto expectPlain = [](double value) {
        plain_buffer buffer;
        plain_writer writer(buffer);
        writer.Double(value);
        const std::string number = jsonOf(value);
        EXPECT_EQ(number, buffer.GetString());
        EXPECT_NE(number.find_first_of(".e"), std::string::npos) << number;
        double readBack = 0.0;
        std::from_chars(number.data(), number.data() + number.size(), readBack);
        EXPECT_SAME_BITS(readBack, value) << number;
    };
    std::mt19937_64 random(30);
    for (int round = 0; round < 3000; ++round) {
        if (const auto anyBits = std::bit_cast<double>(random()); std::isfinite(anyBits)) {
            expectPlain(anyBits);
        }
        expectPlain(static_cast<double>(random() >> 11) * 0x1p-53);
        expectPlain(static_cast<double>(static_cast<int>(random())) / 100.0);
    }
    for (int exponent = -1074; exponent < 1024; ++exponent) {
        expectPlain(std::ldexp(1.0, exponent));
        expectPlain(-std::nextafter(std::ldexp(1.0, exponent), 0.0));
    }
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

/**
 * Writes until 64 MB are used up. The process ends with 0 if that raised std::bad_alloc and kept the buffer.
 */
[[noreturn]] void writeUntilMemoryIsShort()
{
    korvel::test::limitAddressSpace(addressSpaceInUse() + (64u << 20));
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
    if (!korvel::test::addressSpaceCanBeLimited()) {
        GTEST_SKIP() << "the emulator ignores limits";
    }
    EXPECT_EXIT(writeUntilMemoryIsShort(), ::testing::ExitedWithCode(0), "");
}
#endif
