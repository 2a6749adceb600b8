#include "linalg/products_symmetric.h"

#include "linalg/product_members.h"
#include "reference/products.h"
#include "support/sparse_tables.h"

using namespace korvel::test;

namespace
{

std::vector<product_member> members()
{
    const auto plainSelf = [](auto twin) {
        return [twin](operands& t, counts c, table& C) { twin(t[0], c.n, c.p, C); };
    };
    const auto plainWith = [](auto twin) {
        return [twin](operands& t, counts c, table& C) { twin(t[0], c.n, c.p, t[1], C); };
    };
    const auto withVectorOfN = [](counts c) { return shapes{{c.n, c.p}, {c.n, 1}}; };
    const auto withVectorOfP = [](counts c) { return shapes{{c.n, c.p}, {c.p, 1}}; };
    return {{"TrAA", tableNP, resultPP,
             [](operands& t, counts c, table& C) { M_ProductTrAA(&t[0], c.n, c.p, &C); },
             plainSelf(plainTrAA), false, false},
            {"ATrA", tableNP, resultNN,
             [](operands& t, counts c, table& C) { M_ProductATrA(&t[0], c.n, c.p, &C); },
             plainSelf(plainATrA), false, false},
            {"ADTrA", tablesNPAndPP, resultNN,
             [](operands& t, counts c, table& C) { M_ProductADTrA(&t[0], c.n, c.p, &t[1], &C); },
             plainWith(plainADTrA), false, false},
            {"TrADA", tablesNPAndNN, resultPP,
             [](operands& t, counts c, table& C) { M_ProductTrADA(&t[0], c.n, c.p, &t[1], &C); },
             plainWith(plainTrADA), false, false},
            {"TrADiagVA", withVectorOfN, resultPP,
             [](operands& t, counts c, table& C) { M_ProductTrADiagVA(&t[0], c.n, c.p, &t[1], &C); },
             plainWith(plainTrADiagVA), false, false},
            {"ADiagVTrA", withVectorOfP, resultNN,
             [](operands& t, counts c, table& C) { M_ProductADiagVTrA(&t[0], c.n, c.p, &t[1], &C); },
             plainWith(plainADiagVTrA), false, false}};
}

} // namespace

INSTANTIATE_TEST_SUITE_P(Symmetric, ProductMember, ::testing::ValuesIn(members()), nameOf);
INSTANTIATE_TEST_SUITE_P(Symmetric, DenseProductMember, ::testing::ValuesIn(members()), nameOf);

TEST(SymmetricProducts, TermsRunFromLeftToRight)
{
    // 1e-200 * 1e200 * 1e-200 is 1e-200; the outer two first would give 0.
    matrix<double> small = tableOf({{1e-200}});
    matrix<double> big = tableOf({{1e200}});
    for (const auto member : {M_ProductADTrA, M_ProductTrADA, M_ProductADiagVTrA, M_ProductTrADiagVA}) {
        matrix<double> C(1, 1, 9.0);
        member(&small, 1, 1, &big, &C);
        EXPECT_SAME_BITS(C.data[0], 1e-200 * 1e200 * 1e-200);
        member(&big, 1, 1, &big, &C);
        EXPECT_SAME_BITS(C.data[0], infinite);
    }
}
