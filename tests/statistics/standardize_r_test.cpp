// Against R 4.2.2. The table is x <- as.matrix(mtcars[1:6, c("mpg", "disp", "wt")]), the weights are
// w <- c(1, 2, 3, 1, 2, 1); figures are printed with "%.17g". The bound is what was measured, rounded up.
#include "statistics/centering.h"
#include "statistics/normalize.h"
#include "statistics/rescale.h"
#include "statistics/standardize.h"
#include "support/column_tables.h"
#include "support/random_cells.h"

#include <gtest/gtest.h>
#include <vector>

using namespace korvel::test;
using doubles = std::vector<double>;

namespace
{

const doubles cells{21,  21,  22.8, 21.4, 18.7,  18.1, 160,   160,  108,
                    258, 360, 225,  2.62, 2.875, 2.32, 3.215, 3.44, 3.46};
const doubles weights{1, 2, 3, 1, 2, 1};

matrix<double> cars()
{
    return columnTable(6, cells);
}

void expectNear(const doubles& actual, const doubles& expected)
{
    ASSERT_EQ(actual.size(), expected.size());
    for (std::size_t k = 0; k < actual.size(); ++k) {
        EXPECT_NEAR(actual[k], expected[k], 3.5e-15 * std::max(1.0, std::abs(expected[k]))) << k;
    }
}

// scale(x)
const doubles scaled{0.28306925853614895,  0.28306925853614895,  1.3021185892662854,   0.50952466536506724,
                     -1.0190493307301365,  -1.3587324409735142,  -0.57654670029669308, -0.57654670029669308,
                     -1.154947248504308,   0.51351587132535026,  1.6480707928095177,   0.14645398496282544,
                     -0.79509572574167808, -0.24464483868974712, -1.4426850046263038,  0.48928967737949425,
                     0.97498163654296321,  1.0181542551352716};
// attr(scale(x), "scaled:center") and attr(scale(x), "scaled:scale")
const doubles centre{20.5, 211.83333333333334, 2.9883333333333333};
const doubles deviation{1.7663521732655694, 89.903095979319133, 0.4632565883683325};
// f <- x[rep(1:6, w), ]; scale(x, colMeans(f), apply(f, 2, sd))
const doubles repeated{0.095396285822868035, 0.095396285822868035,  1.1054746063002845,
                       0.31985813481784858,  -1.1952593458982752,   -1.5319521193907462,
                       -0.41787607594450521, -0.41787607594450521,  -0.95177179950996649,
                       0.58831201846732573,  1.6355690146918844,    0.24949357851232146,
                       -0.55803741820243191, -0.028057747283921304, -1.1815429134006805,
                       0.67858181394075956,  1.1462109353394458,    1.1877779683526624};
// c <- cov.wt(x, wt = w / sum(w), method = "ML"); scale(x, c$center, sqrt(diag(c$cov)))
const doubles likelihood{0.10055651450689559,  0.10055651450689559,   1.1652725504622727,
                         0.33716007805253401,  -1.2599139758805307,   -1.6148193211989883,
                         -0.44048005989271127, -0.44048005989271127,  -1.0032555663895415,
                         0.62013531773593045,  1.7240411189412512,    0.26298932322832658,
                         -0.58822308703986326, -0.029575462476864784, -1.2454555865257446,
                         0.7152880369404665,   1.2082124115548774,    1.2520279115206028};

} // namespace

TEST(StandardizeBesideR, Scale)
{
    auto x = cars();
    matrix<double> out;
    matrix<double> means;
    matrix<double> sds;
    M_Standardize(&x, 6, 3, &out, &means, &sds, nullptr, nullptr, nullptr, -1, -1);
    expectNear(cellsOf(out), scaled);
    expectNear(cellsOf(means), centre);
    expectNear(cellsOf(sds), deviation);
    M_Standardize2(&x, 6, 3, -1);
    expectNear(cellsOf(x), scaled);
}

TEST(StandardizeBesideR, WeightsAsRepetitions)
{
    auto x = cars();
    auto w = vectorOf<double>(weights);
    matrix<double> out;
    M_Standardize(&x, 6, 3, &out, nullptr, nullptr, nullptr, nullptr, &w, -1, -1);
    expectNear(cellsOf(out), repeated);
    M_StandardizeW(&x, 6, 3, &w, -1, -1, &out);
    expectNear(cellsOf(out), repeated);
}

TEST(StandardizeBesideR, WeightsOfTheLikelihood)
{
    auto x = cars();
    auto w = vectorOf<double>(weights);
    matrix<double> out;
    M_Standardize(&x, 6, 3, &out, nullptr, nullptr, nullptr, nullptr, &w, 0, 0);
    expectNear(cellsOf(out), likelihood);
    matrix<double>* table = &x;
    M_StandardizeW2(table, 6, 3, &w, 0, 0);
    expectNear(cellsOf(x), likelihood);
}

TEST(StandardizeBesideR, Reduce)
{
    // scale(x, FALSE, apply(x, 2, sd))
    const doubles reduced{11.888908858518256, 11.888908858518256, 12.907958189248394, 12.115364265347175,
                          10.586790269251971, 10.247107159008594, 1.779693994484969,  1.779693994484969,
                          1.2012934462773541, 2.8697565661070126, 4.0043114875911803, 2.5026946797444878,
                          5.6556130355923919, 6.206063922644323,  5.0080237567077663, 6.9399984387135643,
                          7.425690397877033,  7.4688630164693413};
    auto x = cars();
    matrix<double>* table = &x;
    M_Reduce2(table, 6, 3, -1);
    expectNear(cellsOf(x), reduced);
}

TEST(StandardizeBesideR, Normalize)
{
    // apply(x, 2, function(v) v / sqrt(sum(v^2)) * sqrt(6 / 5))
    const doubles normalized{0.45671063538051104, 0.45671063538051104, 0.49585726127026913,
                             0.46540988557823498, 0.40668994674359787, 0.39364107144701194,
                             0.31497273366151157, 0.31497273366151157, 0.21260659522152031,
                             0.50789353302918749, 0.70868865073840115, 0.44293040671150069,
                             0.3882232438575357,  0.42600833056886073, 0.34377020066774144,
                             0.47638844618396076, 0.5097282285763064,  0.51269176478895928};
    auto x = cars();
    matrix<double>* table = &x;
    M_Normalize(table, 6, 3, nullptr, nullptr);
    expectNear(cellsOf(x), normalized);
}

TEST(StandardizeBesideR, RobustScores)
{
    // 0.6745 * (x[, 2] - median(x[, 2])) / mad(x[, 2], constant = 1)
    const doubles robust{-0.44737244897959183, -0.44737244897959183, -1.1631683673469388,
                         0.90162755102040815,  2.305688775510204,    0.44737244897959183};
    auto x = vectorOf<double>({cells.begin() + 6, cells.begin() + 12});
    double centreOfNone = 0.0;
    double scaleOfNone = 0.0;
    V_ZScores(&x, 6, -1, centreOfNone, scaleOfNone, &x);
    expectNear(cellsOf(x), robust);
}
