#include "statistics/vector_means.h"
#include "statistics/vector_variance.h"
#include "support/nist.h"
#include "support/random_cells.h"

#include <cmath>
#include <gtest/gtest.h>
#include <string>
#include <vector>

using namespace korvel::test;

namespace
{

class CertifiedSummaries : public testing::TestWithParam<measured_digits>
{
protected:
    univariate_set set = readUnivariateSet(GetParam().set);
    int n = static_cast<int>(set.cells.size());
    matrix<double> x = vectorOf<double>(set.cells);
    matrix<double> w = matrix<double>(n, 1, 1.0);
    std::vector<short int> flags = std::vector<short int>(set.cells.size());
    double mean = 0.0;
    double size = 0.0;

    void expectByUpdates(double deviation) const
    {
        EXPECT_GE(correctDigits(mean, set.mean), GetParam().meanByUpdates);
        EXPECT_GE(correctDigits(deviation, set.deviation), GetParam().deviation);
    }
};

} // namespace

TEST_P(CertifiedSummaries, Mean)
{
    EXPECT_GE(correctDigits(V_Mean(&x, n, flags.data(), &w), set.mean), GetParam().meanBySum);
    EXPECT_GE(correctDigits(V_Mean2(x, n), set.mean), GetParam().meanBySum);
}

TEST_P(CertifiedSummaries, MeanAndVariance)
{
    V_MeanVar(&x, n, &mean, &size, flags.data(), &w, -1, 0);
    expectByUpdates(std::sqrt(size));
    V_MeanVarW2(&x, n, &w, &mean, &size, -1, -1);
    expectByUpdates(std::sqrt(size));
}

TEST_P(CertifiedSummaries, MeanAndDeviation)
{
    V_MeanStdev(&x, n, &mean, &size, flags.data(), &w, -1, -1);
    expectByUpdates(size);
    V_MeanStdev2(&x, n, -1, mean, size);
    expectByUpdates(size);
}

TEST_P(CertifiedSummaries, Deviation)
{
    EXPECT_GE(correctDigits(V_Stdev(&x, n, flags.data(), &w, -1, 0), set.deviation), GetParam().deviation);
    EXPECT_GE(correctDigits(std::sqrt(V_Var2(&x, n, -1, 0)), set.deviation), GetParam().deviation);
}

INSTANTIATE_TEST_SUITE_P(Nist, CertifiedSummaries, testing::ValuesIn(univariateSets),
                         [](const auto& row) { return std::string(row.param.set); });
