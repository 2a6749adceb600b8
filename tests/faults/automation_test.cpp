// Texts, host arrays and their blocks, with each allocation of the automation library failing in turn.
// Windows has no way to make its own fail.
#if !defined(_WIN32)

#include "containers/bstr.h"
#include "containers/host_array.h"
#include "containers/matrix.h"
#include "platform/automation/counters.h"
#include "support/automation_watch.h"
#include "support/host_arrays.h"

#include <new>
#include <optional>
#include <utility>

using namespace korvel;
using namespace korvel::test;

namespace
{

const place null = std::nullopt;

/** While it lives, the automation library makes `allowed` further things and then nothing. */
class automation_limit
{
public:
    explicit automation_limit(std::int64_t allowed) { KorvelLimitAutomationAllocations(allowed); }
    ~automation_limit() { KorvelLimitAutomationAllocations(-1); }
    automation_limit(const automation_limit&) = delete;
    automation_limit& operator=(const automation_limit&) = delete;
};

class AutomationFaults : public ::testing::Test
{
protected:
    ~AutomationFaults() override { EXPECT_TRUE(watch.nothingAlive()); }

    automation_watch watch;
};

} // namespace

TEST_F(AutomationFaults, ATextThatCannotBeMade)
{
    const automation_limit none(0);
    EXPECT_THROW((void)makeBstr(u"a"), std::bad_alloc);
}

TEST_F(AutomationFaults, WritingBackKeepsWhatItDidNotReach)
{
    const std::vector<text> values{u"A", u"same", u"C", u"D"};
    const std::vector<place> before{u"a", u"same", null, u"d"};
    for (std::size_t allowed = 0; allowed <= 3; ++allowed) {
        bstr_block block{u"a", u"same", null, u"d"};
        const std::vector<BSTR> pointers{block[0], block[1], block[2], block[3]};
        {
            const automation_limit limit(static_cast<std::int64_t>(allowed));
            if (allowed < 3) {
                EXPECT_THROW(writeBack(values.data(), values.size(), block.data()), std::bad_alloc);
            } else {
                EXPECT_NO_THROW(writeBack(values.data(), values.size(), block.data()));
            }
        }
        std::size_t replaced = 0;
        for (const std::size_t k : {0u, 2u, 3u}) {
            if (replaced < allowed) {
                EXPECT_EQ(contents(block[k]), values[k]) << allowed;
                ++replaced;
            } else {
                EXPECT_EQ(block[k], pointers[k]) << allowed;
                EXPECT_EQ(contents(block[k]), before[k]) << allowed;
            }
        }
        EXPECT_EQ(block[1], pointers[1]);
    }
}

TEST_F(AutomationFaults, ADyingTableOfTextsKeepsWhatItDidNotReachAndSaysNothing)
{
    for (std::size_t allowed = 0; allowed <= 2; ++allowed) {
        const host_array array(VT_BSTR, {3}, {u"a", null, u"c"});
        const std::vector<BSTR> pointers = array.numbers<BSTR>(3);
        {
            std::optional<matrix<text>> m(std::in_place, array.get());
            (*m)[0] = text(u"A");
            const automation_limit limit(static_cast<std::int64_t>(allowed));
            m.reset();
        }
        EXPECT_EQ(contents(array.elements<BSTR>()[0]), allowed > 0 ? u"A" : u"a");
        EXPECT_EQ(contents(array.elements<BSTR>()[1]), allowed > 1 ? place(u"") : null);
        EXPECT_EQ(array.elements<BSTR>()[2], pointers[2]);
        if (allowed == 0) {
            EXPECT_EQ(array.elements<BSTR>()[0], pointers[0]);
        }
    }
}

TEST_F(AutomationFaults, ANumericTableGoesOnWithTheOldBlock)
{
    const host_array array({2, 2}, std::vector<double>{1, 2, 3, 4});
    void* block = array->pvData;
    matrix<double> m(array.get());
    {
        const automation_limit none(0);
        EXPECT_NO_THROW(m.Redim(3, 3));
    }
    EXPECT_EQ(array->pvData, block);
    EXPECT_EQ(array.count(0), 2u);
    EXPECT_EQ(array.count(1), 2u);
    EXPECT_EQ(array.numbers<double>(4), (std::vector<double>{1, 2, 3, 4}));
    EXPECT_EQ(m.nbrows, 3);
    EXPECT_EQ(m.nbElem, 9u);
    EXPECT_EQ(m.data, block);
    EXPECT_FALSE(m.bOwner);
}

TEST_F(AutomationFaults, ATableOfTextsGoesOnWithTheOldBlock)
{
    const host_array array(VT_BSTR, {2}, {u"a", u"b"});
    void* block = array->pvData;
    {
        matrix<text> m(array.get());
        {
            const automation_limit none(0);
            EXPECT_NO_THROW(m.Redim(3, 1, u"z"));
        }
        EXPECT_EQ(array->pvData, block);
        EXPECT_EQ(array.count(0), 2u);
        EXPECT_EQ(array.texts(2), (std::vector<place>{null, null}));
        EXPECT_EQ(m.nbElem, 3u);
    }
    EXPECT_EQ(array.texts(2), (std::vector<place>{u"z", u"z"}));
}

TEST_F(AutomationFaults, AResizeFreesTheOldTextsOnceThoughItFails)
{
    const host_array array(VT_BSTR, {2}, {u"a", u"b"});
    {
        const automation_limit none(0);
        EXPECT_FALSE(resizeHostArray(*array, std::vector<int>{3}, true));
    }
    EXPECT_TRUE(watch.texts(2, 2));
    EXPECT_TRUE(resizeHostArray(*array, std::vector<int>{3}, true));
    EXPECT_TRUE(watch.texts(2, 2));
    EXPECT_EQ(array.texts(3), (std::vector<place>(3, null)));
}

TEST_F(AutomationFaults, AnArrayIsMadeWholeOrNotAtAll)
{
    SAFEARRAYBOUND bound{3, 1};
    for (const std::int64_t allowed : {0, 1}) {
        const automation_limit limit(allowed);
        EXPECT_EQ(SafeArrayCreate(VT_R8, 1, &bound), nullptr) << allowed;
    }
}

#endif
