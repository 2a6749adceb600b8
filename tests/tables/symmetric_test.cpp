#include "tables/symmetric.h"

#include "reference/table_maps.h"
#include "tables/map_twins.h"

#include <gtest/gtest.h>

using namespace korvel::test;
namespace plain = korvel::reference;

TEST(Symmetric, OfPackedTrianglesAreThePlainLoops)
{
    forRandomTables([](random_tables given) {
        const int n = given.cols;
        table x = given.made(n, n);
        table v = given.made(n * (n + 1) / 2, 1);
        expectAlike(
            given.made(n * (n + 1) / 2, 1), [&](table& out) { M_CopySymMatToVector(&x, n, &out); },
            [&](table& out) { plain::pack(x, n, out); });
        expectAlike(
            given.made(n, n), [&](table& out) { M_CopyVectorToSymMat(&v, n, &out); },
            [&](table& out) { plain::unpack(v, n, out); });
    });
}

TEST(Symmetric, MirroringIsThePlainLoop)
{
    forRandomTables([](random_tables given) {
        const int n = given.cols;
        expectAlike(
            given.made(n, n),
            [n](table& x) {
                table* changed = &x;
                M_Symmetrize(changed, n, n);
            },
            [n](table& x) { plain::symmetrize(x, n); });
    });
}

TEST(Symmetric, SymmetryIsToldAsByThePlainLoop)
{
    forRandomTables([](random_tables given) {
        const int n = given.cols;
        forTwoHalves(given, [n](table& x) {
            EXPECT_EQ(M_IsSymmetric(&x, n), plain::isSymmetric(x, n) ? -1 : 0);
            EXPECT_EQ(M_IsDiagConstant(&x, n), plain::hasConstantDiagonal(x, n) ? -1 : 0);
        });
    });
}
