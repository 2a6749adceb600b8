#include "tables/proximity.h"

#include "reference/table_maps.h"
#include "tables/map_twins.h"

#include <gtest/gtest.h>

using namespace korvel::test;
namespace plain = korvel::reference;

TEST(Proximity, DissimilaritiesAreThoseOfThePlainLoop)
{
    forRandomTables([](random_tables given) {
        const int n = given.cols;
        expectAlike(
            given.made(n, n),
            [n](table& x) {
                table* changed = &x;
                M_TransformSimToDissim(changed, n);
            },
            [n](table& x) { plain::toDissimilarities(x, n); });
        forTwoHalves(given, [n](table& x) {
            EXPECT_EQ(M_CheckIfSimOrDissim(&x, n, n), plain::kindOfProximity(x, n));
        });
    });
}
