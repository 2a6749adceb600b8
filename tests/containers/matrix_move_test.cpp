#include "containers/element_types.h"
#include "support/allocations.h"
#include "support/automation_watch.h"
#include "support/host_arrays.h"

#include <array>
#include <cstdint>
#include <utility>

using namespace korvel::test;

namespace
{

template <class T>
class MatrixMove : public ::testing::Test
{
};
TYPED_TEST_SUITE(MatrixMove, all_elements);

/** Keeps the compiler from seeing that an object is assigned to itself. */
template <class Object>
Object& itself(Object& object)
{
    return object;
}

} // namespace

TYPED_TEST(MatrixMove, TakesEveryFieldAndLeavesNoBlock)
{
    auto source = numbered<TypeParam>(2, 3);
    source.oobValue = element<TypeParam>(8);
    source.spareValue = element<TypeParam>(9);
    source.firstElem = 4;
    source.Redim(2, 2);
    const TypeParam* block = source.data;
    matrix<TypeParam> target(5, 1, element<TypeParam>(7));
    target = std::move(source);
    expectShape(target, 2, 2, 4);
    EXPECT_EQ(target.capacity, 6u);
    EXPECT_EQ(target.data, block);
    EXPECT_TRUE(target.bOwner);
    EXPECT_EQ(target.firstElem, 4);
    EXPECT_EQ(target.oobValue, element<TypeParam>(8));
    EXPECT_EQ(target.spareValue, element<TypeParam>(9));
    EXPECT_EQ(linear(target), elements<TypeParam>(4));
    EXPECT_EQ(source.data, nullptr);
    EXPECT_EQ(source.safeArray, nullptr);
}

TYPED_TEST(MatrixMove, OntoItselfDoesNothing)
{
    auto m = numbered<TypeParam>(2, 2);
    const TypeParam* block = m.data;
    m = std::move(itself(m));
    expectShape(m, 2, 2, 4);
    EXPECT_EQ(m.data, block);
    EXPECT_EQ(linear(m), elements<TypeParam>(4));
}

TYPED_TEST(MatrixMove, AViewOfTheSameBlockDoesNotFreeIt)
{
    auto owner = numbered<TypeParam>(2, 2);
    auto view = viewOf(4, 1, owner.data);
    owner = std::move(view);
    expectShape(owner, 4, 1, 4);
    EXPECT_FALSE(owner.bOwner);
    EXPECT_EQ(linear(owner), elements<TypeParam>(4));
    owner.bOwner = true;
}

TYPED_TEST(MatrixMove, ABorrowedBlockOfTheTargetStaysTheCallers)
{
    auto values = elements<TypeParam>(3);
    auto target = viewOf(3, 1, values.data());
    target = numbered<TypeParam>(1, 1);
    EXPECT_TRUE(target.bOwner);
    EXPECT_EQ(values, elements<TypeParam>(3));
}

TYPED_TEST(MatrixMove, ConstructionTakesEveryFieldToo)
{
    auto source = numbered<TypeParam>(2, 2);
    source.oobValue = element<TypeParam>(8);
    const TypeParam* block = source.data;
    const matrix<TypeParam> target(std::move(source));
    EXPECT_EQ(target.data, block);
    EXPECT_EQ(target.oobValue, element<TypeParam>(8));
    EXPECT_EQ(source.data, nullptr);
}

TYPED_TEST(MatrixMove, TheTargetsHostArrayIsDestroyed)
{
    const automation_watch watch;
    {
        host_array array(elementType<TypeParam>(), {2, 2});
        matrix<TypeParam> target(array.release());
        target = numbered<TypeParam>(3, 1);
        EXPECT_EQ(target.safeArray, nullptr);
        EXPECT_TRUE(watch.arrays(1, 1));
        expectShape(target, 3, 1, 3);
    }
    EXPECT_TRUE(watch.arrays(1, 1));
    EXPECT_TRUE(watch.nothingAlive());
}

TYPED_TEST(MatrixMove, ASharedHostArrayStays)
{
    const automation_watch watch;
    {
        const host_array array(elementType<TypeParam>(), {2, 2});
        matrix<TypeParam> target(array.get());
        matrix<TypeParam> source(array.get());
        target = std::move(source);
        EXPECT_TRUE(watch.arrays(1, 0));
        EXPECT_EQ(target.safeArray, array.get());
        EXPECT_EQ(source.safeArray, nullptr);
        expectShape(target, 2, 2, 4);
    }
    EXPECT_TRUE(watch.arrays(1, 1));
    EXPECT_TRUE(watch.nothingAlive());
}

TYPED_TEST(MatrixMove, AHostArrayChangesHands)
{
    const automation_watch watch;
    {
        const host_array array(elementType<TypeParam>(), {3, 2});
        matrix<TypeParam> target(1, 1, TypeParam{});
        target = matrix<TypeParam>(array.get());
        EXPECT_EQ(target.safeArray, array.get());
        expectShape(target, 3, 2, 6);
        EXPECT_TRUE(watch.arrays(1, 0));
    }
    EXPECT_TRUE(watch.nothingAlive());
}

TEST(MatrixMove, TextsOfADestroyedTargetAreNotWrittenBack)
{
    const automation_watch watch;
    {
        host_array array(VT_BSTR, {1}, {u"old"});
        matrix<text> target(array.release());
        target.data[0] = u"new";
        target = matrix<text>();
        EXPECT_TRUE(watch.texts(1, 1));
    }
    EXPECT_TRUE(watch.nothingAlive());
}

namespace
{

constexpr std::array<double * statistics_matrix<double>::*, 7> buffers{
    &statistics_matrix<double>::buffer1, &statistics_matrix<double>::buffer2,
    &statistics_matrix<double>::buffer3, &statistics_matrix<double>::buffer4,
    &statistics_matrix<double>::buffer5, &statistics_matrix<double>::buffer6,
    &statistics_matrix<double>::buffer7};

} // namespace

TEST(StatisticsMatrix, StartsWithNothingInItsBuffers)
{
    const statistics_matrix<double> m(3, 0, 2.0);
    expectShape(m, 3, 1, 3);
    EXPECT_EQ(linear(m), std::vector<double>(3, 2.0));
    for (const double* buffer :
         {m.buffer1, m.buffer2, m.buffer3, m.buffer4, m.buffer5, m.buffer6, m.buffer7}) {
        EXPECT_EQ(buffer, nullptr);
    }
    EXPECT_EQ(m.count1, 0);
    EXPECT_EQ(m.count2, 0);
    EXPECT_FALSE(m.flag1);
    EXPECT_FALSE(m.flag2);
}

TEST(StatisticsMatrix, MovesItsBuffersIntegersAndFlags)
{
    statistics_matrix<double> source(2, 2, 3.0);
    for (std::size_t k = 0; k < buffers.size(); ++k) {
        source.*buffers[k] = new double[1]{static_cast<double>(k)};
    }
    source.count1 = 5;
    source.count2 = 6;
    source.flag1 = true;
    source.flag2 = true;

    statistics_matrix<double> target(1, 1, 0.0);
    target.buffer3 = new double[2]{};
    target.buffer7 = new double[2]{};
    target = std::move(source);
    for (std::size_t k = 0; k < buffers.size(); ++k) {
        EXPECT_EQ((target.*buffers[k])[0], static_cast<double>(k));
        EXPECT_EQ(source.*buffers[k], nullptr);
    }
    EXPECT_EQ(target.count1, 5);
    EXPECT_EQ(target.count2, 6);
    EXPECT_TRUE(target.flag1);
    EXPECT_TRUE(target.flag2);
    EXPECT_EQ(source.count1, 5);
    expectShape(target, 2, 2, 4);

    target = std::move(itself(target));
    EXPECT_EQ(target.buffer5[0], 4.0);

    const statistics_matrix<double> third(std::move(target));
    EXPECT_EQ(third.buffer1[0], 0.0);
    EXPECT_TRUE(third.flag2);
    EXPECT_EQ(target.buffer1, nullptr);
}

TEST(StatisticsMatrix, FreesItsBuffersWhenItDiesAndWhenItTakesOthers)
{
    const auto filled = [] {
        statistics_matrix<double> m(1, 1, 0.0);
        for (const auto buffer : buffers) {
            m.*buffer = new double[1]{};
        }
        return m;
    };
    const std::int64_t before = allocationsAlive();
    {
        auto first = filled();
        auto second = filled();
        EXPECT_EQ(allocationsAlive(), before + 16) << "a block and seven buffers each";
        first = std::move(second);
        EXPECT_EQ(allocationsAlive(), before + 8);
    }
    EXPECT_EQ(allocationsAlive(), before);
}
