#include "qualitative/text_index.h"

#include "support/text_tables.h"

#include <gtest/gtest.h>
#include <set>

using korvel::hashed_text;
using korvel::text_index;
using namespace korvel::test;

namespace
{

/** Texts that differ in their last units alone, as names of categories often do. */
std::vector<text> numbered(int count, const text& beginning)
{
    std::vector<text> made;
    for (int k = 0; k < count; ++k) {
        text digits(5, u'0');
        for (int place = 4, rest = k; place >= 0; --place, rest /= 10) {
            digits[static_cast<std::size_t>(place)] = static_cast<char16_t>(u'0' + rest % 10);
        }
        made.push_back(beginning + digits);
    }
    return made;
}

} // namespace

TEST(TextIndex, KeepsWhatWasPutLast)
{
    const std::vector<text> keys{u"a", u"b", u"", u"a"};
    text_index index;
    EXPECT_EQ(index.find(keys[0]), -1);
    index.put(keys[0], 5);
    EXPECT_EQ(index.findOrPut(keys[1], 6), 6);
    EXPECT_EQ(index.findOrPut(keys[1], 7), 6);
    EXPECT_EQ(index.find(keys[2]), -1);
    index.put(keys[2], 0);
    EXPECT_EQ(index.find(keys[2]), 0) << "the empty text is a key like any other";
    index.put(keys[3], 8);
    EXPECT_EQ(index.find(keys[0]), 8) << "an equal text that stands elsewhere";
    index.clear();
    EXPECT_EQ(index.find(keys[0]), -1);
    EXPECT_EQ(index.findOrPut(keys[0], 3), 3);
}

// So many texts that some have the same hash.
TEST(TextIndex, TellsTextsApartThatHashAlike)
{
    constexpr int count = 99'999;
    std::vector<text> keys = numbered(count, u"");
    const std::vector<text> longer = numbered(count, u"a beginning ");
    keys.insert(keys.end(), longer.begin(), longer.end());
    text_index index;
    std::set<std::uint32_t> hashes;
    for (std::size_t k = 0; k < keys.size(); ++k) {
        ASSERT_EQ(index.find(keys[k]), -1);
        index.put(keys[k], static_cast<int>(k));
        hashes.insert(hashed_text(keys[k]).hash());
    }
    EXPECT_LT(hashes.size(), keys.size());
    for (std::size_t k = 0; k < keys.size(); ++k) {
        ASSERT_EQ(index.find(keys[k]), static_cast<int>(k));
    }
}

// A thousand texts thrown at 4096 places by chance hit about 887 of them.
TEST(TextIndex, SpreadsTextsByEachOfTheirUnits)
{
    const auto placesHit = [](const std::vector<text>& keys) {
        std::set<std::uint32_t> places;
        for (const text& key : keys) {
            places.insert(hashed_text(key).hash() % 4096);
        }
        return places.size();
    };
    for (std::size_t behind = 0; behind < 9; ++behind) {
        for (std::size_t before = 0; before < 9; ++before) {
            std::vector<text> keys = numbered(1000, text(before, u'x'));
            for (text& key : keys) {
                key += text(behind, u'y');
            }
            EXPECT_GT(placesHit(keys), 800u) << before << " units before, " << behind << " behind";
        }
    }
    for (std::size_t length = 1; length < 5; ++length) {
        for (std::size_t place = 0; place < length; ++place) {
            std::vector<text> keys(1000, text(length, u'x'));
            for (std::size_t k = 0; k < keys.size(); ++k) {
                keys[k][place] = static_cast<char16_t>(u' ' + k);
            }
            EXPECT_GT(placesHit(keys), 800u) << "unit " << place << " of " << length;
        }
    }
    std::vector<text> lengths;
    for (std::size_t k = 1; k <= 1000; ++k) {
        lengths.emplace_back(k, u'x');
    }
    EXPECT_GT(placesHit(lengths), 800u) << "and by their length";
}
