// Regressions and their relatives, and products with a structure, with each allocation failing in turn.
// Results that a flat function makes first and copies then are all there or as they were.
#include "faults/each_allocation.h"
#include "korvelmathtools/KORVELMathTools.h"
#include "linalg/products_block.h"
#include "support/caller_tables.h"

#include <new>
#include <string>
#include <utility>
#include <vector>

using namespace korvel::test;

namespace
{

constexpr double gone = KORVEL_MISSING_DBL;

/** Arrays for every function below, none of which reaches their ends. */
struct arrays {
    std::vector<double> x{1, 2, 4, 7, 3, 5, 2, 1, 6, 4, 9, 8, 2, 5, 3, 1, 4, 8};
    std::vector<double> y{3, 1, 4, 1, 5, 9};
    std::vector<double> w = std::vector<double>(6, 1.0);
    std::vector<double> gaps{1, gone, 4, 7, 3, 5, 2, 1, 6, 4, gone, 8, 2, 5, 3, 1, 4, 8};
    std::vector<double> positive{4, 1, 0, 1, 3, 1, 0, 1, 5};
    std::vector<double> out1 = std::vector<double>(40, 7.0);
    std::vector<double> out2 = std::vector<double>(40, 7.0);
    std::vector<double> out3 = std::vector<double>(40, 7.0);
    std::vector<double> out4 = std::vector<double>(40, 7.0);
    std::vector<double> out5 = std::vector<double>(40, 7.0);
    std::vector<int> free = std::vector<int>(3, 0);
    std::vector<int> positions{2, 1, 3};
    std::vector<int> marks = std::vector<int>(9, 7);
    int cols = 3;
    int status = 7;

    [[nodiscard]] bool sameAs(const arrays& other) const
    {
        return x == other.x && gaps == other.gaps && positive == other.positive && y == other.y &&
               out1 == other.out1 && out2 == other.out2 && out3 == other.out3 && out4 == other.out4 &&
               out5 == other.out5 && marks == other.marks && cols == other.cols && status == other.status;
    }
};

struct flat_function {
    const char* name;
    void (*call)(arrays& a);
};

// Those that leave everything as it was when they fail.
const flat_function allOrNothing[] = {
    {"RunOLSBasic",
     [](arrays& a) {
         RunOLSBasic(6, 3, a.x.data(), a.y.data(), a.w.data(), 1, 0, 0, 1e-12, a.out1.data(), a.out2.data());
     }},
    {"RunOLSBasic2",
     [](arrays& a) {
         RunOLSBasic2(6, 2, a.x.data(), a.y.data(), a.w.data(), 1, -1, 0, 1e-12, a.out1.data(), a.out2.data(),
                      a.out3.data());
     }},
    {"RunOLSBasic3",
     [](arrays& a) {
         RunOLSBasic3(6, 2, a.x.data(), a.y.data(), a.w.data(), 2, -1, -1, 1e-12, a.out1.data(),
                      a.out2.data(), a.out3.data(), a.out4.data(), a.out5.data(), a.out5.data() + 20);
     }},
    {"RunOLSBasic2Lg",
     [](arrays& a) {
         RunOLSBasic2Lg(6, 1, a.x.data(), 0, nullptr, 1, a.x.data() + 6, 0, nullptr, 1, a.x.data() + 12,
                        a.y.data(), a.w.data(), 1, 0, 0, 1e-12, a.out1.data(), a.out2.data(), a.out3.data());
     }},
    {"NewtonRaphson",
     [](arrays& a) {
         a.status = NewtonRaphson(a.out1.data(), 3, a.free.data(), a.y.data(), a.positive.data(), 1e-6,
                                  a.out2.data(), a.out3.data(), -1, 1.0);
     }},
    {"Cpp_NIPALS",
     [](arrays& a) { a.status = Cpp_NIPALS(6, 3, a.gaps.data(), a.w.data(), 1e-6, 2, 1.0, 1.0); }},
    {"VB_BiplotTransData",
     [](arrays& a) {
         VB_BiplotTransData(a.x.data(), a.x.data() + 6, a.gaps.data(), 3, 1, 2, 2, a.w.data(), 2.0, 0.5,
                            a.out1.data(), a.out2.data());
     }},
    {"ComputeCosines", [](arrays& a) { ComputeCosines(a.x.data(), 6, 3, a.out1.data()); }},
    {"VB_M_ProductDesignAB2",
     [](arrays& a) {
         VB_M_ProductDesignAB2(a.out1.data(), 3, &a.cols, a.x.data(), 2, 6, a.w.data(), a.out2.data());
     }},
    {"VB_M_ProductDesignAB2, lying over",
     [](arrays& a) {
         VB_M_ProductDesignAB2(a.out1.data(), 3, &a.cols, a.out1.data() + 2, 2, 6, a.w.data(), a.out2.data());
     }},
    {"VB_M_ProductHorizAB, lying over",
     [](arrays& a) { VB_M_ProductHorizAB(a.x.data(), 2, 2, a.x.data() + 1, 2, a.x.data(), 0); }},
    {"VB_M_ProductHorizAB2",
     [](arrays& a) { VB_M_ProductHorizAB2(a.out1.data(), 3, &a.cols, a.x.data(), 2); }},
    {"VB_V_ProductHorizV1V2, lying over",
     [](arrays& a) { VB_V_ProductHorizV1V2(a.x.data() + 1, 3, a.x.data() + 2, 3, a.x.data()); }},
    {"VB_V_ProductHorizV1V22", [](arrays& a) { VB_V_ProductHorizV1V22(a.x.data(), &a.cols, a.y.data(), 4); }},
    {"VB_M_ProductASymV, lying over",
     [](arrays& a) { VB_M_ProductASymV(a.x.data(), 3, a.x.data() + 6, a.x.data() + 4); }},
    {"Cpp_MV_ProductAsymBsym",
     [](arrays& a) { Cpp_MV_ProductAsymBsym(a.x.data(), 6, a.y.data(), a.out1.data()); }},
    {"Cpp_KroneckerTensorProduct, lying over",
     [](arrays& a) { Cpp_KroneckerTensorProduct(a.x.data(), 2, 2, a.x.data() + 3, 2, 2, a.x.data()); }},
    {"Cpp_M_CorrMatFromSymMat", [](arrays& a) { a.status = Cpp_M_CorrMatFromSymMat(a.positive.data(), 3); }},
    {"Cpp_M_CovMatFromSymMat", [](arrays& a) { a.status = Cpp_M_CovMatFromSymMat(a.positive.data(), 3); }},
};

} // namespace

class FlatFaults : public ::testing::TestWithParam<flat_function>
{
};

TEST_P(FlatFaults, LeaveWhatThereWas)
{
    const arrays before;
    arrays expected;
    GetParam().call(expected);
    arrays a;
    const int needed = failEachAllocation([&] {
        EXPECT_TRUE(a.sameAs(before));
        GetParam().call(a);
    });
    EXPECT_GT(needed, 0);
    EXPECT_TRUE(a.sameAs(expected));
}

INSTANTIATE_TEST_SUITE_P(Numbers, FlatFaults, ::testing::ValuesIn(allOrNothing),
                         [](const auto& run) { return "f" + std::to_string(run.index); });

TEST(ChunkFaults, LeaveWhatThereWas)
{
    const caller_columns::columns indefinite{{1, 1, 0}, {1, 1, 1}, {0, 1, 1}};
    caller_columns columns(indefinite);
    caller_columns triangle({{1, 1, 0}, {1, 1}, {1}});
    failEachAllocation([&] { Cpp_M_CorrMatFromSymMatSPV(columns.argument(), 3); });
    EXPECT_NE(columns.values(), indefinite);
    failEachAllocation([&] { Cpp_M_CorrMatFromSymMatSPV_T(triangle.argument(), 3); });
    EXPECT_EQ(triangle.values()[0], columns.values()[0]);
    arrays a;
    failEachAllocation([&] {
        VB_BiplotTransDataSPV(columns.argument(), a.x.data(), columns.argument(), 3, 1, 3, 2, a.w.data(), 2.0,
                              0.5, a.out1.data(), a.out2.data());
    });
    EXPECT_NE(a.out1[0], 7.0);
}

TEST(ScreeningFaults, LeaveNothingBehind)
{
    std::vector<double> r{1, 0.5, 0.25, 0.5, 1, 0.5, 0.25, 0.5, 1};
    std::vector<double> groups{1, 1, 1};
    arrays a;
    failEachAllocation([&] {
        VB_CheckTolerance(r.data(), 3, 1, groups.data(), groups.data(), 1e-4, -1, 0, 0, 0, a.out1.data(),
                          a.out2.data(), a.out3.data());
    });
    EXPECT_EQ(a.out1[2], -1.0);
}

TEST(BlockProductFaults, LeaveNothingBehind)
{
    matrix3D<matrix<double>> blocks;
    matrix3D<matrixSparse> sparse;
    matrix<int> sizes(3, 1);
    for (int b = 0; b < 3; ++b) {
        sizes[b] = b == 2 ? 20 : 3;
        matrix<double> block(sizes[b], sizes[b], 1.0);
        blocks.chunks.push_back(block);
        sparse.chunks.emplace_back(&block);
    }
    matrix<double> A(26, 26, 2.0);
    matrixSparse entries(&A);
    matrix<double> C(26, 26, 0.0);
    failEachAllocation([&] { M_BlockProductBckA(&blocks, 3, &sizes, &A, 26, &C); });
    EXPECT_EQ(C.getElement(25, 25), 40.0);
    failEachAllocation([&] { M_BlockProductABck(&A, 26, &blocks, 3, &sizes, &C); });
    failEachAllocation([&] { M_BlockProductATrBck(&A, 26, &blocks, 3, &sizes, &C); });
    failEachAllocation([&] { M_BlockProductBckVect(&blocks, 3, &sizes, &A, &C); });
    using product = void (*)(matrix3D<matrixSparse>&, matrix<int>&, matrixSparse&, matrixSparse&);
    const product products[]{
        [](auto& b, auto& s, auto& x, auto& y) { M_BlockProductBckA(&b, 3, &s, &x, 26, &y); },
        [](auto& b, auto& s, auto& x, auto& y) { M_BlockProductABck(&x, 26, &b, 3, &s, &y); },
        [](auto& b, auto& s, auto& x, auto& y) { M_BlockProductATrBck(&x, 26, &b, 3, &s, &y); }};
    for (const product multiply : products) {
        failEachAllocation([&] {
            matrixSparse result;
            multiply(sparse, sizes, entries, result);
            EXPECT_EQ(result.getElement(25, 25), 40.0);
        });
    }
}

TEST(RedimFaults, LeaveNoTableWithoutCells)
{
    // A table that could not be given its cells has none, so that nobody reads them.
    failEachAllocation([&] {
        matrix<double> made(1, 1, 7.0);
        try {
            made.Redim(3, 3);
        } catch (const std::bad_alloc&) {
            EXPECT_EQ(made.nbElem, 0U);
            EXPECT_EQ(std::as_const(made)[0], -1.0);
            throw;
        }
    });
}
