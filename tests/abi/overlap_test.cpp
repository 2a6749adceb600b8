// Functions that read one array and write another, given two parts of one array.

#include "korvelmathtools/KORVELMathTools.h"
#include "support/caller_cells.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <numeric>
#include <vector>

using namespace korvel::test;

namespace
{

struct overlap_case {
    const char* name;
    std::size_t read;    // elements of what is read
    std::size_t written; // and of what is written
    void (*call)(double* x, double* y);
};

double list[] = {2.0};
int rowList[] = {2};
double rowOrder[] = {3, 1, 2};

// The table that is read has 3 by 3 cells where nothing else is said.
const std::vector<overlap_case> cases{
    {"VB_M_RemoveCol", 9, 6, [](double* x, double* y) { VB_M_RemoveCol(x, 3, 3, 2, y); }},
    {"VB_M_RemoveRow", 9, 6, [](double* x, double* y) { VB_M_RemoveRow(x, 3, 3, 1, y); }},
    {"VB_M_RemoveColsInList", 9, 6, [](double* x, double* y) { VB_M_RemoveColsInList(x, 3, 3, list, 1, y); }},
    {"VB_M_RemoveRowsInList", 9, 6,
     [](double* x, double* y) { VB_M_RemoveRowsInList(x, 3, 3, rowList, 1, y); }},
    {"VB_HMergeTablesDbl, first", 4, 6,
     [](double* x, double* y) {
         double b[] = {91, 92};
         VB_HMergeTablesDbl(x, 2, 2, b, 2, 1, y);
     }},
    {"VB_HMergeTablesDbl, second", 4, 6,
     [](double* x, double* y) {
         double a[] = {91, 92};
         VB_HMergeTablesDbl(a, 2, 1, x, 2, 2, y);
     }},
    {"VB_HMergeVectors, first", 3, 6,
     [](double* x, double* y) {
         double b[] = {91, 92};
         VB_HMergeVectors(x, 3, b, 2, y);
     }},
    {"VB_HMergeVectors, second", 3, 6,
     [](double* x, double* y) {
         double a[] = {91, 92};
         VB_HMergeVectors(a, 2, x, 3, y);
     }},
    {"VB_HMergeTableVect, table", 4, 9,
     [](double* x, double* y) {
         double v[] = {91, 92};
         VB_HMergeTableVect(x, 2, 2, v, 2, y, 3, 3);
     }},
    {"VB_HMergeTableVect, vector", 3, 6,
     [](double* x, double* y) {
         double a[] = {91, 92};
         VB_HMergeTableVect(a, 2, 1, x, 3, y, 3, 2);
     }},
    {"VB_HMergeTableVect2", 3, 4, [](double* x, double* y) { VB_HMergeTableVect2(y, 2, 1, x, 3); }},
    {"VB_HMergeVectTable, vector", 3, 6,
     [](double* x, double* y) {
         double a[] = {91, 92};
         VB_HMergeVectTable(x, 3, a, 2, 1, y, 3, 2);
     }},
    {"VB_HMergeVectTable, table", 4, 9,
     [](double* x, double* y) {
         double v[] = {91, 92};
         VB_HMergeVectTable(v, 2, x, 2, 2, y, 3, 3);
     }},
    {"VB_HMergeVectColDbl, vector", 3, 6,
     [](double* x, double* y) {
         double a[] = {91, 92};
         VB_HMergeVectColDbl(x, 3, a, 2, 1, 1, y, 3);
     }},
    {"VB_HMergeVectColDbl, table", 4, 6,
     [](double* x, double* y) {
         double v[] = {91, 92};
         VB_HMergeVectColDbl(v, 2, x, 2, 2, 2, y, 3);
     }},
    {"VB_VMergeVectorsDbl, first", 3, 5,
     [](double* x, double* y) {
         double b[] = {91, 92};
         VB_VMergeVectorsDbl(x, 3, b, 2, y);
     }},
    {"VB_VMergeVectorsDbl, second", 3, 5,
     [](double* x, double* y) {
         double a[] = {91, 92};
         VB_VMergeVectorsDbl(a, 2, x, 3, y);
     }},
    {"VB_VMergeTablesDbl, first", 6, 9,
     [](double* x, double* y) {
         double b[] = {91, 92, 93};
         VB_VMergeTablesDbl(x, 2, 3, b, 1, 3, y);
     }},
    {"VB_VMergeTablesDbl, second", 6, 9,
     [](double* x, double* y) {
         double a[] = {91, 92, 93};
         VB_VMergeTablesDbl(a, 1, 3, x, 2, 3, y);
     }},
    {"Cpp_VMergeTablesDblSPV", 6, 9,
     [](double* x, double* y) {
         caller_chunks<double> a(std::vector<codes>{{91}, {92}, {93}});
         Cpp_VMergeTablesDblSPV(a.argument(), 1, 3, x, 2, 3, y);
     }},
    {"VB_M_CopyBlock", 9, 6, [](double* x, double* y) { VB_M_CopyBlock(x, 3, 3, 1, 2, 1, 3, y); }},
    {"VB_M_PasteBlock", 4, 9, [](double* x, double* y) { VB_M_PasteBlock(x, 2, 2, y, 3, 3, 2, 2); }},
    {"Cpp_M_CopyPasteBlock", 9, 9,
     [](double* x, double* y) { Cpp_M_CopyPasteBlock(x, 3, 3, 1, 2, 1, 3, y, 3, 3, 2, 1); }},
    {"VB_M_ExtractMatToMatDbl", 9, 6,
     [](double* x, double* y) { VB_M_ExtractMatToMatDbl(x, 3, 3, 1, 2, y); }},
    {"Cpp_Extractij", 9, 6, [](double* x, double* y) { Cpp_Extractij(x, 3, 3, 1, 2, y); }},
    {"VB_M_ExtractMatToMatByColDbl", 9, 9,
     [](double* x, double* y) { VB_M_ExtractMatToMatByColDbl(x, 3, 3, 0, 2, y); }},
    {"VB_M_DuplicateDbl", 4, 9, [](double* x, double* y) { VB_M_DuplicateDbl(x, 2, 2, y, 3, 3, 2, 2); }},
    {"VB_M_CopyResize", 4, 9, [](double* x, double* y) { VB_M_CopyResize(x, 2, 2, y, 3, 3); }},
    {"VB_M_CopyToBigger", 4, 9, [](double* x, double* y) { VB_M_CopyToBigger(x, 2, 2, y, 3, 3); }},
    {"VB_CopyMatrixColToMatrixCol", 9, 9,
     [](double* x, double* y) { VB_CopyMatrixColToMatrixCol(x, 3, 3, 2, y, 3, 3, 1, -1); }},
    {"VB_CopyMatrixRowToMatrixRow", 9, 9,
     [](double* x, double* y) { VB_CopyMatrixRowToMatrixRow(x, 3, 3, 2, y, 3, 3, 1, 0); }},
    {"VB_V_DuplicateDbl", 9, 9,
     [](double* x, double* y) { VB_V_DuplicateDbl(x, 9, 1, 1, 0, 7, y, 9, 1, 2, 1); }},
    {"Cpp_MatToVect", 9, 9, [](double* x, double* y) { Cpp_MatToVect(x, 3, 3, y); }},
    {"Cpp_M_CopyTabletoVectorByRowDbl", 9, 9,
     [](double* x, double* y) { Cpp_M_CopyTabletoVectorByRowDbl(x, 3, 3, y); }},
    {"Cpp_M_CopyVectortoTableByRowDbl", 9, 9,
     [](double* x, double* y) { Cpp_M_CopyVectortoTableByRowDbl(x, 3, 3, y); }},
    {"Cpp_M_CopySymMatToVector", 9, 6, [](double* x, double* y) { Cpp_M_CopySymMatToVector(x, 3, y); }},
    {"Cpp_M_CopyVectorToSymMat", 6, 9, [](double* x, double* y) { Cpp_M_CopyVectorToSymMat(x, 3, y); }},
    {"VB_SortApply", 9, 9, [](double* x, double* y) { VB_SortApply(x, 3, 3, rowOrder, y); }},
    {"VB_V_ReverseDbl", 5, 5, [](double* x, double* y) { VB_V_ReverseDbl(x, 5, y); }},
    {"VB_M_GroupBy", 9, 9,
     [](double* x, double* y) {
         int kinds[] = {0, 0, 0};
         int groups = 0;
         VB_M_GroupBy(x, 3, 3, kinds, 1, 0, &groups, y);
     }},
    {"VB_M_GroupByW", 9, 9,
     [](double* x, double* y) {
         int kinds[] = {0, 0, 0};
         double weights[] = {1, 2, 3};
         int groups = 0;
         VB_M_GroupByW(x, 3, 3, kinds, 1, 0, &groups, y, weights);
     }},
    {"VB_M_Dedupe", 9, 15,
     [](double* x, double* y) {
         int kept = 0;
         VB_M_Dedupe(x, 3, 2, &kept, y);
     }},
    {"Cpp_M_ShuffleDbl", 9, 9,
     [](double* x, double* y) {
         int seed = 7;
         int nextSeed = 0;
         Cpp_M_ShuffleDbl(x, 3, 3, y, &seed, -1, &nextSeed);
     }},
    {"VB_M_ProductHorizAB, first", 4, 8,
     [](double* x, double* y) {
         double b[] = {91, 92, 93, 94};
         VB_M_ProductHorizAB(x, 2, 2, b, 2, y, 0);
     }},
    {"VB_M_ProductHorizAB, second", 4, 8,
     [](double* x, double* y) {
         double a[] = {91, 92, 93, 94};
         VB_M_ProductHorizAB(a, 2, 2, x, 2, y, 0);
     }},
    {"Cpp_KroneckerTensorProduct, first", 4, 8,
     [](double* x, double* y) {
         double b[] = {91, 92};
         Cpp_KroneckerTensorProduct(x, 2, 2, b, 2, 1, y);
     }},
    {"Cpp_KroneckerTensorProduct, second", 4, 8,
     [](double* x, double* y) {
         double a[] = {91, 92};
         Cpp_KroneckerTensorProduct(a, 2, 1, x, 2, 2, y);
     }},
    {"VB_M_ProductASymV, table", 6, 3,
     [](double* x, double* y) {
         double v[] = {91, 92, 93};
         VB_M_ProductASymV(x, 3, v, y);
     }},
    {"VB_M_ProductASymV, vector", 3, 3,
     [](double* x, double* y) {
         double s[] = {91, 92, 93, 94, 95, 96};
         VB_M_ProductASymV(s, 3, x, y);
     }},
    {"VB_M_ProductVASym, table", 6, 3,
     [](double* x, double* y) {
         double v[] = {91, 92, 93};
         VB_M_ProductVASym(v, 3, x, y);
     }},
    {"VB_M_ProductVASym, vector", 3, 3,
     [](double* x, double* y) {
         double s[] = {91, 92, 93, 94, 95, 96};
         VB_M_ProductVASym(x, 3, s, y);
     }},
    {"Cpp_MV_ProductAsymBsym, first", 6, 6,
     [](double* x, double* y) {
         double b[] = {91, 92, 93, 94, 95, 96};
         Cpp_MV_ProductAsymBsym(x, 6, b, y);
     }},
    {"Cpp_MV_ProductAsymBsym, second", 6, 6,
     [](double* x, double* y) {
         double a[] = {91, 92, 93, 94, 95, 96};
         Cpp_MV_ProductAsymBsym(a, 6, x, y);
     }},
};

} // namespace

TEST(FlatTables, ReadAllBeforeItIsWrittenOver)
{
    for (const overlap_case& with : cases) {
        // What is written starts before, in and behind what is read.
        for (std::size_t from = 0; from <= with.written; ++from) {
            for (std::size_t to = 0; to <= from + with.read; ++to) {
                SCOPED_TRACE(::testing::Message() << with.name << " from " << from << " to " << to);
                codes numbers(std::max(from + with.read, to + with.written));
                std::iota(numbers.begin(), numbers.end(), 1);
                caller_cells<double> apart(numbers);
                caller_cells<double> target(numbers);
                with.call(apart.data() + from, target.data() + to);
                caller_cells<double> shared(numbers);
                with.call(shared.data() + from, shared.data() + to);
                ASSERT_EQ(shared.values(), target.values());
            }
        }
    }
}

TEST(FlatTables, FlagsAreReversedBeforeTheyAreWrittenOver)
{
    for (std::size_t to = 0; to <= 8; ++to) {
        std::vector<short int> shared{1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12};
        std::vector<short int> expected = shared;
        std::reverse_copy(shared.begin() + 4, shared.begin() + 8, expected.begin() + static_cast<int>(to));
        VB_V_ReverseBool(shared.data() + 4, 4, shared.data() + to);
        ASSERT_EQ(shared, expected) << to;
    }
}

TEST(FlatTables, IntegersAreOrderedBeforeTheyAreWrittenOver)
{
    std::vector<int> shared{1, 2, 3, 4, 5};
    VB_SortApplyLng(shared.data(), 3, 1, rowOrder, shared.data() + 1);
    EXPECT_EQ(shared, (std::vector<int>{1, 3, 1, 2, 5}));
}
