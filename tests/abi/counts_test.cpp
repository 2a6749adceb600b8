// Counts below 1 at the boundary. Every frame that works on copies refuses a count below 0 before anything is
// written. A count of 0 leaves the caller's memory alone.

#include "korvelmathtools/KORVELMathTools.h"
#include "support/caller_cells.h"
#include "support/scratch_desktop.h"

#include <functional>
#include <gtest/gtest.h>
#include <new>
#include <string>
#include <vector>

using namespace korvel::test;

namespace
{

const codes before{1, 2, 3, 4, 5, 6};

/** A call of a function that reads one table and fills another, or changes its one table. */
template <class Cell>
struct table_call {
    std::string name;
    std::function<void(Cell*, int rows, int cols, Cell*)> run;
};

template <class Cell>
void refuses(const table_call<Cell>& call, int rows, int cols)
{
    caller_cells<Cell> x(before);
    caller_cells<Cell> y(before);
    EXPECT_THROW(call.run(x.data(), rows, cols, y.data()), std::bad_alloc) << call.name;
    EXPECT_EQ(x.values(), before) << call.name;
    EXPECT_EQ(y.values(), before) << call.name;
}

/** Any access of the arrays would end the process. */
template <class Cell>
void leavesAlone(const table_call<Cell>& call, int rows, int cols)
{
    SCOPED_TRACE(call.name);
    EXPECT_NO_THROW(call.run(nullptr, rows, cols, nullptr));
}

const std::vector<table_call<double>> numbers{
    {"VB_M_Transpose", [](auto* x, int rows, int cols, auto* y) { VB_M_Transpose(x, rows, cols, y); }},
    {"VB_M_Transpose2", [](auto* x, int rows, int cols, auto*) { VB_M_Transpose2(x, rows, cols); }},
    {"VB_M_CopyResize",
     [](auto* x, int rows, int cols, auto* y) { VB_M_CopyResize(x, rows, cols, y, rows, cols); }},
    {"VB_M_CopyBlock",
     [](auto* x, int rows, int cols, auto* y) { VB_M_CopyBlock(x, rows, cols, 1, rows, 1, cols, y); }},
    {"VB_M_ExtractMatToMatDbl",
     [](auto* x, int rows, int cols, auto* y) { VB_M_ExtractMatToMatDbl(x, rows, cols, 1, rows, y); }},
    {"VB_M_LogMatrix", [](auto* x, int rows, int cols, auto* y) { VB_M_LogMatrix(x, rows, cols, y); }},
    {"VB_M_RemoveCol", [](auto* x, int rows, int cols, auto* y) { VB_M_RemoveCol(x, rows, cols, 1, y); }},
    {"Cpp_MatToVect", [](auto* x, int rows, int cols, auto* y) { Cpp_MatToVect(x, rows, cols, y); }},
    {"Cpp_M_CopyVectortoTableByRowDbl",
     [](auto* x, int rows, int cols, auto* y) { Cpp_M_CopyVectortoTableByRowDbl(x, rows, cols, y); }},
    {"Cpp_M_CopySymMatToVector",
     [](auto* x, int rows, int, auto* y) { Cpp_M_CopySymMatToVector(x, rows, y); }},
};

/** Works in the caller's arrays, whatever the counts. */
const table_call<double> shuffle{"Cpp_M_ShuffleDbl", [](auto* x, int rows, int cols, auto* y) {
                                     int seed = 1;
                                     int next = 0;
                                     Cpp_M_ShuffleDbl(x, rows, cols, y, &seed, -1, &next);
                                 }};

const std::vector<table_call<int>> integers{
    {"VB_M_TransposeLng", [](auto* x, int rows, int cols, auto* y) { VB_M_TransposeLng(x, rows, cols, y); }},
    {"VB_M_Transpose2Lng", [](auto* x, int rows, int cols, auto*) { VB_M_Transpose2Lng(x, rows, cols); }},
};

const std::vector<table_call<short int>> flags{
    {"VB_M_CopyResizeBool",
     [](auto* x, int rows, int cols, auto* y) { VB_M_CopyResizeBool(x, rows, cols, y, rows, cols); }},
};

const std::vector<table_call<text_cell>> blocks{
    {"VB_M_TransposeStr", [](auto* x, int rows, int cols, auto* y) { VB_M_TransposeStr(x, rows, cols, y); }},
    {"VB_M_Transpose2Str", [](auto* x, int rows, int cols, auto*) { VB_M_Transpose2Str(x, rows, cols); }},
    {"VB_M_CopyResizeStr",
     [](auto* x, int rows, int cols, auto* y) { VB_M_CopyResizeStr(x, rows, cols, y, rows, cols); }},
    {"Cpp_M_CopyTabletoVectorByRowStr",
     [](auto* x, int rows, int cols, auto* y) { Cpp_M_CopyTabletoVectorByRowStr(x, rows, cols, y); }},
    {"Cpp_M_CopyVectortoTableByRowStr",
     [](auto* x, int rows, int cols, auto* y) { Cpp_M_CopyVectortoTableByRowStr(x, rows, cols, y); }},
    {"Cpp_M_ShuffleStr",
     [](auto* x, int rows, int cols, auto* y) {
         int seed = 1;
         int next = 0;
         Cpp_M_ShuffleStr(x, rows, cols, y, &seed, -1, &next);
     }},
    {"Cpp_M_ShuffleStr2",
     [](auto* x, int rows, int cols, auto*) {
         int seed = 1;
         int next = 0;
         Cpp_M_ShuffleStr2(x, rows, cols, &seed, -1, &next);
     }},
};

/** Whether 0 columns stand for 1 in the function. */
bool takesNoColumnsForOne(const std::string& name)
{
    for (const char* part : {"Resize", "CopyBlock", "Extract", "LogMatrix", "RemoveCol"}) {
        if (name.find(part) != std::string::npos) {
            return true;
        }
    }
    return false;
}

template <class Cell>
void refusesAll(const std::vector<table_call<Cell>>& calls)
{
    for (const auto& call : calls) {
        refuses(call, -1, 3);
        refuses(call, -2, 1);
    }
}

template <class Cell>
void leavesAllAlone(const std::vector<table_call<Cell>>& calls)
{
    for (const auto& call : calls) {
        leavesAlone(call, 0, 3);
        leavesAlone(call, 0, 0);
        if (!takesNoColumnsForOne(call.name) && call.name != "Cpp_M_CopySymMatToVector") {
            leavesAlone(call, 3, 0);
        }
    }
}

} // namespace

TEST(Counts, BelowNoneAreRefusedBeforeAnythingIsWritten)
{
    refusesAll(numbers);
    refusesAll(integers);
    refusesAll(flags);
    refusesAll(blocks);
}

TEST(Counts, BelowNoneOfTheResultAreRefusedToo)
{
    refuses<double>({"transposed", [](auto* x, int, int, auto* y) { VB_M_Transpose(x, 3, -1, y); }}, 0, 0);
    refuses<int>({"transposed", [](auto* x, int, int, auto* y) { VB_M_TransposeLng(x, 3, -1, y); }}, 0, 0);
    refuses<text_cell>({"transposed", [](auto* x, int, int, auto* y) { VB_M_TransposeStr(x, 3, -1, y); }}, 0,
                       0);
    refuses<double>({"resized", [](auto* x, int, int, auto* y) { VB_M_CopyResize(x, 2, 3, y, -1, 2); }}, 0,
                    0);
    refuses<short int>(
        {"resized", [](auto* x, int, int, auto* y) { VB_M_CopyResizeBool(x, 2, 3, y, -1, 2); }}, 0, 0);
    refuses<double>({"resized", [](auto* x, int, int, auto* y) { VB_M_CopyResize(x, -1, 3, y, 2, 2); }}, 0,
                    0);
}

TEST(Counts, BelowNoneOfADumpAreRefusedBeforeAFileIsMade)
{
    scratch_desktop desktop;
    double number = 1;
    int integer = 1;
    BSTR text = nullptr;
    EXPECT_THROW(Cpp_WriteMatrixDbl(&number, -1, 1, "korvel_refused"), std::bad_alloc);
    EXPECT_THROW(Cpp_WriteMatrixLng(&integer, -1, 1, "korvel_refused"), std::bad_alloc);
    EXPECT_THROW(Cpp_WriteMatrixStr(&text, -1, 1, "korvel_refused"), std::bad_alloc);
    EXPECT_EQ(desktop.content("korvel_refused.csv"), "(none)");
}

TEST(Counts, OfNoneLeaveTheArraysAlone)
{
    leavesAllAlone(numbers);
    leavesAllAlone(std::vector{shuffle});
    leavesAllAlone(integers);
    leavesAllAlone(flags);
    leavesAllAlone(blocks);
}

TEST(Counts, BelowNoneMeanThatASortHasNoSecondTable)
{
    const codes rows{4, 5, 6};
    const codes sorted{6, 4, 5};
    caller_cells<double> key{2, 3, 1};
    caller_cells<int> integerKey{2, 3, 1};
    caller_cells<double> copied(rows);
    caller_cells<double> numbersInPlace(rows);
    caller_cells<int> integersInPlace(rows);
    caller_cells<text_cell> texts(rows);
    VB_SortQDbl(copied.data(), 3, 1, 1, 3, key.data(), nullptr, -1, 0, 0);
    VB_SortQDbl2(numbersInPlace.data(), 3, 1, 1, 3, key.data(), nullptr, -1, 0, 0);
    VB_SortQLng(integersInPlace.data(), 3, 1, 1, 3, integerKey.data(), nullptr, -1, 0, 0);
    VB_SortQStr(texts.data(), 3, 1, 1, 3, key.data(), nullptr, -1, 0, 0);
    EXPECT_EQ(copied.values(), sorted);
    EXPECT_EQ(numbersInPlace.values(), sorted);
    EXPECT_EQ(integersInPlace.values(), sorted);
    EXPECT_EQ(texts.values(), sorted);
}
