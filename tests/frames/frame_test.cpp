#include "frames/frame.h"

#include "containers/element_types.h"
#include "support/automation_watch.h"
#include "support/host_arrays.h"

#include <array>
#include <boost/numeric/conversion/cast.hpp>
#include <new>
#include <type_traits>
#include <utility>

using namespace korvel;
using namespace korvel::test;

namespace
{

template <class T>
class NumericFrame : public ::testing::Test
{
};
TYPED_TEST_SUITE(NumericFrame, numeric_elements);

const place null = std::nullopt;

} // namespace

TEST(Frame, NoColumnsStandForOne)
{
    EXPECT_EQ(frame::columns(0), 1);
    EXPECT_EQ(frame::columns(1), 1);
    EXPECT_EQ(frame::columns(7), 7);
    EXPECT_EQ(frame::columns(-1), -1);
}

TYPED_TEST(NumericFrame, BorrowReachesTheCallersArray)
{
    auto values = elements<TypeParam>(6);
    {
        auto vector = frame::borrow(values.data(), 6);
        expectShape(vector, 6, 1, 6);
        EXPECT_EQ(vector.data, values.data());
        EXPECT_FALSE(vector.bOwner);
        EXPECT_EQ(vector.capacity, 6u);
        EXPECT_EQ(vector.safeArray, nullptr);
        auto table = frame::borrow(values.data(), 2, 3);
        expectShape(table, 2, 3, 6);
        table.setElement(1, 2, element<TypeParam>(9));
    }
    EXPECT_EQ(values[5], element<TypeParam>(9));
}

TYPED_TEST(NumericFrame, BorrowTakesANullPointerWithItsCount)
{
    const auto none = frame::borrow(static_cast<TypeParam*>(nullptr), 3);
    expectShape(none, 3, 1, 3);
    EXPECT_EQ(none.data, nullptr);
}

TYPED_TEST(NumericFrame, CopyInLeavesTheCallersArray)
{
    auto values = elements<TypeParam>(6);
    auto copy = frame::copyIn(values.data(), 3, 2);
    expectShape(copy, 3, 2, 6);
    EXPECT_TRUE(copy.bOwner);
    copy.setElement(0, 0, element<TypeParam>(9));
    auto onHeap = frame::copyToHeap(values.data(), 2, 2);
    expectShape(*onHeap, 2, 2, 4);
    EXPECT_TRUE(onHeap->bOwner);
    onHeap->setElement(0, 0, element<TypeParam>(9));
    EXPECT_EQ(values, elements<TypeParam>(6));
    EXPECT_EQ(onHeap->data[3], element<TypeParam>(4));
}

TYPED_TEST(NumericFrame, CopyOutWritesTheResultAndNothingElse)
{
    std::vector<TypeParam> out(6, element<TypeParam>(9));
    frame::copyOut(numbered<TypeParam>(2, 2), out.data() + 1);
    EXPECT_EQ(out.front(), element<TypeParam>(9));
    EXPECT_EQ(std::vector<TypeParam>(out.begin() + 1, out.begin() + 5), elements<TypeParam>(4));
    EXPECT_EQ(out.back(), element<TypeParam>(9));
    frame::copyOut(matrix<TypeParam>(), static_cast<TypeParam*>(nullptr));
}

TYPED_TEST(NumericFrame, CopyOutMayWriteOverItsOwnSource)
{
    auto values = elements<TypeParam>(5);
    frame::copyOut(frame::borrow(values.data(), 4), values.data() + 1);
    EXPECT_EQ(values,
              (std::vector<TypeParam>{element<TypeParam>(1), element<TypeParam>(1), element<TypeParam>(2),
                                      element<TypeParam>(3), element<TypeParam>(4)}));
}

TYPED_TEST(NumericFrame, AttachIsTheHostArrayInItsShape)
{
    const automation_watch watch;
    {
        host_array array({2, 3}, elements<TypeParam>(6));
        {
            auto m = frame::attach<TypeParam>(array.address());
            expectShape(m, 2, 3, 6);
            EXPECT_EQ(m.data, array->pvData);
            m.Redim(4, 4, element<TypeParam>(5));
        }
        EXPECT_EQ(array.template numbers<TypeParam>(16), std::vector<TypeParam>(16, element<TypeParam>(5)));
        EXPECT_TRUE(watch.arrays(1, 0));

        SAFEARRAY* none = nullptr;
        expectShape(frame::attach<TypeParam>(&none), 0, 0, 0);

        array.count(0) = 0x80000000;
        EXPECT_THROW((void)frame::attach<TypeParam>(array.address()), boost::numeric::positive_overflow);
        array.count(0) = 4;
    }
    EXPECT_TRUE(watch.nothingAlive());
}

TEST(Frame, BlankIsZeroOrEmpty)
{
    const auto zeros = frame::blank<double>(2, 3);
    expectShape(zeros, 2, 3, 6);
    EXPECT_TRUE(zeros.bOwner);
    EXPECT_EQ(linear(zeros), std::vector<double>(6, 0.0));
    EXPECT_EQ(linear(frame::blank<int>(3)), std::vector<int>(3, 0));
    EXPECT_EQ(linear(frame::blank<text>(2, 2)), std::vector<text>(4));
}

TYPED_TEST(NumericFrame, WithoutColumnsThereIsNoCellAndNoneIsMade)
{
    TypeParam* const nowhere = nullptr;
    for (const int cols : {0, -1}) {
        matrix<TypeParam> made[]{frame::copyIn(nowhere, 3, cols), frame::insteadOfCopy(nowhere, 3, cols),
                                 frame::blank<TypeParam>(3, cols), frame::filling(nowhere, 3, cols),
                                 std::move(*frame::copyToHeap(nowhere, 3, cols))};
        for (matrix<TypeParam>& table : made) {
            expectShape(table, 3, 0, 0);
            table.Redim(3, 0, TypeParam{});
            expectShape(table, 3, 0, 0);
            frame::copyOut(table, nowhere);
        }
    }
}

TYPED_TEST(NumericFrame, WhatStandsForACopyIsRefusedWhereTheCopyIs)
{
    auto cell = element<TypeParam>(1);
    for (const int cols : {-1, 0, 1, 3}) {
        EXPECT_THROW((void)frame::copyIn(&cell, -1, cols), std::bad_alloc);
        EXPECT_THROW((void)frame::insteadOfCopy(&cell, -1, cols), std::bad_alloc);
        EXPECT_THROW((void)frame::blank<TypeParam>(-1, cols), std::bad_alloc);
        EXPECT_THROW((void)frame::filling(&cell, -1, cols), std::bad_alloc);
        EXPECT_THROW((void)frame::source(matrix<TypeParam>(), &cell, -1, cols), std::bad_alloc);
    }
    EXPECT_THROW((void)frame::insteadOfCopy(&cell, 65536, 32768), std::bad_alloc);
    EXPECT_EQ(frame::insteadOfCopy(&cell, 65535, 32768).data, &cell);
}

TEST(Frame, TextsComeInAndOnlyWhatChangedGoesOut)
{
    const automation_watch watch;
    {
        bstr_block block{u"a", null, u"c", null};
        const BSTR first = block[0];
        {
            auto texts = frame::readTexts(block.data(), 2, 2);
            expectShape(texts, 2, 2, 4);
            EXPECT_EQ(linear(texts), (std::vector<text>{u"a", u"", u"c", u""}));
            texts.setElement(0, 1, u"changed");
            texts.setElement(1, 1, u"filled");
            frame::writeTexts(texts, block.data());
        }
        EXPECT_EQ(block[0], first);
        EXPECT_EQ(block.values(), (std::vector<place>{u"a", null, u"changed", u"filled"}));
        EXPECT_TRUE(watch.texts(4, 1));
    }
    EXPECT_TRUE(watch.nothingAlive());
}

TEST(Frame, TextsThatAreOnlyReadStay)
{
    const automation_watch watch;
    {
        bstr_block block{u"a", u"b"};
        auto texts = frame::readTexts(block.data(), 2);
        texts[0] = u"not written";
        EXPECT_TRUE(watch.texts(2, 0));
    }
    EXPECT_TRUE(watch.nothingAlive());
}

TEST(Frame, AttachedTextsReturnOnDestruction)
{
    host_array array(VT_BSTR, {2}, {u"a", null});
    frame::attach<text>(array.address())[0] = u"changed";
    EXPECT_EQ(array.texts(2), (std::vector<place>{u"changed", u""}));
}

TEST(Frame, WhatSharesMemoryWithTheResultIsCopied)
{
    alignas(double) std::array<int, 24> places{};
    const auto copied = [](const auto& written, auto* from, int rows, int cols) {
        return frame::besides(written, from, rows, cols).data != from;
    };
    const auto integers = frame::borrow(places.data() + 4, 2, 3); // places 4 to 9
    EXPECT_FALSE(copied(integers, places.data(), 4, 1));
    EXPECT_FALSE(copied(integers, places.data(), 2, 2));
    EXPECT_TRUE(copied(integers, places.data(), 5, 1));
    EXPECT_TRUE(copied(integers, places.data(), 1, 5));
    EXPECT_TRUE(copied(integers, places.data(), 24, 1)) << "around it";
    EXPECT_TRUE(copied(integers, places.data() + 6, 1, 1)) << "within it";
    EXPECT_TRUE(copied(integers, places.data() + 9, 2, 1));
    EXPECT_FALSE(copied(integers, places.data() + 10, 2, 1));
    EXPECT_FALSE(copied(integers, places.data() + 2, 5, 0)) << "no cells";
    EXPECT_FALSE(copied(integers, places.data() + 2, -5, -1)) << "no cells";

    const auto numbers = frame::borrow(reinterpret_cast<double*>(places.data() + 4), 3); // the same places
    EXPECT_FALSE(copied(numbers, places.data(), 4, 1));
    EXPECT_TRUE(copied(numbers, places.data(), 5, 1));
    EXPECT_TRUE(copied(numbers, places.data() + 9, 2, 1));
    EXPECT_FALSE(copied(numbers, places.data() + 10, 2, 1));
}

TEST(Frame, WhatIsToBeFilledIsInPlaceOrEmptyTexts)
{
    std::array<double, 6> cells{1, 2, 3, 4, 5, 6};
    auto numbers = frame::filling(cells.data(), 3, 2);
    EXPECT_EQ(numbers.data, cells.data());
    frame::clearUnless(true, numbers);
    EXPECT_EQ(cells[5], 6.0);
    frame::clearUnless(false, numbers);
    EXPECT_EQ(cells, (std::array<double, 6>{}));
    expectShape(frame::filling(cells.data(), 3, 0), 3, 0, 0);

    OLECHAR** const noBlock = nullptr;
    EXPECT_EQ(linear(frame::filling(noBlock, 3, 2)), std::vector<text>(6));
    for (const int cols : {0, -1}) {
        const auto nothing = frame::filling(noBlock, 3, cols);
        expectShape(nothing, 3, 0, 0);
        frame::bringBack(nothing, noBlock);
        auto texts = frame::readTexts(noBlock, 3, cols);
        expectShape(texts, 3, 0, 0);
        texts.Redim(3, 0, text());
        expectShape(texts, 3, 0, 0);
        EXPECT_THROW((void)frame::readTexts(noBlock, -1, cols), std::bad_alloc);
        EXPECT_THROW((void)frame::filling(noBlock, -1, cols), std::bad_alloc);
    }
}
