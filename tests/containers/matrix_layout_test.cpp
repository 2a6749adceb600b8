#include "containers/element_types.h"

#include <cstddef>
#include <type_traits>

using namespace korvel::test;

namespace
{

template <class T>
class MatrixLayout : public ::testing::Test
{
};
TYPED_TEST_SUITE(MatrixLayout, all_elements);

/** Where a field lies in its object. */
template <class Object, class Field>
std::ptrdiff_t position(const Object& object, const Field& field)
{
    return reinterpret_cast<const char*>(&field) - reinterpret_cast<const char*>(&object);
}

constexpr std::ptrdiff_t roundedUp(std::ptrdiff_t position, std::ptrdiff_t alignment)
{
    return (position + alignment - 1) / alignment * alignment;
}

} // namespace

TYPED_TEST(MatrixLayout, FieldsStandInTheirOrderWithoutAnythingBetween)
{
    using T = TypeParam;
    const matrix<T> m;
    const auto size = static_cast<std::ptrdiff_t>(sizeof(T));
    const auto first = roundedUp(sizeof(void*), alignof(T)); // after the table of virtual functions
    EXPECT_EQ(position(m, m.oobValue), first);
    EXPECT_EQ(position(m, m.spareValue), first + size);
    EXPECT_EQ(position(m, m.bOwner), first + 2 * size);
    const auto firstElem = roundedUp(first + 2 * size + 1, 4);
    EXPECT_EQ(position(m, m.firstElem), firstElem);
    const auto nbElem = roundedUp(firstElem + 4, 8);
    EXPECT_EQ(position(m, m.nbElem), nbElem);
    EXPECT_EQ(position(m, m.capacity), nbElem + 8);
    EXPECT_EQ(position(m, m.nbrows), nbElem + 16);
    EXPECT_EQ(position(m, m.nbcols), nbElem + 20);
    EXPECT_EQ(position(m, m.data), nbElem + 24);
    EXPECT_EQ(position(m, m.safeArray), nbElem + 32);
    EXPECT_EQ(sizeof m, static_cast<std::size_t>(nbElem + 40));
}

TYPED_TEST(MatrixLayout, FieldsHaveTheirTypes)
{
    using T = TypeParam;
    using M = matrix<T>;
    static_assert(std::is_same_v<decltype(M::oobValue), T> && std::is_same_v<decltype(M::spareValue), T>);
    static_assert(std::is_same_v<decltype(M::bOwner), bool>);
    static_assert(std::is_same_v<decltype(M::firstElem), std::int32_t>);
    static_assert(std::is_same_v<decltype(M::nbElem), std::uint64_t>);
    static_assert(std::is_same_v<decltype(M::capacity), std::uint64_t>);
    static_assert(std::is_same_v<decltype(M::nbrows), std::int32_t>);
    static_assert(std::is_same_v<decltype(M::nbcols), std::int32_t>);
    static_assert(std::is_same_v<decltype(M::data), T*>);
    static_assert(std::is_same_v<decltype(M::safeArray), SAFEARRAY*>);
    static_assert(std::has_virtual_destructor_v<M>);
    static_assert(!std::is_copy_assignable_v<M> && std::is_nothrow_move_assignable_v<M>);
}

TEST(StatisticsMatrixLayout, BuffersIntegersAndFlagsFollowTheMatrix)
{
    const statistics_matrix<double> m;
    const std::ptrdiff_t first = sizeof(matrix<double>);
    EXPECT_EQ(position(m, m.buffer1), first);
    EXPECT_EQ(position(m, m.buffer2), first + 8);
    EXPECT_EQ(position(m, m.buffer3), first + 16);
    EXPECT_EQ(position(m, m.buffer4), first + 24);
    EXPECT_EQ(position(m, m.buffer5), first + 32);
    EXPECT_EQ(position(m, m.buffer6), first + 40);
    EXPECT_EQ(position(m, m.buffer7), first + 48);
    EXPECT_EQ(position(m, m.count1), first + 56);
    EXPECT_EQ(position(m, m.count2), first + 60);
    EXPECT_EQ(position(m, m.flag1), first + 64);
    EXPECT_EQ(position(m, m.flag2), first + 65);
    static_assert(sizeof m.flag1 == 1 && sizeof m.count1 == 4);
}
