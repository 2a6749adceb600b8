#include "containers/host_array.h"

#include "containers/element_types.h"
#include "support/automation_watch.h"
#include "support/host_arrays.h"

#include <array>
#include <boost/numeric/conversion/cast.hpp>
#include <gtest/gtest.h>

using namespace korvel;
using namespace korvel::test;

namespace
{

using counts = std::vector<int>;

class HostArray : public ::testing::Test
{
protected:
    ~HostArray() override { EXPECT_TRUE(watch.nothingAlive()); }

    automation_watch watch;
};

const place null = std::nullopt;

} // namespace

TEST_F(HostArray, ShapeIsTheLeftmostDimensionAndTheNext)
{
    SAFEARRAY scalar{};
    EXPECT_EQ(hostArrayShape(scalar), (table_shape{1, 1}));
    EXPECT_EQ(hostArrayShape(*host_array(VT_R8, {4}, 7)), (table_shape{4, 1}));
    EXPECT_EQ(hostArrayShape(*host_array(VT_R8, {4, 3}, -7)), (table_shape{4, 3}));
    EXPECT_EQ(hostArrayShape(*host_array(VT_R8, {4, 3, 2})), (table_shape{4, 3}));
    EXPECT_EQ(hostArrayShape(*host_array(VT_R8, {0, 3})), (table_shape{0, 3}));
}

TEST_F(HostArray, LengthIsTheProductOfAllDimensions)
{
    SAFEARRAY scalar{};
    EXPECT_EQ(hostArrayLength(scalar), 1u);
    EXPECT_EQ(hostArrayLength(*host_array(VT_R8, {4})), 4u);
    EXPECT_EQ(hostArrayLength(*host_array(VT_R8, {4, 3, 2})), 24u);
    EXPECT_EQ(hostArrayLength(*host_array(VT_R8, {4, 0, 2})), 0u);
}

TEST_F(HostArray, LengthSaturates)
{
    const host_array array(VT_R8, {2, 2, 2});
    for (const std::size_t dimension : {0u, 1u, 2u}) {
        array.count(dimension) = 0xFFFFFFFF;
    }
    EXPECT_EQ(hostArrayLength(*array), 0xFFFFFFFFFFFFFFFFu);
    for (const std::size_t dimension : {0u, 1u, 2u}) {
        array.count(dimension) = 2;
    }
}

TEST_F(HostArray, AFixedSizeIsRefused)
{
    const host_array array({2}, elements<double>(2));
    array->fFeatures |= FADF_FIXEDSIZE;
    EXPECT_FALSE(resizeHostArray(*array, counts{1}, true));
    EXPECT_EQ(array.count(0), 2u);
    EXPECT_EQ(array.numbers<double>(2), elements<double>(2));
}

TEST_F(HostArray, AnotherNumberOfDimensionsIsRefused)
{
    const host_array array(VT_BSTR, {2, 1}, {u"a", u"b"});
    EXPECT_FALSE(resizeHostArray(*array, counts{1}, true));
    EXPECT_FALSE(resizeHostArray(*array, counts{1, 1, 1}, true));
    EXPECT_FALSE(resizeHostArray(*array, counts{}, true));
    EXPECT_EQ(array.texts(2), (std::vector<place>{u"a", u"b"}));
    SAFEARRAY scalar{};
    EXPECT_FALSE(resizeHostArray(scalar, counts{}, true));
}

TEST_F(HostArray, ANegativeCountIsRefused)
{
    const host_array array(VT_BSTR, {2, 1}, {u"a", u"b"});
    EXPECT_FALSE(resizeHostArray(*array, counts{-1, 1}, true));
    EXPECT_FALSE(resizeHostArray(*array, counts{1, -1}, true));
    EXPECT_EQ(array.texts(2), (std::vector<place>{u"a", u"b"}));
}

TEST_F(HostArray, AllCountsAfterAZeroAreZero)
{
    const host_array array(VT_R8, {2, 3, 4, 5});
    EXPECT_TRUE(resizeHostArray(*array, counts{7, 0, 4, 5}, false));
    EXPECT_EQ(array.count(0), 7u);
    EXPECT_EQ(array.count(1), 0u);
    EXPECT_EQ(array.count(2), 0u);
    EXPECT_EQ(array.count(3), 0u);
    EXPECT_TRUE(watch.blocks(1, 0));
}

TEST_F(HostArray, GrowsIntoAFreshBlock)
{
    const host_array array({2, 2}, elements<int>(4));
    EXPECT_TRUE(resizeHostArray(*array, counts{3, 4}, true));
    EXPECT_EQ(array.count(0), 3u);
    EXPECT_EQ(array.count(1), 4u);
    EXPECT_EQ(array.numbers<int>(12), std::vector<int>(12, 0));
    EXPECT_EQ(array->cbElements, 4u);
    EXPECT_TRUE(watch.blocks(2, 1));
}

TEST_F(HostArray, GrowsFromNoDataAtAll)
{
    const host_array array(VT_R8, {0, 3});
    CoTaskMemFree(array->pvData);
    array->pvData = nullptr;
    EXPECT_TRUE(resizeHostArray(*array, counts{2, 2}, true));
    EXPECT_EQ(array.numbers<double>(4), std::vector<double>(4, 0.0));
    EXPECT_EQ(array.count(0), 2u);
}

TEST_F(HostArray, TheSameCountKeepsTheBlock)
{
    const host_array array({2, 3}, elements<double>(6));
    void* block = array->pvData;
    EXPECT_TRUE(resizeHostArray(*array, counts{3, 2}, false));
    EXPECT_EQ(array->pvData, block);
    EXPECT_EQ(array.count(0), 3u);
    EXPECT_EQ(array.count(1), 2u);
    EXPECT_EQ(array.numbers<double>(6), elements<double>(6));
}

TEST_F(HostArray, ClearingReachesOnlyTheNewCount)
{
    const host_array array({2, 3}, elements<double>(6));
    EXPECT_TRUE(resizeHostArray(*array, counts{2, 2}, true));
    EXPECT_EQ(array.numbers<double>(6), (std::vector<double>{0, 0, 0, 0, 5, 6}));
}

TEST_F(HostArray, ShrinksWithoutData)
{
    SAFEARRAY withoutData{};
    withoutData.cDims = 1;
    withoutData.cbElements = sizeof(double);
    withoutData.rgsabound[0] = {3, 1};
    EXPECT_TRUE(resizeHostArray(withoutData, counts{2}, true));
    EXPECT_EQ(withoutData.rgsabound[0].cElements, 2u);
    EXPECT_EQ(withoutData.pvData, nullptr);
}

TEST_F(HostArray, LowerBoundsStay)
{
    const host_array array(VT_R8, {2, 2}, -9);
    EXPECT_TRUE(resizeHostArray(*array, counts{5, 5}, false));
    const SAFEARRAYBOUND* bounds = &array->rgsabound[0];
    EXPECT_EQ(bounds[0].lLbound, -9);
    EXPECT_EQ(bounds[1].lLbound, -9);
}

TEST_F(HostArray, OldTextsAreFreedOnce)
{
    const host_array array(VT_BSTR, {2, 2}, {u"a", null, u"", u"d"});
    EXPECT_TRUE(resizeHostArray(*array, counts{1, 2}, true));
    EXPECT_TRUE(watch.texts(3, 3));
    EXPECT_EQ(array.texts(2), (std::vector<place>{null, null}));
}

TEST_F(HostArray, OldTextsAreFreedEvenWithoutClearing)
{
    const host_array array(VT_BSTR, {3}, {u"a", u"b", u"c"});
    EXPECT_TRUE(resizeHostArray(*array, counts{2}, false));
    EXPECT_TRUE(watch.texts(3, 3));
    // Their places are empty, so that nothing frees them again.
    EXPECT_EQ(array.texts(2), (std::vector<place>{null, null}));
}

TEST_F(HostArray, NumbersAreNotTakenForTexts)
{
    const host_array array({3}, elements<double>(3));
    EXPECT_TRUE(resizeHostArray(*array, counts{2}, false));
    EXPECT_EQ(array.numbers<double>(2), elements<double>(2));
    EXPECT_TRUE(watch.texts(0, 0));
}

TEST_F(HostArray, AZeroCountFreesNoTexts)
{
    BSTR kept = newBstr(u"beyond");
    {
        struct {
            SAFEARRAY head;
            SAFEARRAYBOUND second;
        } descriptor{};
        descriptor.head.cDims = 2;
        descriptor.head.fFeatures = FADF_BSTR;
        descriptor.head.cbElements = sizeof(BSTR);
        descriptor.head.pvData = &kept;
        descriptor.head.rgsabound[0] = {0, 1};
        descriptor.second = {3, 1};
        EXPECT_TRUE(resizeHostArray(descriptor.head, counts{0, 1}, true));
        EXPECT_EQ(descriptor.head.rgsabound[0].cElements, 0u);
        EXPECT_EQ(descriptor.second.cElements, 0u);
    }
    EXPECT_EQ(contents(kept), u"beyond");
    SysFreeString(kept);
}

TEST_F(HostArray, ABlockThatCannotBeHadChangesNothingFurther)
{
    const host_array numbers({2, 2}, elements<double>(4));
    void* block = numbers->pvData;
    EXPECT_FALSE(resizeHostArray(*numbers, counts{0x7FFFFFFF, 0x7FFFFFFF}, true));
    EXPECT_EQ(numbers->pvData, block);
    EXPECT_EQ(numbers.count(0), 2u);
    EXPECT_EQ(numbers.count(1), 2u);
    EXPECT_EQ(numbers.numbers<double>(4), elements<double>(4));

    const host_array texts(VT_BSTR, {2, 1}, {u"a", u"b"});
    EXPECT_FALSE(resizeHostArray(*texts, counts{0x7FFFFFFF, 0x7FFFFFFF}, true));
    EXPECT_EQ(texts.count(0), 2u);
    EXPECT_EQ(texts.texts(2), (std::vector<place>{null, null}));
    EXPECT_TRUE(watch.texts(2, 2));
}
