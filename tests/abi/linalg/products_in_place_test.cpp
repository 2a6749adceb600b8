#include "containers/missing.h"
#include "korvelmathtools/KORVELMathTools.h"
#include "support/bits.h"
#include "support/guarded.h"

#include <array>
#include <functional>
#include <string>
#include <vector>

using namespace korvel::test;

namespace
{

constexpr double blank = 0.125;

/** The arrays that a function reads, each with room for a table, and the one that it writes. */
using inputs = std::vector<double*>;

struct flat_member {
    std::string name;
    std::size_t reads;
    std::function<void(const inputs&, int, double*)> call;
};

/** Every function of the family that writes an array of its own, on tables of n by n. */
std::vector<flat_member> members()
{
    return {
        {"ProductAB", 2, [](auto& x, int n, auto y) { VB_M_ProductAB(x[0], n, n, x[1], n, y); }},
        {"ProductABMissing", 2,
         [](auto& x, int n, auto y) { VB_M_ProductABMissing(x[0], n, n, x[1], n, y); }},
        {"ProductTrAB", 2, [](auto& x, int n, auto y) { VB_M_ProductTrAB(x[0], n, n, x[1], n, y); }},
        {"ProductATrB", 2, [](auto& x, int n, auto y) { VB_M_ProductATrB(x[0], n, n, x[1], n, y); }},
        {"ProductTrAA", 1, [](auto& x, int n, auto y) { VB_M_ProductTrAA(x[0], n, n, y); }},
        {"ProductATrA", 1, [](auto& x, int n, auto y) { VB_M_ProductATrA(x[0], n, n, y); }},
        {"ProductADTrA", 2, [](auto& x, int n, auto y) { VB_M_ProductADTrA(x[0], n, n, x[1], y); }},
        {"ProductTrADA", 2, [](auto& x, int n, auto y) { VB_M_ProductTrADA(x[0], n, n, x[1], y); }},
        {"ProductTrADiagVA", 2, [](auto& x, int n, auto y) { VB_M_ProductTrADiagVA(x[0], n, n, x[1], y); }},
        {"ProductADiagVTrA", 2, [](auto& x, int n, auto y) { VB_M_ProductADiagVTrA(x[0], n, n, x[1], y); }},
        {"ProductADiagVB", 3,
         [](auto& x, int n, auto y) { VB_M_ProductADiagVB(x[0], n, n, x[1], x[2], n, y); }},
        {"ProductADiagVTrB", 3,
         [](auto& x, int n, auto y) { VB_M_ProductADiagVTrB(x[0], n, n, x[1], x[2], n, y); }},
        {"ProductADiag", 2, [](auto& x, int n, auto y) { VB_M_ProductADiag(x[0], n, n, x[1], y); }},
        {"ProductTrADiag", 2, [](auto& x, int n, auto y) { VB_M_ProductTrADiag(x[0], n, n, x[1], y); }},
        {"ProductADiagV", 2, [](auto& x, int n, auto y) { VB_M_ProductADiagV(x[0], n, n, x[1], y); }},
        {"ProductDiagVA", 2, [](auto& x, int n, auto y) { VB_M_ProductDiagVA(x[0], n, x[1], n, y); }},
        {"ProductDiagV1ADiagV2", 3,
         [](auto& x, int n, auto y) { VB_M_ProductDiagV1ADiagV2(x[0], n, x[1], n, x[2], y); }},
        {"ProductTrADiagV", 2, [](auto& x, int n, auto y) { VB_M_ProductTrADiagV(x[0], n, n, x[1], y); }},
        {"ProductABTrA", 2, [](auto& x, int n, auto y) { VB_M_ProductABTrA(x[0], n, n, x[1], 0, y); }},
        {"ProductABTrASymmetric", 2,
         [](auto& x, int n, auto y) { VB_M_ProductABTrA(x[0], n, n, x[1], -1, y); }},
        {"ProductTrABA", 2, [](auto& x, int n, auto y) { VB_M_ProductTrABA(x[0], n, n, x[1], 0, y); }},
        {"ProductABC", 3, [](auto& x, int n, auto y) { VB_M_ProductABC(x[0], n, n, x[1], n, x[2], n, y); }},
        {"ProductTrABC", 3,
         [](auto& x, int n, auto y) { VB_M_ProductTrABC(x[0], n, n, x[1], n, x[2], n, y); }},
        {"ProductATrBC", 3,
         [](auto& x, int n, auto y) { VB_M_ProductATrBC(x[0], n, n, x[1], n, x[2], n, y); }},
        {"ProductTrABV", 3, [](auto& x, int n, auto y) { Cpp_M_ProductTrABV(x[0], n, n, x[1], n, x[2], y); }},
        {"ProductBV", 2, [](auto& x, int n, auto y) { VB_M_ProductBV(x[0], n, n, x[1], y); }},
        {"ProductVB", 2, [](auto& x, int n, auto y) { VB_M_ProductVB(x[0], n, x[1], n, y); }},
        {"ProductTrBV", 2, [](auto& x, int n, auto y) { VB_M_ProductTrBV(x[0], n, n, x[1], y); }},
        {"ProductVTrB", 2, [](auto& x, int n, auto y) { VB_M_ProductVTrB(x[0], n, x[1], n, y); }},
        {"ScalarsA", 1, [](auto& x, int n, auto y) { VB_M_ScalarsA(x[0], n, n, 3.0, y); }},
        {"ScalarsTrA", 1, [](auto& x, int n, auto y) { VB_M_ScalarsTrA(x[0], n, n, 3.0, y); }},
        {"APlusVal", 1, [](auto& x, int n, auto y) { VB_M_APlusVal(x[0], n, n, 3.0, y); }},
        {"ProductByElement", 2, [](auto& x, int n, auto y) { VB_M_ProductByElement(x[0], n, n, x[1], y); }},
        {"SumMat", 2, [](auto& x, int n, auto y) { Cpp_SumMat(x[0], x[1], n, n, y); }},
        {"ProductV1V2", 2, [](auto& x, int n, auto y) { VB_V_ProductV1V2(x[0], n, x[1], y); }},
        {"ProductV1TrV2", 2, [](auto& x, int n, auto y) { VB_V_ProductV1TrV2(x[0], n, x[1], y); }},
    };
}

class FlatProductInPlace : public ::testing::TestWithParam<flat_member>
{
};

std::size_t cellsOf(int n)
{
    return static_cast<std::size_t>(n) * static_cast<std::size_t>(n);
}

/** The arrays that are read: whole numbers and a half, so that all sums are exact. */
std::vector<guarded<double>> tablesFor(const flat_member& member, int n)
{
    std::vector<guarded<double>> made;
    for (std::size_t k = 0; k < member.reads; ++k) {
        std::vector<double> cells;
        for (std::size_t c = 0; c < cellsOf(n); ++c) {
            cells.push_back(static_cast<double>((5 * k + 3 * c + c / 7) % 11) - 4.5);
        }
        made.emplace_back(cells);
    }
    return made;
}

inputs placesOf(std::vector<guarded<double>>& tables)
{
    inputs places;
    for (auto& one : tables) {
        places.push_back(one.data());
    }
    return places;
}

/** The array after the result was written over it. A vector leaves the cells beyond it unchanged. */
std::vector<double> overwritten(std::vector<double> array, const std::vector<double>& result)
{
    for (std::size_t c = 0; c < array.size(); ++c) {
        if (result[c] != blank) {
            array[c] = result[c];
        }
    }
    return array;
}

/** Far more cells than are packed at once, and a few. */
constexpr std::array sizes{3, 270};

} // namespace

TEST_P(FlatProductInPlace, ChangesNothingButTheResult)
{
    for (const int n : sizes) {
        auto tables = tablesFor(GetParam(), n);
        const auto before = tablesFor(GetParam(), n);
        const std::vector<double> blanks(cellsOf(n), blank);
        guarded<double> result(blanks);
        GetParam().call(placesOf(tables), n, result.data());
        for (std::size_t k = 0; k < tables.size(); ++k) {
            EXPECT_TRUE(valuesOf(tables[k]) == valuesOf(before[k])) << "array " << k << ", " << n;
        }
        EXPECT_TRUE(valuesOf(result) != blanks);
    }
}

TEST_P(FlatProductInPlace, MayWriteOverEachArrayThatItReads)
{
    for (const int n : sizes) {
        auto apart = tablesFor(GetParam(), n);
        guarded<double> expected(std::vector<double>(cellsOf(n), blank));
        GetParam().call(placesOf(apart), n, expected.data());
        for (std::size_t over = 0; over < GetParam().reads; ++over) {
            auto tables = tablesFor(GetParam(), n);
            const auto before = tablesFor(GetParam(), n);
            const inputs places = placesOf(tables);
            GetParam().call(places, n, places[over]);
            for (std::size_t k = 0; k < tables.size(); ++k) {
                const auto after =
                    k == over ? overwritten(valuesOf(before[k]), valuesOf(expected)) : valuesOf(before[k]);
                EXPECT_TRUE(valuesOf(tables[k]) == after)
                    << "array " << k << " of " << n << ", over " << over;
            }
        }
    }
}

INSTANTIATE_TEST_SUITE_P(All, FlatProductInPlace, ::testing::ValuesIn(members()),
                         [](const auto& member) { return member.param.name; });

TEST(FlatProducts, OfIntegersMayWriteOverWhatTheyRead)
{
    const std::vector<int> a{1, 2, -3, 4};
    const std::vector<int> b{5, -6, 7, 8};
    const std::vector<int> product{23, -14, -17, 46};
    guarded<int> left(a);
    guarded<int> right(b);
    VB_M_ProductABLng(left.data(), 2, 2, right.data(), 2, left.data());
    EXPECT_EQ(valuesOf(left), product);
    EXPECT_EQ(valuesOf(right), b);
    guarded<int> first(a);
    VB_M_ProductABLng(first.data(), 2, 2, right.data(), 2, right.data());
    EXPECT_EQ(valuesOf(first), a);
    EXPECT_EQ(valuesOf(right), product);
    Cpp_M_ProductTrAALng(first.data(), 2, 2, first.data());
    EXPECT_EQ(valuesOf(first), (std::vector<int>{5, 5, 5, 25}));
}
