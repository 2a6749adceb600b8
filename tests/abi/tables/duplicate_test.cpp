#include "korvelmathtools/KORVELMathTools.h"
#include "support/caller_cells.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

using namespace korvel::test;

namespace
{

using columns = std::vector<codes>;

/** 2 by 2, for a place in a table of 3 by 3. */
const columns source{{1, 2}, {3, 4}};

struct place_case {
    const char* name;
    int row, col;
    columns expected;
};

const columns before{{11, 12, 13}, {21, 22, 23}, {31, 32, 33}};

const std::vector<place_case> placeCases{
    {"the corner", 1, 1, {{1, 2, 13}, {3, 4, 23}, {31, 32, 33}}},
    {"another place", 2, 2, {{11, 12, 13}, {21, 1, 2}, {31, 3, 4}}},
    {"reaching outside", 3, 3, {{11, 12, 13}, {21, 22, 23}, {31, 32, 1}}},
    {"starting outside", 0, 0, {{4, 12, 13}, {21, 22, 23}, {31, 32, 33}}},
    {"below", 4, 1, before},
    {"to the left", 1, -1, before},
};

codes joined(const columns& table)
{
    codes all;
    for (const codes& column : table) {
        all.insert(all.end(), column.begin(), column.end());
    }
    return all;
}

template <class Cell, class Function>
void expectDuplicated(Function duplicate)
{
    for (const place_case& with : placeCases) {
        SCOPED_TRACE(with.name);
        caller_cells<Cell> x(joined(source));
        caller_cells<Cell> y(joined(before));
        EXPECT_EQ(duplicate(x.data(), 2, 2, y.data(), 3, 3, with.row, with.col), 0);
        EXPECT_EQ(y.values(), joined(with.expected));
        EXPECT_EQ(x.values(), joined(source));
    }
    caller_cells<Cell> x({1});
    caller_cells<Cell> y({7, 8});
    duplicate(x.data(), 1, 0, y.data(), 2, 0, 2, 1);
    EXPECT_EQ(y.values(), (codes{7, 1})) << "0 is one column";
    caller_cells<Cell> within({1, 2, 3});
    duplicate(within.data(), 2, 1, within.data(), 3, 1, 2, 1);
    EXPECT_EQ(within.values(), (codes{1, 1, 2})) << "within one table";
}

template <class Cell, class Function>
void expectChunksToDense(Function duplicate)
{
    for (const place_case& with : placeCases) {
        SCOPED_TRACE(with.name);
        caller_chunks<Cell> x(source);
        caller_cells<Cell> y(joined(before));
        EXPECT_EQ(duplicate(x.argument(), 2, 2, y.data(), 3, 3, with.row, with.col), 0);
        EXPECT_EQ(y.values(), joined(with.expected));
        EXPECT_EQ(x.values(), source);
    }
    caller_chunks<Cell> x(columns{{1}});
    caller_cells<Cell> y({7, 8});
    duplicate(x.argument(), 1, 1, y.data(), 2, 0, 2, 1);
    EXPECT_EQ(y.values(), (codes{7, 1})) << "0 is one column";
}

/** A record of labelled columns of numbers or of texts. */
template <class Cell>
class labelled_table
{
public:
    explicit labelled_table(const columns& table)
    {
        std::vector<ST_Vect> made;
        std::vector<std::u16string> names;
        for (const codes& column : table) {
            const std::u16string name = u"c" + textOf(static_cast<int>(made.size()) + 1);
            if constexpr (std::same_as<Cell, text_cell>) {
                std::vector<std::u16string> texts;
                std::transform(column.begin(), column.end(), std::back_inserter(texts), textOf);
                made.push_back(memory_.column(name, texts));
            } else {
                made.push_back(memory_.column(name, std::vector<Cell>(column.begin(), column.end())));
            }
            names.push_back(name);
        }
        record_ = memory_.table(made, names);
    }

    ST_MVect* record() { return &record_; }

    columns values() const
    {
        EXPECT_TRUE(memory_.guardsIntact());
        columns found;
        for (int j = 0; j < record_.nbcols; ++j) {
            const ST_Vect& column = columnOf(record_, j);
            found.push_back(detail::codesIn<Cell>(column.Vect, column.Vect->rgsabound[0].cElements));
        }
        return found;
    }

private:
    caller_memory memory_;
    ST_MVect record_{};
};

template <class Cell, class Function>
void expectRecords(Function duplicate)
{
    for (const place_case& with : placeCases) {
        SCOPED_TRACE(with.name);
        labelled_table<Cell> x(source);
        labelled_table<Cell> y(before);
        EXPECT_EQ(duplicate(x.record(), 2, 2, y.record(), 3, 3, with.row, with.col), 0);
        EXPECT_EQ(y.values(), with.expected);
        EXPECT_EQ(x.values(), source);
        EXPECT_EQ(y.record()->nbrowsmax, 3);
    }
    // Columns of different lengths, and more of them asked for than there are.
    labelled_table<Cell> x(columns{{1}, {2, 3}});
    labelled_table<Cell> y(columns{{11, 12, 13}, {21}});
    duplicate(x.record(), 2, 5, y.record(), 3, 5, 1, 1);
    EXPECT_EQ(y.values(), (columns{{1, outside<Cell>, 13}, {2}}));
    labelled_table<Cell> z(before);
    duplicate(x.record(), 2, -1, z.record(), 3, 3, 1, 1);
    duplicate(x.record(), 2, 2, z.record(), 3, -1, 1, 1);
    EXPECT_EQ(z.values(), before) << "no columns";
}

} // namespace

TEST(FlatTableDuplicate, DenseToDense)
{
    expectDuplicated<double>(VB_M_DuplicateDbl);
    expectDuplicated<int>(VB_M_DuplicateLng);
    expectDuplicated<text_cell>(VB_M_DuplicateStr);
}

TEST(FlatTableDuplicate, ChunksToDense)
{
    expectChunksToDense<double>(Cpp_M_DuplicateDblSPV);
    expectChunksToDense<text_cell>(VB_M_DuplicateStrSPV);
}

TEST(FlatTableDuplicate, ToChunks)
{
    for (const place_case& with : placeCases) {
        SCOPED_TRACE(with.name);
        caller_cells<double> dense(joined(source));
        caller_chunks<double> y(before);
        EXPECT_EQ(Cpp_M_DuplicateDblSPV2(dense.data(), 2, 2, y.argument(), 3, 3, with.row, with.col), 0);
        EXPECT_EQ(y.values(), with.expected);
        caller_chunks<double> chunks(source);
        caller_chunks<double> z(before);
        EXPECT_EQ(Cpp_M_DuplicateDblSPV3(chunks.argument(), 2, 2, z.argument(), 3, 3, with.row, with.col), 0);
        EXPECT_EQ(z.values(), with.expected);
        EXPECT_EQ(chunks.values(), source);
    }
    caller_cells<double> vector({1, 2});
    caller_chunks<double> y(before);
    EXPECT_EQ(Cpp_M_DuplicateDblSPV2(vector.data(), 2, 0, y.argument(), 3, 3, 1, 3), 0);
    EXPECT_EQ(y.values(), (columns{{11, 12, 13}, {21, 22, 23}, {1, 2, 33}})) << "0 is one column";
}

TEST(FlatTableDuplicate, ToATriangle)
{
    const auto duplicated = [](int rows, int cols, const codes& x, int row, int col) {
        caller_cells<double> dense(x);
        caller_chunks<double> y({{11, 12, 13}, {22, 23}, {33}});
        EXPECT_EQ(Cpp_M_DuplicateDblSPV2_T(dense.data(), rows, cols, y.argument(), 3, 3, row, col), 0);
        EXPECT_EQ(dense.values(), x);
        return y.values();
    };
    EXPECT_EQ(duplicated(3, 3, {1, 2, 3, 4, 5, 6, 7, 8, 9}, 1, 1), (columns{{1, 2, 3}, {5, 6}, {9}}));
    EXPECT_EQ(duplicated(2, 2, {1, 2, 3, 4}, 2, 2), (columns{{11, 12, 13}, {1, 2}, {4}}));
    EXPECT_EQ(duplicated(2, 2, {1, 2, 3, 4}, 2, 1), (columns{{11, 1, 2}, {3, 4}, {33}}));
    EXPECT_EQ(duplicated(2, 2, {1, 2, 3, 4}, 1, 3), (columns{{11, 12, 13}, {22, 23}, {33}}))
        << "all above the diagonal";
    EXPECT_EQ(duplicated(2, 2, {1, 2, 3, 4}, 3, 0), (columns{{11, 12, 3}, {22, 23}, {33}}))
        << "starts outside";
    EXPECT_EQ(duplicated(2, 2, {1, 2, 3, 4}, 0, 1), (columns{{2, 12, 13}, {22, 23}, {33}})) << "starts above";
    EXPECT_EQ(duplicated(1, 0, {1}, 3, 3), (columns{{11, 12, 13}, {22, 23}, {1}})) << "0 is one column";
}

TEST(FlatTableDuplicate, RecordToRecord)
{
    expectRecords<double>(Cpp_M_DuplicateDbl_ST);
    expectRecords<text_cell>(Cpp_M_DuplicateStr_ST);
}
