// Flat functions that move texts and take memory for it, with each allocation of the language failing in
// turn.
#include "faults/each_allocation.h"
#include "korvelmathtools/KORVELMathTools.h"
#include "support/host_arrays.h"

#include <cstddef>
#include <vector>

using namespace korvel::test;

namespace
{

const place null = std::nullopt;

/** Too long for a text's own room, so that each one needs a block. */
text longText(char16_t letter)
{
    return text(40, letter);
}

/** A table of 2 by 2 texts, another of 2 by 1, and an empty result. */
class TableMoveFaults : public ::testing::Test
{
protected:
    bstr_block a{longText(u'a'), longText(u'b'), longText(u'c'), longText(u'd')};
    bstr_block b{longText(u'e'), longText(u'f')};
    bstr_block out{null, null, null, null, null, null};
    const std::vector<place> beforeA = a.values();
    const std::vector<place> beforeB = b.values();

    /** Every failure leaves the result as it was; the one run that goes through leaves `expected`. */
    template <class Action>
    void expectAllOrNothing(Action action, const std::vector<place>& expected)
    {
        const int needed = failEachAllocation([&] {
            for (std::size_t k = 0; k < 6; ++k) {
                EXPECT_EQ(out[k], nullptr);
            }
            action();
        });
        EXPECT_GT(needed, 4);
        EXPECT_EQ(out.values(), expected);
        EXPECT_EQ(a.values(), beforeA);
        EXPECT_EQ(b.values(), beforeB);
    }
};

} // namespace

TEST_F(TableMoveFaults, Merge)
{
    expectAllOrNothing(
        [&] { VB_HMergeTablesStr(a.data(), 2, 2, b.data(), 2, 1, out.data()); },
        {longText(u'a'), longText(u'b'), longText(u'c'), longText(u'd'), longText(u'e'), longText(u'f')});
}

TEST_F(TableMoveFaults, CopyBlock)
{
    expectAllOrNothing([&] { VB_M_CopyBlockStr(a.data(), 2, 2, 2, 2, 1, 2, out.data()); },
                       {longText(u'b'), longText(u'd'), null, null, null, null});
}

TEST_F(TableMoveFaults, CopyAndPaste)
{
    expectAllOrNothing([&] { Cpp_M_CopyPasteBlockStr(a.data(), 2, 2, 1, 2, 2, 2, out.data(), 3, 2, 2, 2); },
                       {null, null, null, null, longText(u'c'), longText(u'd')});
}

TEST_F(TableMoveFaults, Resize)
{
    expectAllOrNothing([&] { VB_M_CopyResizeStr(a.data(), 2, 2, out.data(), 3, 1); },
                       {longText(u'a'), longText(u'b'), null, null, null, null});
}
