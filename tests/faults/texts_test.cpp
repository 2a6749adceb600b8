// Texts and tables of texts, with each allocation of the language failing in turn.
#include "containers/bstr.h"
#include "faults/each_allocation.h"
#include "frames/frame.h"
#include "support/host_arrays.h"

#include <type_traits>

using namespace korvel;
using namespace korvel::test;

namespace
{

const place null = std::nullopt;

/** Too long for a text's own room, so that each one needs a block. */
text longText(char16_t letter)
{
    return text(40, letter);
}

/** Makes the object count as used: a compiler may leave out an allocation that nothing looks at. */
template <class Object>
void keep(const Object& object)
{
    asm volatile("" : : "r"(&object) : "memory");
}

class TextFaults : public ::testing::Test
{
protected:
    bstr_block block{longText(u'a'), longText(u'b'), null, longText(u'd')};
    const std::vector<BSTR> pointers{block[0], block[1], block[2], block[3]};
    const std::vector<place> values = block.values();

    void expectBlockAsItWas()
    {
        EXPECT_EQ((std::vector<BSTR>{block[0], block[1], block[2], block[3]}), pointers);
        EXPECT_EQ(block.values(), values);
    }
};

} // namespace

static_assert(std::is_nothrow_destructible_v<matrix<double>> &&
              std::is_nothrow_destructible_v<matrix<text>> &&
              std::is_nothrow_destructible_v<statistics_matrix<double>>);

TEST_F(TextFaults, AFilledTable)
{
    const text value = longText(u'v');
    EXPECT_EQ(failEachAllocation([&] { const matrix<text> m(2, 2, value); }), 5);
}

TEST_F(TextFaults, ACopyOfABlock)
{
    EXPECT_EQ(failEachAllocation([&] { const matrix<text> m(2, 2, block.data(), 0, 0); }), 4);
    expectBlockAsItWas();
}

TEST_F(TextFaults, ACopyOfATable)
{
    const matrix<text> source(2, 2, block.data(), 0, 0);
    EXPECT_EQ(failEachAllocation([&] { const matrix<text> m(source); }), 4);
}

TEST_F(TextFaults, ACopyOfAHostArray)
{
    const host_array array(VT_BSTR, {2, 1}, {longText(u'a'), longText(u'b')});
    const std::vector<BSTR> before = array.numbers<BSTR>(2);
    EXPECT_EQ(failEachAllocation([&] { const matrix<text> m(array.get()); }), 3);
    EXPECT_EQ(failEachAllocation([&] { const matrix<text> m(1, 2, array.get()); }), 3);
    EXPECT_EQ(array.numbers<BSTR>(2), before);
}

TEST_F(TextFaults, AFilledShape)
{
    const text value = longText(u'v');
    EXPECT_EQ(failEachAllocation([&] {
                  matrix<text> m(1, 1, text());
                  m.Redim(1, 2, value);
              }),
              5);
}

TEST_F(TextFaults, TheShapeOfAHostArray)
{
    // Once resized, the array holds no texts; those of the table reach it when the table dies.
    EXPECT_EQ(failEachAllocation([&] {
                  const host_array array(VT_BSTR, {1}, {longText(u'a')});
                  matrix<text> m(array.get());
                  m.Redim(3, 1);
              }) > 3,
              true);
}

TEST_F(TextFaults, AFrameThatReadsChangesAndWrites)
{
    const text value = longText(u'v');
    EXPECT_EQ(failEachAllocation([&] {
                  auto texts = frame::readTexts(block.data(), 4);
                  texts[1] = value;
                  texts[2] = value;
              }),
              5);
    expectBlockAsItWas();
}

TEST_F(TextFaults, WritingBackTakesNoMemoryOfTheLanguage)
{
    auto texts = frame::readTexts(block.data(), 4);
    texts[1] = longText(u'v');
    EXPECT_EQ(failEachAllocation([&] { frame::writeTexts(texts, block.data()); }), 0);
    EXPECT_EQ(contents(block[1]), longText(u'v'));
}

TEST(NumberFaults, EveryConstructorNeedsOneBlock)
{
    std::vector<double> values(4, 1.0);
    const matrix<double> source(2, 2, 1.0);
    EXPECT_EQ(failEachAllocation([&] { keep(matrix<double>(2, 2, 1.0)); }), 1);
    EXPECT_EQ(failEachAllocation([&] { keep(matrix<double>(2, 2, 0)); }), 1);
    EXPECT_EQ(failEachAllocation([&] { keep(matrix<int>(2, 2)); }), 1);
    EXPECT_EQ(failEachAllocation([&] { keep(matrix<double>(2, 2, values.data(), false)); }), 1);
    EXPECT_EQ(failEachAllocation([&] { keep(matrix<double>(source)); }), 1);
    EXPECT_EQ(failEachAllocation([&] { keep(matrix<double>(1, source)); }), 1);
    EXPECT_EQ(failEachAllocation([&] { keep(statistics_matrix<double>(2, 2, 1.0)); }), 1);
}

TEST(NumberFaults, ViewsAndAttachedTablesNeedNone)
{
    std::vector<double> values(4, 1.0);
    const host_array array({2, 2}, values);
    EXPECT_EQ(failEachAllocation([&] {
                  auto view = frame::borrow(values.data(), 4);
                  view.setElement(3, 0, 2.0);
                  matrix<double> attached(array.get());
                  attached.Redim(3, 3, 2.0);
                  matrix<double> moved(std::move(attached));
                  moved.Redim(2, 2);
              }),
              0);
}

TEST(NumberFaults, AFailedShapeLeavesAnObjectThatCanGoOn)
{
    matrix<double> m(2, 2, 1.0);
    {
        const allocation_limit none(0);
        EXPECT_THROW(m.Redim(3, 3), std::bad_alloc);
    }
    EXPECT_EQ(m.capacity, 0u);
    EXPECT_EQ(m.data, nullptr);
    m.Redim(3, 1, 5.0);
    EXPECT_EQ(m[2], 5.0);
}
