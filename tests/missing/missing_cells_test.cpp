#include "missing/missing_cells.h"

#include "support/bits.h"
#include "support/random_cells.h"

#include <algorithm>
#include <utility>
#include <vector>

using namespace korvel::test;

namespace
{

constexpr double missing = MISSING_DBL;
using numbers = std::vector<double>;
using ints = std::vector<int>;

/** What a change makes of a table of 2 rows. */
template <class Change>
numbers changed(numbers cells, Change change)
{
    matrix<double> x(2, static_cast<int>(cells.size()) / 2, cells.data(), true);
    change(&x);
    return cells;
}

const numbers square{1, missing, missing, 4};

} // namespace

TEST(MissingCells, TakeAValue)
{
    EXPECT_EQ(changed(square, [](auto* x) { M_ReplaceMissingByVal(x, 2, 2, 7); }), (numbers{1, 7, 7, 4}));
    EXPECT_EQ(changed(square, [](auto* x) { M_ReplaceMissingByVal(x, 1, 2, 7); }),
              (numbers{1, missing, 7, 4}));
    EXPECT_EQ(changed(square, [](auto* x) { M_ReplaceMissingByVal(x, 2, 1, 7); }),
              (numbers{1, 7, missing, 4}));
    EXPECT_EQ(changed(square, [](auto* x) { M_ReplaceMissingByVal(x, 0, 2, 7); }), square);
    EXPECT_EQ(changed({belowSentinel, -infinite}, [](auto* x) { M_ReplaceMissingByVal(x, 2, 1, 7); }),
              (numbers{belowSentinel, -infinite}));
    std::vector<text> words{u"a", u"", u"", u"d"};
    matrix<text> texts(2, 2, words.data());
    M_ReplaceMissingByStr(&texts, 2, 1, u"none");
    EXPECT_EQ(words, (std::vector<text>{u"a", u"none", u"", u"d"}));
}

TEST(MissingCells, TakeAValueInChunksAndTriangles)
{
    auto first = vectorOf<double>({missing, missing});
    auto second = vectorOf<double>({missing, missing});
    matrix<double>* chunks[]{&first, &second};
    M_ReplaceMissingByValSPV_T(chunks, 2, 2, 7);
    EXPECT_TRUE(sameBits(second.data[1], missing)) << "the second has one cell";
    EXPECT_TRUE(sameBits(first.data[1], 7));
    EXPECT_TRUE(sameBits(second.data[0], 7));
    M_ReplaceMissingByValSPV(chunks, 2, 2, 8);
    EXPECT_TRUE(sameBits(second.data[1], 8));
    matrix3D<matrix<double>> table(2, 2, 2, missing);
    M_ReplaceMissingByValSPV_T(&table, 2, 2, 3);
    EXPECT_TRUE(sameBits(table.getElement(1, 1), missing));
    M_ReplaceMissingByValSPV(&table, 2, 2, 4);
    EXPECT_TRUE(sameBits(table.getElement(1, 1), 4));
    EXPECT_TRUE(sameBits(table.getElement(0, 1), 3));
}

TEST(MissingCells, TakeAValueInSomeRowsAndColumnsOfEachForm)
{
    using table = matrix3D<matrix<double>>;
    struct {
        const char* name;
        void (*change)(table& x, matrix<double>** chunks, int rows, int cols);
        bool isTriangular;
    } const forms[] = {
        {"chunks", [](table&, matrix<double>** c, int m, int n) { M_ReplaceMissingByValSPV(c, m, n, 7); },
         false},
        {"table", [](table& x, matrix<double>**, int m, int n) { M_ReplaceMissingByValSPV(&x, m, n, 7); },
         false},
        {"triangle of chunks",
         [](table&, matrix<double>** c, int m, int n) { M_ReplaceMissingByValSPV_T(c, m, n, 7); }, true},
        {"triangle",
         [](table& x, matrix<double>**, int m, int n) { M_ReplaceMissingByValSPV_T(&x, m, n, 7); }, true},
    };
    for (const auto& form : forms) {
        for (const auto& [rows, cols] : {std::pair{3, 2}, {2, 3}, {1, 3}, {3, 1}, {0, 3}, {3, 0}}) {
            SCOPED_TRACE(::testing::Message() << form.name << ", " << rows << " by " << cols);
            table x(3, 3, 3, missing);
            matrix<double>* chunks[]{&x.chunks[0], &x.chunks[1], &x.chunks[2]};
            form.change(x, chunks, rows, cols);
            for (int j = 0; j < 3; ++j) {
                for (int i = 0; i < 3; ++i) {
                    const bool isReached = j < cols && i < (form.isTriangular ? rows - j : rows);
                    EXPECT_EQ(chunks[j]->data[i], isReached ? 7 : missing) << i << ", " << j;
                }
            }
        }
    }
}

TEST(MissingCells, TakeAValueInTheColumnsOfARecord)
{
    struct given {
        int rows;
        int cols;
        std::vector<numbers> expected;
    };
    for (const given& table : std::vector<given>{
             {2, 3, {{7, 7}, {7, 7}, {7, 7}}},
             {2, 1, {{7, 7}, {missing, missing}, {missing, missing}}},
             {1, 2, {{7, missing}, {7, missing}, {missing, missing}}},
             {2, 9, {{7, 7}, {7, 7}, {7, 7}}},
             {2, 0, {{missing, missing}, {missing, missing}, {missing, missing}}},
         }) {
        SCOPED_TRACE(::testing::Message() << table.rows << " by " << table.cols);
        cST_MVect<double> x(2, 3);
        cST_MVect<text> words(2, 3);
        for (auto& column : x.Vectors) {
            std::fill_n(column.Vect.data, 2, missing);
        }
        korvel::replaceMissing(x, table.rows, table.cols, 7.0);
        korvel::replaceMissing(words, table.rows, table.cols, text(u"none"));
        for (std::size_t j = 0; j < 3; ++j) {
            for (std::size_t i = 0; i < 2; ++i) {
                EXPECT_EQ(x.Vectors[j].Vect.data[i], table.expected[j][i]);
                EXPECT_EQ(words.Vectors[j].Vect.data[i], table.expected[j][i] == 7 ? u"none" : u"");
            }
        }
    }
}

TEST(MissingCells, LeaveTheSpareSlotAsCheckedStoresDo)
{
    auto x = vectorOf<double>({missing, 2, missing, 4});
    M_ReplaceMissingByVal(&x, 4, 1, 7);
    EXPECT_TRUE(sameBits(x.oobValue, 7)) << "the last value stored";
    auto none = vectorOf<double>({1, 2});
    M_ReplaceMissingByVal(&none, 2, 1, 7);
    EXPECT_TRUE(sameBits(none.oobValue, -1)) << "nothing was stored";
    M_ReplaceMissingByVal(&x, 6, 2, 9);
    EXPECT_TRUE(sameBits(x.oobValue, 7)) << "what is outside is not missing";
    EXPECT_TRUE(std::equal(x.data, x.data + 4, numbers{7, 2, 7, 4}.begin()));
}

TEST(MissingCells, AreMadeWhereAMarkStands)
{
    const numbers cells{1, 2, 3, 4, 5, 6};
    struct given {
        ints marks;
        int columns;
        int value;
        short int wholeRow;
        numbers expected;
    };
    for (const given& table : std::vector<given>{
             {{0, 1, 0, 0, 0, 0}, 3, 1, 0, {1, missing, 3, 4, 5, 6}},
             {{0, 1, 0, 0, 0, 0}, 3, 1, 1, {1, missing, 3, 4, 5, 6}},
             {{0, 1, 0, 0, 0, 0}, 3, 1, -1, {1, missing, 3, missing, 5, missing}},
             {{0, 0, 5, 0, 0, 5}, 3, 5, 0, {1, 2, missing, 4, 5, missing}},
             {{0, 0, 5, 0, 0, 5}, 3, 5, 1, {1, 2, missing, 4, 5, missing}},
             {{0, 0, 5, 0, 0, 5}, 2, 5, 0, {1, 2, missing, 4, 5, 6}},
             {{0, 0, 5, 0, 0, 0}, 2, 5, -1, {missing, 2, missing, 4, missing, 6}},
             {{1, 1, 1, 1, 1, 1}, 3, 2, -1, cells},
         }) {
        numbers marked = cells;
        ints marks = table.marks;
        matrix<double> x(2, 3, marked.data(), true);
        matrix<int> m(2, 3, marks.data(), true);
        M_ReplaceByMissingIfVal(&x, 2, 3, &m, table.columns, table.value, table.wholeRow);
        EXPECT_EQ(marked, table.expected);
        if (table.value == 1) {
            marked = cells;
            M_ReplaceByMissing(&x, 2, 3, &m, table.columns, table.wholeRow);
            EXPECT_EQ(marked, table.expected);
        }
        EXPECT_EQ(marks, table.marks);
    }
}

TEST(MissingCells, AreMarked)
{
    numbers cells = square;
    matrix<double> x(2, 2, cells.data(), true);
    ints marks{5, 5, 5, 5};
    matrix<int> m(2, 2, marks.data(), true);
    M_IdentifyMissingInMat(&x, 2, 2, &m);
    EXPECT_EQ(marks, (ints{5, 1, 1, 5}));
    marks = {5, 5, 5, 5};
    M_IdentifyMissingInMat(&x, 1, 2, &m);
    EXPECT_EQ(marks, (ints{5, 5, 1, 5}));
    M_IdentifyMissingInMat(&x, 2, 1, &m);
    EXPECT_EQ(marks, (ints{5, 1, 1, 5}));
    auto first = vectorOf<double>({missing, 2});
    auto second = vectorOf<double>({3, 4});
    matrix<double>* chunks[]{&first, &second};
    M_IdentifyMissingInMatSPV(chunks, 2, 2, &m);
    EXPECT_EQ(marks, (ints{1, 1, 1, 5}));
    for (matrix<double>* chunk : chunks) {
        std::fill_n(chunk->data, 2, missing);
    }
    marks = {5, 5, 5, 5};
    M_IdentifyMissingInMatSPV(chunks, 1, 2, &m);
    EXPECT_EQ(marks, (ints{1, 5, 1, 5}));
}

TEST(MissingCells, LoseTheirWeight)
{
    numbers cells = square;
    matrix<double> x(2, 2, cells.data(), true);
    for (const int mode : {0, 2, -1}) {
        numbers weights{5, 6, 7, 8};
        matrix<double> w(2, 2, weights.data(), true);
        M_SetWeightsToZeroForMissing(&x, 2, 2, &w, mode);
        EXPECT_EQ(weights, (numbers{5, 0, 0, 8})) << "cell by cell";
    }
    numbers weights{5, 6};
    matrix<double> w(2, 1, weights.data(), true);
    M_SetWeightsToZeroForMissing(&x, 2, 1, &w, 1);
    EXPECT_EQ(weights, (numbers{5, 0}));
    M_SetWeightsToZeroForMissing(&x, 2, 2, &w, 1);
    EXPECT_EQ(weights, (numbers{0, 0})) << "row by row";
}

TEST(MissingCells, EqualThePlainLoop)
{
    forRandomVectors([](random_cells& cells, int n, int held) {
        auto x = cells.values(held);
        auto plain = matrix<double>(x);
        for (int i = 0; i < n; ++i) {
            if (plain.getElement(i, 0) == missing) {
                plain.setElement(i, 0, 0.5);
            }
        }
        M_ReplaceMissingByVal(&x, n, 1, 0.5);
        for (int i = 0; i < held; ++i) {
            EXPECT_TRUE(sameBits(x.data[i], plain.data[i]));
        }
        EXPECT_TRUE(sameBits(x.oobValue, plain.oobValue));
    });
}
