#include "korvelmathtools/KORVELMathTools.h"
#include "support/bits.h"
#include "support/host_arrays.h"

#include <array>
#include <vector>

using namespace korvel::test;

TEST(FlatVectorFrequencies, Numbers)
{
    std::array x{1.0, 1.5, 2.0};
    std::array counts{1, 2, 1};
    std::array w{1.0, 2.0, 4.0};
    EXPECT_SAME_BITS(VB_V_Freq(x.data(), 3, w.data(), 1.0, 0.5), 1.0);
    EXPECT_SAME_BITS(VB_V_Freq(x.data(), 3, w.data(), 1.0, 0.75), 3.0);
    EXPECT_SAME_BITS(VB_V_Freq(x.data(), 3, w.data(), 1.0, 0.0), 0.0);
    EXPECT_SAME_BITS(VB_V_FreqLng(counts.data(), 3, w.data(), 1.0, 0.5), 5.0);
    EXPECT_SAME_BITS(VB_V_FreqLng(counts.data(), 3, w.data(), 1.5, 0.75), 7.0);
    EXPECT_SAME_BITS(VB_V_Freq(nullptr, 0, nullptr, 1.0, 0.5), 0.0);
    EXPECT_SAME_BITS(VB_V_FreqLng(nullptr, 0, nullptr, 1.0, 0.5), 0.0);
}

TEST(FlatVectorFrequencies, Texts)
{
    bstr_block labels{u"ab", u"a", u"ab", u"", text(u"ab\0c", 4)};
    bstr_block values{u"ab", u"", u"abc", text(u"a\0b", 3)};
    std::array w{1.0, 2.0, 4.0, 8.0, 16.0};
    const std::vector<BSTR> before(labels.data(), labels.data() + 5);
    EXPECT_SAME_BITS(VB_V_FreqStr(labels.data(), 5, w.data(), values[0]), 21.0)
        << "a text ends at its first NUL";
    EXPECT_SAME_BITS(VB_V_FreqStr(labels.data(), 2, w.data(), values[0]), 1.0);
    EXPECT_SAME_BITS(VB_V_FreqStr(labels.data(), 5, w.data(), values[1]), 8.0);
    EXPECT_SAME_BITS(VB_V_FreqStr(labels.data(), 5, w.data(), nullptr), 8.0) << "no text is the empty one";
    EXPECT_SAME_BITS(VB_V_FreqStr(labels.data(), 5, w.data(), values[2]), 0.0);
    EXPECT_SAME_BITS(VB_V_FreqStr(labels.data(), 5, w.data(), values[3]), 2.0);
    EXPECT_SAME_BITS(VB_V_FreqStr(nullptr, 0, nullptr, values[0]), 0.0);
    EXPECT_EQ(std::vector<BSTR>(labels.data(), labels.data() + 5), before) << "nothing is written back";
}

TEST(FlatVectorFrequencies, ANullTextIsEmpty)
{
    bstr_block labels{std::nullopt, std::nullopt};
    std::array w{1.0, 2.0};
    EXPECT_SAME_BITS(VB_V_FreqStr(labels.data(), 2, w.data(), nullptr), 3.0);
    EXPECT_EQ(labels[0], nullptr);
}
