#include "tables/vector_values.h"

#include "support/bits.h"
#include "support/random_cells.h"

#include <functional>
#include <string>
#include <utility>
#include <vector>

using namespace korvel::test;

namespace
{

using numbers = std::vector<double>;
constexpr double missing = MISSING_DBL;

void expectCells(const matrix<double>& x, const numbers& expected, const std::string& what = "")
{
    ASSERT_EQ(x.nbElem, expected.size());
    for (std::size_t k = 0; k < expected.size(); ++k) {
        EXPECT_TRUE(sameBits(x.data[k], expected[k])) << what << ' ' << k;
    }
}

} // namespace

TEST(VectorValues, AddingToThemLooksAtFlagsOrAtMissingCells)
{
    std::vector<short int> flags{0, -1, 7, 0, 0};
    const numbers cells{1, 2, 3, missing, notANumber};
    auto x = vectorOf(cells);
    V_PlusVal(&x, 5, 0.5, flags.data());
    expectCells(x, {1.5, 2, 3, missing + 0.5, notANumber}, "flags");
    x = vectorOf(cells);
    V_PlusVal(&x, 4, 1e300, flags.data());
    expectCells(x, {1.0 + 1e300, 2, 3, missing + 1e300, notANumber}, "a missing cell without a flag");
    x = vectorOf(cells);
    V_PlusVal(&x, 3, 1e300, nullptr);
    expectCells(x, {1.0 + 1e300, 2.0 + 1e300, 3.0 + 1e300, missing, notANumber}, "no flags");
    x = vectorOf(cells);
    V_PlusVal2(&x, 5, 1e300);
    expectCells(x, {1.0 + 1e300, 2.0 + 1e300, 3.0 + 1e300, missing, notANumber}, "missing cells");
    auto gap = vectorOf<double>({missing, belowSentinel});
    V_PlusVal2(&gap, 2, 1e300);
    expectCells(gap, {missing, belowSentinel + 1e300}, "the sentinel alone");
    gap = vectorOf<double>({missing});
    V_PlusVal(&gap, 1, 1e300, nullptr);
    expectCells(gap, {missing + 1e300}, "without a test");
}

TEST(VectorValues, BehindTheEndOnlyTheSpareSlotChanges)
{
    auto x = vectorOf<double>({1, 2});
    V_PlusVal2(&x, 4, 10);
    expectCells(x, {11, 12});
    EXPECT_TRUE(sameBits(x.oobValue, 32.0)) << "12, and 10 twice";
    V_PlusVal2(&x, 0, 10);
    V_PlusVal(&x, -3, 10, nullptr);
    expectCells(x, {11, 12});
}

TEST(VectorValues, ReplacingIsExact)
{
    auto x = vectorOf<double>({3, 3.0000000000000004, missing, 0.0, -0.0, notANumber});
    auto out = vectorOf<double>({9, 9, 9, 9, 9, 9});
    V_ReplaceVal(&x, 6, 3, 7, &out);
    expectCells(out, {7, 3.0000000000000004, missing, 0.0, -0.0, notANumber});
    expectCells(x, {3, 3.0000000000000004, missing, 0.0, -0.0, notANumber}, "stays");
    V_ReplaceVal(&x, 6, missing, 7, &out);
    expectCells(out, {3, 3.0000000000000004, 7, 0.0, -0.0, notANumber});
    V_ReplaceVal2(&x, 6, 0.0, missing);
    expectCells(x, {3, 3.0000000000000004, missing, missing, missing, notANumber}, "both zeros");
    V_ReplaceVal2(&x, 6, notANumber, 7);
    expectCells(x, {3, 3.0000000000000004, missing, missing, missing, notANumber}, "a NaN equals none");
    V_ReplaceVal2(&x, 1, 3, 4);
    V_ReplaceVal2(&x, 0, 4, 5);
    expectCells(x, {4, 3.0000000000000004, missing, missing, missing, notANumber});
}

TEST(VectorValues, CleaningKeepsTheOrderAndTheRest)
{
    struct given {
        numbers cells;
        numbers cleaned;
        int kept;
    };
    for (const given& vector : std::vector<given>{
             {{}, {}, 0},
             {{1, 2}, {1, 2}, 2},
             {{1, missing, 3, missing, 5}, {1, 3, 5, missing, 5}, 3},
             {{missing, missing}, {missing, missing}, 0},
             {{notANumber, 2, belowSentinel, -infinite, infinite},
              {2, infinite, belowSentinel, -infinite, infinite},
              2},
             {{missing, 8}, {8, 8}, 1},
         }) {
        const int n = static_cast<int>(vector.cells.size());
        auto x = vectorOf(vector.cells);
        int m = 77;
        V_CleanVectDbl2(&x, n, m);
        EXPECT_EQ(m, vector.kept);
        expectCells(x, vector.cleaned);
        x = vectorOf(vector.cells);
        auto w = vectorOf(vector.cells);
        m = 77;
        V_CleanVectDblW2(&x, n, &w, m);
        EXPECT_EQ(m, vector.kept);
        expectCells(x, vector.cleaned);
        expectCells(w, vector.cleaned, "weights");
    }
    auto x = vectorOf<double>({missing, 2, 3});
    auto w = vectorOf<double>({10, 20, missing});
    int m = 0;
    V_CleanVectDblW2(&x, 3, &w, m);
    expectCells(w, {20, missing, missing}, "moved along untested");
}

TEST(VectorValues, AreSetAndExchanged)
{
    auto x = vectorOf<double>({1, 2, 3});
    korvel::setToValue(x, 2, 9.0);
    expectCells(x, {9, 9, 3});
    std::vector<text> words{u"a", u"b"};
    matrix<text> texts(2, 1, words.data());
    V_SetToValueStr(&texts, 1, u"same");
    EXPECT_EQ(words, (std::vector<text>{u"same", u"b"}));
    auto y = vectorOf<double>({4, missing, 6});
    korvel::swapVectors(x, 2, y);
    expectCells(x, {4, missing, 3});
    expectCells(y, {9, 9, 6});
    korvel::swapVectors(x, 3, x);
    expectCells(x, {4, missing, 3}, "with itself");
}
