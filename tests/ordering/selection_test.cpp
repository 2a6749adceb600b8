#include "ordering/selection.h"

#include "ordering/sort_vector.h"
#include "support/bits.h"
#include "support/random_cells.h"

#include <gtest/gtest.h>
#include <limits>
#include <random>
#include <vector>

using namespace korvel::test;

TEST(RankedValues, SelectWhatASortWouldPutThere)
{
    std::mt19937_64 random(21);
    const double few[] = {0.0, -0.0, 1.0, -1.0, MISSING_DBL, 2.5, std::numeric_limits<double>::infinity()};
    for (const int n : {1, 2, 63, 64, 65, 66, 1000}) {
        for (int trial = 0; trial < 20; ++trial) {
            std::vector<double> values(static_cast<std::size_t>(n));
            for (double& value : values) {
                value = trial % 2 == 0 ? few[random() % std::size(few)]
                                       : static_cast<double>(random() % 100) - 50.0;
            }
            matrix<double> sorted = vectorOf<double>(values);
            SortQVector(&sorted, n, 1, n, false);
            korvel::ranked_values ranked(values);
            for (int question = 0; question < 20; ++question) {
                const auto k = static_cast<std::int64_t>(random() % static_cast<std::uint64_t>(n));
                ASSERT_SAME_BITS(ranked[k], sorted[k]) << "rank " << k << " of " << n;
            }
        }
    }
}

TEST(RankedValues, WithANaNAreThoseOfTheSort)
{
    std::vector<double> values(200, 1.0);
    for (std::size_t k = 0; k < values.size(); ++k) {
        values[k] = static_cast<double>((k * 7) % 11);
    }
    values[50] = std::numeric_limits<double>::quiet_NaN();
    matrix<double> sorted = vectorOf<double>(values);
    SortQVector(&sorted, 200, 1, 200, false);
    korvel::ranked_values ranked(values);
    for (int k = 0; k < 200; ++k) {
        ASSERT_SAME_BITS(ranked[k], sorted[k]);
    }
}
