// A caller's arrays may share memory: a function reads them as they were before the call.
#include "containers/missing.h"
#include "korvelmathtools/KORVELMathTools.h"
#include "support/caller_memory.h"
#include "support/guarded.h"

#include <cstddef>
#include <functional>
#include <gtest/gtest.h>
#include <string>
#include <vector>

using namespace korvel::test;

namespace
{

constexpr int n = 3;
constexpr int cells = n * n;
constexpr double none = MISSING_DBL;

const doubles table{1, 2, 6, 5, none, 3, 4, 0.5, 7};
const doubles positive{2, 1, 3, 0.25, 5, 1.5, 2, 4, 0.5};

/** Reads a table, or a vector of as many cells, and another array, and writes a table apart from both. */
struct writer {
    std::string name;
    std::function<void(const double* x, const double* other, double* y)> call;
};

std::vector<writer> writers()
{
    return {
        {"Standardize",
         [](auto* x, auto* w, auto* y) {
             // The table may be changed, so it is not const.
             VB_M_Standardize(const_cast<double*>(x), n, n, y, nullptr, nullptr, nullptr, nullptr, w, -1, 0);
         }},
        {"V_Standardize", [](auto* x, auto* w, auto* y) { VB_V_Standardize(x, cells, nullptr, w, -1, y); }},
        {"StandardizeW", [](auto* x, auto* w, auto* y) { VB_M_StandardizeW(x, n, n, w, -1, 0, y); }},
        {"StandardizeByVect",
         [](auto* x, auto* s, auto* y) { VB_M_StandardizeByVect(x, n, n, s, s + n, y); }},
        {"KnownMeansStDev",
         [](auto* x, auto* s, auto* y) {
             VB_M_StandardizeKnownMeansStDev(const_cast<double*>(x), n, n, s, s + n, y, nullptr, nullptr);
         }},
        {"KnownMeansVar",
         [](auto* x, auto* s, auto* y) {
             VB_M_StandardizeKnownMeansStDev(const_cast<double*>(x), n, n, s, nullptr, y, s + n, nullptr);
         }},
        {"Center", [](auto* x, auto*, auto* y) { VB_M_Center(x, n, n, y); }},
        {"CenterW", [](auto* x, auto* w, auto* y) { VB_M_CenterW(x, n, n, w, y); }},
        {"Reduce", [](auto* x, auto*, auto* y) { VB_M_Reduce(x, n, n, y, -1, 0); }},
        {"ReduceW", [](auto* x, auto* w, auto* y) { VB_M_ReduceW(x, n, n, w, y, -1, 0); }},
        {"Rescale", [](auto* x, auto*, auto* y) { VB_V_Rescale(x, cells, 2.0, 5.0, nullptr, y); }},
        {"RescaleByVect",
         [](auto* x, auto* ends, auto* y) { VB_M_RescaleByVect(x, n, n, ends, ends + n, nullptr, y); }},
        {"ZScores", [](auto* x, auto*, auto* y) { Cpp_V_ZScores(x, cells, -1, nullptr, nullptr, y); }},
        {"CorrMatMat",
         [](auto* x, auto* other, auto* y) {
             VB_M_CorrMatMat(x, n, n, other, n, y, nullptr, positive.data(), 0, 0, 0, 0, 0);
         }},
        {"CovCorr",
         [](auto* x, auto*, auto* y) { VB_M_CovCorr(x, n, n, y, 0, nullptr, positive.data(), 0, 0, 0); }},
        {"CorrMatFromCovMat", [](auto* x, auto*, auto* y) { VB_M_CorrMatFromCovMat(x, n, y, 0); }},
        {"CovMatFromCorrMat",
         [](auto* x, auto*, auto* y) { Cpp_M_CovMatFromCorrMat(x, n, positive.data(), y); }},
        {"Sums1As2B", [](auto* x, auto* other, auto* y) { VB_M_Sums1As2B(x, n, n, other, 2.0, 3.0, y); }},
        {"EuclidDist2", [](auto* x, auto*, auto* y) { VB_M_EuclidDist2(x, n, n, positive.data(), y, 0, 0); }},
    };
}

/** Changes a table, or a vector of as many cells, in place, by what stands in another array. */
struct changer {
    std::string name;
    std::function<void(double* x, const double* other)> call;
};

std::vector<changer> changers()
{
    return {
        {"Standardize",
         [](auto* x, auto* w) {
             VB_M_Standardize(x, n, n, nullptr, nullptr, nullptr, nullptr, nullptr, w, 0, 0);
         }},
        {"V_Standardize2", [](auto* x, auto* w) { VB_V_Standardize2(x, cells, nullptr, w, 0); }},
        {"StandardizeW2", [](auto* x, auto* w) { VB_M_StandardizeW2(x, n, n, w, 0, 0); }},
        {"CenterW2", [](auto* x, auto* w) { VB_M_CenterW2(x, n, n, w); }},
        {"ReduceW2", [](auto* x, auto* w) { VB_M_ReduceW2(x, n, n, w, 0, 0); }},
        {"StandardizeByVect2", [](auto* x, auto* s) { VB_M_StandardizeByVect2(x, n, n, s, s + n); }},
        {"KnownMeansStDev",
         [](auto* x, auto* s) {
             VB_M_StandardizeKnownMeansStDev(x, n, n, s, s + n, nullptr, nullptr, nullptr);
         }},
        {"KnownMeansVar",
         [](auto* x, auto* s) {
             VB_M_StandardizeKnownMeansStDev(x, n, n, s, nullptr, nullptr, s + n, nullptr);
         }},
        {"StandardizeApply2", [](auto* x, auto* s) { Cpp_M_StandardizeApply2(x, n, n, s, s + n); }},
        {"Normalize", [](auto* x, auto* w) { VB_M_Normalize(x, n, n, w, nullptr); }},
        {"NormW", [](auto* x, auto* w) { VB_V_NormW(x, cells, w); }},
        {"NormToValW", [](auto* x, auto* w) { VB_V_NormToValW(x, cells, 3.0, w); }},
        {"RescaleByVect2",
         [](auto* x, auto* ends) { VB_M_RescaleByVect2(x, n, n, ends, ends + n, nullptr); }},
    };
}

doubles between(const doubles& room, int first)
{
    return {room.begin() + first, room.begin() + first + cells};
}

void expectSameCells(const doubles& actual, const doubles& expected)
{
    for (std::size_t k = 0; k < expected.size(); ++k) {
        EXPECT_SAME_BITS(actual[k], expected[k]) << "cell " << k;
    }
}

/** Room for two tables that share all cells but `shift`, the first of them at `from`. */
struct shared_room {
    int shift;
    int from = shift < 0 ? -shift : 0;
    guarded<double> cellsOfBoth{doubles(static_cast<std::size_t>(cells + (shift < 0 ? -shift : shift)), 1.5)};

    shared_room(int apart, const doubles& values) : shift(apart)
    {
        std::copy(values.begin(), values.end(), cellsOfBoth.data() + from);
    }

    double* first() { return cellsOfBoth.data() + from; }
    double* second() { return first() + shift; }
    doubles secondCells() const { return between(valuesOf(cellsOfBoth), from + shift); }
};

} // namespace

TEST(FlatSharedMemory, AResultMayLieAcrossWhatItIsMadeFrom)
{
    for (const writer& member : writers()) {
        doubles expected(cells, 9.0);
        member.call(table.data(), positive.data(), expected.data());
        for (const int shift : {-4, -1, 0, 1, 4}) {
            SCOPED_TRACE(member.name + ", the table " + std::to_string(shift));
            shared_room room(shift, table);
            member.call(room.first(), positive.data(), room.second());
            expectSameCells(room.secondCells(), expected);
        }
        for (const int shift : {-4, -1, 0, 1, 4}) {
            SCOPED_TRACE(member.name + ", the other array " + std::to_string(shift));
            shared_room room(shift, positive);
            member.call(table.data(), room.first(), room.second());
            expectSameCells(room.secondCells(), expected);
        }
    }
}

TEST(FlatSharedMemory, ATableMayBeChangedByWhatStandsInIt)
{
    for (const changer& member : changers()) {
        for (const int first : {0, 1, 2, 5}) {
            SCOPED_TRACE(member.name + ", from cell " + std::to_string(first));
            doubles apart(positive);
            apart.insert(apart.end(), {3, 2, 1, 4, 5});
            guarded<double> shared(apart);
            doubles expected(apart);
            const doubles other(apart.begin() + first, apart.begin() + first + cells);
            member.call(expected.data(), other.data());
            member.call(shared.data(), shared.data() + first);
            expectSameCells(valuesOf(shared), expected);
        }
    }
}
