#include "fitting/tolerance_screening.h"

#include "reference/least_squares.h"
#include "support/bits.h"
#include "support/near_tables.h"

#include <cmath>
#include <vector>

using namespace korvel::test;
namespace reference = korvel::reference;

namespace
{

constexpr double gone = MISSING_DBL;

/** A screening of `p` variables, the results filled with 7. */
struct small_screening {
    explicit small_screening(std::vector<double> correlations, std::vector<double> groups = {})
        : R(vectorOf<double>(std::move(correlations)))
    {
        p = static_cast<int>(std::lround(std::sqrt(static_cast<double>(R.nbElem))));
        R.nbrows = p;
        R.nbcols = p;
        groups.resize(static_cast<std::size_t>(p), 1.0);
        groupCount = static_cast<int>(*std::max_element(groups.begin(), groups.end()));
        groupNumbers = vectorOf<double>(groups);
        selection = matrix<double>(groupCount, 1, 1.0);
    }

    void run()
    {
        status = matrix<double>(p, 1, 7.0);
        tolerances = matrix<double>(p, 1, 7.0);
        factors = matrix<double>(p, 1, 7.0);
        CheckTolerance(&R, p, groupCount, &selection, &groupNumbers, tolerance, duplicates, entered, reverse,
                       skipGroup, &status, &tolerances, &factors);
    }

    void expect(const std::vector<double>& statuses, const std::vector<double>& shares)
    {
        run();
        for (std::size_t v = 0; v < statuses.size(); ++v) {
            EXPECT_SAME_BITS(status.data[v], statuses[v]) << "status " << v;
            EXPECT_NEAR(tolerances.data[v], shares[v], 1e-14) << "tolerance " << v;
        }
    }

    int p;
    int groupCount;
    matrix<double> R;
    matrix<double> selection;
    matrix<double> groupNumbers;
    double tolerance = 1e-4;
    short int duplicates = 0;
    short int entered = 0;
    short int reverse = 0;
    short int skipGroup = 0;
    matrix<double> status;
    matrix<double> tolerances;
    matrix<double> factors;
};

/** The steps one by one. */
template <class Number>
void plainScreening(const matrix<double>& R, int p, int groupCount, const matrix<Number>& selection,
                    const matrix<Number>& groups, double tolerance, short int duplicates, short int entered,
                    short int reverse, short int skipGroup, matrix<Number>& status,
                    matrix<double>& tolerances, matrix<double>& factors)
{
    const auto r = [&](int i, int j) { return R.getElement(i - 1, j - 1); };
    matrix<double> master((p + 1) * (p + 2) / 2, 1, 0.0);
    for (int i = 1; i <= p; ++i) {
        status[i - 1] = Number{-1};
    }
    for (int i = 1; i <= p; ++i) {
        for (int j = 1; j <= i; ++j) {
            master.data[reference::packedAt(i, j)] = r(i, j);
        }
        if (std::fabs(r(i, i)) < 1e-12) {
            status[i - 1] = Number{50000};
            tolerances[i - 1] = 0.0;
            factors[i - 1] = gone;
            continue;
        }
        for (int j = i + 1; j <= p && duplicates != 0; ++j) {
            if (std::fabs(r(i, j)) > 0.999999999999) {
                status[j - 1] = Number{60000};
                tolerances[j - 1] = 0.0;
                factors[j - 1] = gone;
            }
        }
    }
    for (int g = groupCount; g >= 1; --g) {
        std::vector<int> members;
        for (int v = 1; v <= p; ++v) {
            if (selection[g - 1] == Number{1} && groups[v - 1] == static_cast<Number>(g)) {
                members.push_back(v);
            }
        }
        const int first = members.empty() ? 1 : members.front();
        const int last = members.empty() ? 0 : members.back();
        for (int k = first; k <= last; ++k) {
            const int v = reverse == -1 ? last - (k - first) : k;
            if (status[v - 1] > 0) {
                continue;
            }
            matrix<double> T(master);
            for (int u = 1; u <= p; ++u) {
                T.data[reference::packedAt(p + 1, u)] = r(u, v);
            }
            T.data[reference::packedAt(p + 1, v)] = 1.0;
            T.data[reference::packedAt(p + 1, p + 1)] = 1.0;
            double s = 1.0;
            bool stopped = false;
            for (int u = 1; u <= p && !stopped; ++u) {
                const bool taken = status[u - 1] == Number{50000} || (status[u - 1] > 0 && entered != -1);
                if (u == v || taken || (skipGroup == -1 && groups[u - 1] == groups[v - 1])) {
                    continue;
                }
                if (reference::plainCheckIfIn(T, p, u, tolerance) > tolerance) {
                    plainPackedSweep(T, p + 1, u);
                    s = 1.0 - (1.0 - T.data[reference::packedAt(p + 1, p + 1)]);
                    stopped = tolerance > s;
                } else if (duplicates == -1 && std::fabs(T.data[reference::packedAt(u, u)]) < tolerance) {
                    status[u - 1] = Number{60000};
                }
            }
            tolerances[v - 1] = s;
            factors[v - 1] = s > 0 ? 1.0 / s : gone;
        }
    }
}

/** Correlations with duplicates, constants and near collinearity among them. */
matrix<double> randomCorrelations(random_cells& cells, int p)
{
    matrix<double> R(p, p, 1.0);
    for (int i = 0; i < p; ++i) {
        for (int j = 0; j < i; ++j) {
            const int kind = cells.integer(0, 9);
            const double r = kind == 0   ? 1.0
                             : kind == 1 ? -1.0
                             : kind == 2 ? cells.value()
                                         : cells.integer(-99, 99) / 100.0;
            R.setElement(i, j, r);
            R.setElement(j, i, r);
        }
        if (cells.integer(0, 7) == 0) {
            R.setElement(i, i, 0.0);
        }
    }
    return R;
}

template <class Number>
void compareWithThePlainOne()
{
    for (std::uint64_t seed = 1; seed <= 400; ++seed) {
        SCOPED_TRACE(seed);
        random_cells cells(seed, odd_cells::none);
        const int p = cells.integer(0, 7);
        matrix<double> R = randomCorrelations(cells, p);
        matrix<Number> groups(p, 1, Number{1});
        int count = 1;
        for (int v = 1; v < p; ++v) {
            count += cells.integer(0, 1);
            groups[v] = static_cast<Number>(count);
        }
        matrix<Number> selection(count, 1, Number{1});
        selection[cells.integer(0, count - 1)] = static_cast<Number>(cells.integer(-1, 2));
        const auto flag = [&] { return static_cast<short int>(cells.integer(-1, 1)); };
        const short int flags[] = {flag(), flag(), flag(), flag()};
        const double tolerance = cells.integer(0, 3) / 10.0 + (cells.integer(0, 1) == 0 ? 1e-9 : 0.0);
        matrix<Number> status[2] = {matrix<Number>(p, 1, Number{7}), matrix<Number>(p, 1, Number{7})};
        matrix<double> tolerances[2] = {matrix<double>(p, 1, 7.0), matrix<double>(p, 1, 7.0)};
        matrix<double> factors[2] = {matrix<double>(p, 1, 7.0), matrix<double>(p, 1, 7.0)};
        CheckTolerance(&R, p, count, &selection, &groups, tolerance, flags[0], flags[1], flags[2], flags[3],
                       &status[0], &tolerances[0], &factors[0]);
        plainScreening(R, p, count, selection, groups, tolerance, flags[0], flags[1], flags[2], flags[3],
                       status[1], tolerances[1], factors[1]);
        for (int v = 0; v < p; ++v) {
            EXPECT_EQ(status[0][v], status[1][v]) << v;
            EXPECT_SAME_BITS(tolerances[0][v], tolerances[1][v]) << v;
            EXPECT_SAME_BITS(factors[0][v], factors[1][v]) << v;
        }
        if (testing::Test::HasFailure()) {
            return;
        }
    }
}

} // namespace

TEST(ToleranceScreening, IsThePlainOne)
{
    compareWithThePlainOne<double>();
    compareWithThePlainOne<int>();
}

TEST(ToleranceScreening, AgreesWithR)
{
    // R 4.2.2: cor(mtcars[, c("wt", "hp", "qsec")]), and 1 / diag(solve(...)) of it.
    const double wtHp = 0.6587478873447591;
    const double wtQsec = -0.1747158787134049;
    const double hpQsec = -0.7082233888619534;
    small_screening cars({1, wtHp, wtQsec, wtHp, 1, hpQsec, wtQsec, hpQsec, 1});
    cars.run();
    const double expected[] = {0.395187759118055, 0.2031712699550768, 0.3479708725668256};
    for (int v = 0; v < 3; ++v) {
        EXPECT_NEAR(cars.tolerances[v], expected[v], 1e-13);
        EXPECT_SAME_BITS(cars.factors[v], 1.0 / cars.tolerances[v]);
    }
}

TEST(ToleranceScreening, MarksAConstantVariable)
{
    small_screening constant({1, 0, 0.5, 0, 0, 0, 0.5, 0, 1});
    constant.expect({-1, 50000, -1}, {0.75, 0, 0.75});
    EXPECT_SAME_BITS(constant.factors[1], gone);
    small_screening nearly({9e-13, 0, 0, 1});
    nearly.expect({50000, -1}, {0, 1});
    small_screening limit({1e-12, 0, 0, 1});
    limit.expect({-1, -1}, {1, 1});
}

TEST(ToleranceScreening, MarksALaterDuplicate)
{
    small_screening twins({1, 1, 0.5, 1, 1, 0.5, 0.5, 0.5, 1});
    twins.duplicates = 1;
    twins.expect({-1, 60000, -1}, {0.75, 0, 0.75});
    EXPECT_SAME_BITS(twins.factors[1], gone);
    small_screening opposite({1, -1, -1, 1});
    opposite.duplicates = -1;
    opposite.expect({-1, 60000}, {1, 0});
    small_screening close({1, 0.999999999999, 0.999999999999, 1});
    close.duplicates = 1;
    close.tolerance = 1e-14;
    close.run();
    EXPECT_SAME_BITS(close.status[1], -1.0) << "not above the limit";
}

TEST(ToleranceScreening, LeavesDuplicatesAloneWithoutTheFlag)
{
    small_screening twins({1, 1, 1, 1});
    twins.expect({-1, -1}, {0, 0});
    EXPECT_SAME_BITS(twins.factors[0], gone);
}

TEST(ToleranceScreening, MarksWhatOthersExplainOnlyForAFlagOfMinusOne)
{
    // The third variable is (x1 + x2) / sqrt(2) of two that are independent: its pivot falls to 0.
    const double h = std::sqrt(0.5);
    small_screening sum({1, 0, h, 0, 0, 1, h, 0, h, h, 1, 0, 0, 0, 0, 1});
    sum.reverse = -1;
    sum.duplicates = 1;
    sum.run();
    EXPECT_SAME_BITS(sum.status[2], -1.0);
    sum.duplicates = -1;
    sum.run();
    EXPECT_SAME_BITS(sum.status[2], 60000.0) << "found while the fourth is screened";
    EXPECT_SAME_BITS(sum.tolerances[2], 7.0) << "and not screened any more";
    EXPECT_SAME_BITS(sum.tolerances[0], 1.0) << "nor swept";
    sum.entered = -1;
    sum.run();
    EXPECT_NEAR(sum.tolerances[0], 0.0, 1e-15) << "but for this flag";
}

TEST(ToleranceScreening, WalksAGroupFromEitherEnd)
{
    const double h = std::sqrt(0.5);
    small_screening sum({1, 0, h, 0, 0, 1, h, 0, h, h, 1, 0, 0, 0, 0, 1});
    sum.duplicates = -1;
    sum.run();
    EXPECT_NEAR(sum.tolerances[2], 0.0, 1e-15) << "screened before the fourth";
    EXPECT_SAME_BITS(sum.status[2], 60000.0) << "and marked afterwards";
}

TEST(ToleranceScreening, LeavesAGroupThatIsNotSelected)
{
    small_screening groups({1, 0.5, 0.2, 0.5, 1, 0.1, 0.2, 0.1, 1}, {1, 2, 2});
    for (const double other : {0.0, -1.0, 2.0}) {
        groups.selection[1] = other;
        groups.run();
        EXPECT_SAME_BITS(groups.status[1], -1.0);
        EXPECT_SAME_BITS(groups.tolerances[1], 7.0);
        EXPECT_SAME_BITS(groups.factors[2], 7.0);
        EXPECT_LT(groups.tolerances[0], 0.76) << "its variables are swept all the same";
    }
}

TEST(ToleranceScreening, MaySweepVariablesOfOtherGroupsAlone)
{
    small_screening groups({1, 0.5, 0.2, 0.5, 1, 0.1, 0.2, 0.1, 1}, {1, 1, 2});
    groups.skipGroup = -1;
    groups.expect({-1, -1, -1}, {1 - 0.04, 1 - 0.01, 1 - (0.04 + 0.01 - 2 * 0.2 * 0.1 * 0.5) / 0.75});
    groups.skipGroup = 1;
    groups.run();
    EXPECT_LT(groups.tolerances[1], 0.75 + 1e-12);
}

TEST(ToleranceScreening, IsOneWhereNothingIsSwept)
{
    small_screening alone({1});
    alone.expect({-1}, {1});
    EXPECT_SAME_BITS(alone.factors[0], 1.0);
    small_screening below({1, 0.5, 0.5, 1});
    below.tolerance = 1.0;
    below.expect({-1, -1}, {1, 1});
}

TEST(ToleranceScreening, EndsWhenAVariableIsExplained)
{
    // 0.19 is left after the first other variable; the second would take more.
    small_screening early({1, 0.9, 0.3, 0.9, 1, 0, 0.3, 0, 1});
    early.tolerance = 0.2;
    early.run();
    EXPECT_NEAR(early.tolerances[0], 0.19, 1e-14);
    early.tolerance = 0.18;
    early.run();
    EXPECT_NEAR(early.tolerances[0], 0.10, 1e-14);
}
