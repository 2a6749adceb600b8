#include "missing/pairwise_deletion.h"

#include "support/bits.h"
#include "support/random_cells.h"

#include <algorithm>
#include <vector>

using namespace korvel::test;

namespace
{

constexpr double missing = MISSING_DBL;
using numbers = std::vector<double>;

numbers cellsOf(const matrix<double>& x)
{
    return {x.data, x.data + x.nbElem};
}

} // namespace

TEST(PairwiseDeletion, KeepsWhatIsObservedInBothSeries)
{
    const auto x = vectorOf<double>({1, missing, 3, 4, notANumber, 6});
    const auto y = vectorOf<double>({10, 20, missing, 40, 50, belowSentinel});
    const auto z = vectorOf<double>({100, 200, 300, missing, 500, 600});
    matrix<double> a(4, 1, 7.0);
    matrix<double> b(4, 1, 8.0);
    matrix<double> c(4, 1, 9.0);
    EXPECT_EQ(V_PairwiseDeletion(x, y, z, 6, a, b, c), 2);
    EXPECT_EQ(cellsOf(a), (numbers{7, 1, 4, 7})) << "the first place is spare";
    EXPECT_EQ(cellsOf(b), (numbers{8, 10, 40, 8}));
    EXPECT_EQ(cellsOf(c), (numbers{9, 100, missing, 9})) << "the third series is not tested";
    EXPECT_EQ(V_PairwiseDeletion(x, y, z, 1, a, b, c), 1);
}

TEST(PairwiseDeletion, OfNoPairWritesNothing)
{
    const auto x = vectorOf<double>({1, missing});
    const auto y = vectorOf<double>({missing, 2});
    matrix<double> out(3, 1, 7.0);
    EXPECT_EQ(V_PairwiseDeletion(x, y, x, 2, out, out, out), 0);
    EXPECT_EQ(V_PairwiseDeletion(x, y, x, 0, out, out, out), 0);
    EXPECT_EQ(V_PairwiseDeletion(x, y, x, -1, out, out, out), 0);
    EXPECT_EQ(cellsOf(out), (numbers{7, 7, 7}));
    EXPECT_EQ(out.oobValue, -1);
}

TEST(PairwiseDeletion, StoresOutsideInTheSpareSlot)
{
    const auto x = vectorOf<double>({1, 2});
    matrix<double> out(2, 1, 7.0);
    matrix<double> other(3, 1, 7.0);
    EXPECT_EQ(V_PairwiseDeletion(x, x, x, 2, out, other, other), 2);
    EXPECT_EQ(cellsOf(out), (numbers{7, 1}));
    EXPECT_EQ(out.oobValue, 2);
}

TEST(PairwiseDeletion, EqualsThePlainLoop)
{
    forRandomVectors([](random_cells& cells, int n, int held) {
        const auto x = cells.values(held);
        const auto y = cells.values(n);
        const auto z = cells.values(n);
        numbers a{7};
        numbers b{7};
        numbers c{7};
        for (int i = 0; i < n; ++i) {
            if (x[i] > missing && y[i] > missing) {
                a.push_back(x[i]);
                b.push_back(y[i]);
                c.push_back(z[i]);
            }
        }
        matrix<double> xOut(n + 1, 1, 7.0);
        matrix<double> yOut(n + 1, 1, 7.0);
        matrix<double> zOut(n + 1, 1, 7.0);
        const int kept = V_PairwiseDeletion(x, y, z, n, xOut, yOut, zOut);
        EXPECT_EQ(kept + 1, static_cast<int>(a.size()));
        a.resize(xOut.nbElem, 7);
        b.resize(xOut.nbElem, 7);
        c.resize(xOut.nbElem, 7);
        for (std::size_t k = 0; k < a.size(); ++k) {
            EXPECT_TRUE(sameBits(xOut.data[k], a[k]));
            EXPECT_TRUE(sameBits(yOut.data[k], b[k]));
            EXPECT_TRUE(sameBits(zOut.data[k], c[k]));
        }
    });
}
