#include "statistics/vector_frequencies.h"

#include "reference/vector_sums.h"
#include "support/bits.h"
#include "support/random_cells.h"
#include "support/special_values.h"

#include <algorithm>
#include <string>
#include <vector>

using namespace korvel::test;
namespace reference = korvel::reference;

namespace
{

matrix<text> labelsOf(const std::vector<text>& texts)
{
    matrix<text> made(static_cast<int>(texts.size()), 1, text{});
    std::copy(texts.begin(), texts.end(), made.data);
    return made;
}

} // namespace

TEST(VectorFrequencies, CountsWhatIsNearerThanTheTolerance)
{
    auto x = vectorOf<double>({1, 1.5, 2, 0.5, 1.25, -1});
    auto w = vectorOf<double>({1, 2, 4, 8, 16, 32});
    EXPECT_SAME_BITS(V_Freq(&x, 6, &w, 1.0, 0.5), 17.0) << "a distance of 0.5 is not less than 0.5";
    EXPECT_SAME_BITS(V_Freq(&x, 6, &w, 1.0, 0.51), 27.0);
    EXPECT_SAME_BITS(V_Freq(&x, 6, &w, 9.0, 0.5), 0.0);
}

TEST(VectorFrequencies, AToleranceOfZeroCountsNothing)
{
    auto x = vectorOf<double>({1, 1});
    auto counts = vectorOf<int>({1, 1});
    auto w = vectorOf<double>({1, 1});
    EXPECT_SAME_BITS(V_Freq(&x, 2, &w, 1.0, 0.0), 0.0);
    EXPECT_SAME_BITS(V_Freq(&counts, 2, &w, 1.0, 0.0), 0.0);
    EXPECT_SAME_BITS(V_Freq(&x, 2, &w, 1.0, -1.0), 0.0);
}

TEST(VectorFrequencies, MissingElementsAndWeightsAreNumbers)
{
    auto x = vectorOf<double>({MISSING_DBL, 1, notANumber, MISSING_DBL});
    auto w = vectorOf<double>({1, 2, 4, 8});
    EXPECT_SAME_BITS(V_Freq(&x, 4, &w, MISSING_DBL, 0.5), 9.0);
    EXPECT_SAME_BITS(V_Freq(&x, 4, &w, 1.0, infinite), 11.0) << "all but the NaN";
    w.data[1] = MISSING_DBL;
    EXPECT_SAME_BITS(V_Freq(&x, 4, &w, 1.0, 0.5), MISSING_DBL);
    w.data[0] = notANumber;
    EXPECT_SAME_BITS(V_Freq(&x, 4, &w, 1.0, 0.5), MISSING_DBL) << "the weight of an element far away";
}

TEST(VectorFrequencies, IntegersAreComparedAsNumbers)
{
    auto x = vectorOf<int>({2147483647, MISSING_LNG, 3, 4, 5});
    auto w = vectorOf<double>({1, 2, 4, 8, 16});
    EXPECT_SAME_BITS(V_Freq(&x, 5, &w, 4.0, 1.0), 8.0);
    EXPECT_SAME_BITS(V_Freq(&x, 5, &w, 4.25, 1.5), 28.0);
    EXPECT_SAME_BITS(V_Freq(&x, 5, &w, -2147483648.0, 0.5), 2.0) << "no difference wraps around";
    EXPECT_SAME_BITS(V_Freq(&x, 5, &w, 2147483647.0, 0.5), 1.0);
}

TEST(VectorFrequencies, EmptyAndShortVectors)
{
    matrix<double> none;
    matrix<int> noCounts;
    matrix<text> noTexts;
    for (const int n : {0, -1}) {
        EXPECT_SAME_BITS(V_Freq(&none, n, &none, 0.0, 1.0), 0.0);
        EXPECT_SAME_BITS(V_Freq(&noCounts, n, &none, 0.0, 1.0), 0.0);
        EXPECT_SAME_BITS(V_FreqStr(&noTexts, n, &none, text{}), 0.0);
    }
    auto w = vectorOf<double>({1, 2, 4});
    auto x = vectorOf<double>({-1});
    EXPECT_SAME_BITS(V_Freq(&x, 3, &w, -1.0, 0.5), 7.0) << "the spare slot holds -1";
    auto labels = labelsOf({u"a"});
    EXPECT_SAME_BITS(V_FreqStr(&labels, 3, &w, u""), 6.0) << "the spare slot is empty";
}

TEST(VectorFrequencies, TextsMustBeEqual)
{
    auto labels = labelsOf({u"ab", u"a", u"ab ", u"AB", u"", u"ab", u"\u00e9", u"e\u0301"});
    auto w = vectorOf<double>({1, 2, 4, 8, 16, 32, 64, 128});
    EXPECT_SAME_BITS(V_FreqStr(&labels, 8, &w, u"ab"), 33.0);
    EXPECT_SAME_BITS(V_FreqStr(&labels, 5, &w, u"ab"), 1.0);
    EXPECT_SAME_BITS(V_FreqStr(&labels, 8, &w, u""), 16.0) << "an empty text is compared like any other";
    EXPECT_SAME_BITS(V_FreqStr(&labels, 8, &w, u"\u00e9"), 64.0);
    EXPECT_SAME_BITS(V_FreqStr(&labels, 8, &w, u"b"), 0.0);
    labels.data[1] = text(u"ab\0c", 4);
    EXPECT_SAME_BITS(V_FreqStr(&labels, 8, &w, text(u"ab\0c", 4)), 2.0);
    w.data[0] = notANumber;
    EXPECT_SAME_BITS(V_FreqStr(&labels, 8, &w, u"a"), 0.0);
}

TEST(VectorFrequencies, EqualToThePlainLoops)
{
    forRandomVectors([](random_cells& cells, int n, int held) {
        auto x = cells.values(held);
        auto counts = cells.integers(held, -3, 3);
        auto w = cells.weights(n);
        for (const double value : {0.0, 1.5, MISSING_DBL, cells.value()}) {
            for (const double tol : {0.0, 1.0, 300.0, infinite, notANumber}) {
                ASSERT_SAME_BITS(V_Freq(&x, n, &w, value, tol), reference::frequency(x, n, w, value, tol));
                ASSERT_SAME_BITS(V_Freq(&counts, n, &w, value, tol),
                                 reference::frequency(counts, n, w, value, tol));
            }
        }
    });
}
