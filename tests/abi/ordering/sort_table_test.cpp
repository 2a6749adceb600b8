#include "korvelmathtools/KORVELMathTools.h"
#include "support/caller_memory.h"
#include "support/guarded.h"

#include <gtest/gtest.h>

using korvel::test::blockOf;
using korvel::test::caller_memory;
using korvel::test::columnOf;
using korvel::test::doubles;
using korvel::test::guarded;
using korvel::test::ints;
using korvel::test::numbersIn;
using korvel::test::shorts;
using korvel::test::texts;
using korvel::test::textsIn;
using korvel::test::valuesOf;

TEST(FlatSort, TableOfNumbersByAKeyWithACompanion)
{
    for (const auto sort : {VB_SortQDbl, VB_SortQDbl2}) {
        guarded<double> x{1, 2, 3, 10, 20, 30};
        guarded<double> key{3, 1, 2};
        guarded<double> aux{7, 8, 9};
        EXPECT_EQ(sort(x.data(), 3, 2, 1, 3, key.data(), aux.data(), 1, 0, 0), 0);
        EXPECT_EQ(valuesOf(x), (doubles{2, 3, 1, 20, 30, 10}));
        EXPECT_EQ(valuesOf(aux), (doubles{8, 9, 7}));
        EXPECT_EQ(valuesOf(key), (doubles{3, 1, 2}));

        EXPECT_EQ(sort(x.data(), 3, 0, 1, 3, key.data(), aux.data(), 0, 1, 7), 0);
        EXPECT_EQ(valuesOf(x), (doubles{2, 1, 3, 20, 30, 10}));
        EXPECT_EQ(valuesOf(aux), (doubles{8, 7, 9}));
        EXPECT_EQ(valuesOf(key), (doubles{3, 2, 1}));
    }
}

TEST(FlatSort, ACompanionMovesInAllItsColumns)
{
    const doubles moved{5, 4, 6, 8, 7, 9};
    guarded<double> key{2, 1, 3};
    for (const auto sort : {VB_SortQDbl, VB_SortQDbl2}) {
        guarded<double> x{1, 2, 3};
        guarded<double> aux{4, 5, 6, 7, 8, 9};
        sort(x.data(), 3, 1, 1, 3, key.data(), aux.data(), 2, 0, 0);
        EXPECT_EQ(valuesOf(aux), moved);
    }
    guarded<int> integers{1, 2, 3};
    guarded<int> integerKey{2, 1, 3};
    guarded<int> integerAux{4, 5, 6, 7, 8, 9};
    VB_SortQLng(integers.data(), 3, 1, 1, 3, integerKey.data(), integerAux.data(), 2, 0, 0);
    EXPECT_EQ(valuesOf(integerAux), (ints{5, 4, 6, 8, 7, 9}));
    guarded<short int> booleans{0, -1, 0};
    guarded<short int> booleanAux{4, 5, 6, 7, 8, 9};
    VB_SortQBool(booleans.data(), 3, 1, 1, 3, key.data(), booleanAux.data(), 2, 0, 0);
    EXPECT_EQ(valuesOf(booleanAux), (shorts{5, 4, 6, 8, 7, 9}));

    caller_memory memory;
    const texts six{u"4", u"5", u"6", u"7", u"8", u"9"};
    const texts sixMoved{u"5", u"4", u"6", u"8", u"7", u"9"};
    SAFEARRAY* labels = memory.texts({u"a", u"b", u"c"});
    SAFEARRAY* others = memory.texts(six);
    VB_SortQStr(blockOf(labels), 3, 1, 1, 3, key.data(), blockOf(others), 2, 0, 0);
    EXPECT_EQ(textsIn(others), sixMoved);

    ST_MVect numbers = memory.table({memory.column(u"p", doubles{1, 2, 3})}, {u"p"});
    guarded<double> aux{4, 5, 6, 7, 8, 9};
    Cpp_SortQDbl_ST(&numbers, 3, 1, 1, 3, key.data(), aux.data(), 2, 0, 0);
    EXPECT_EQ(valuesOf(aux), moved);
    ST_MVect names = memory.table({memory.column(u"p", texts{u"a", u"b", u"c"})}, {u"p"});
    SAFEARRAY* more = memory.texts(six);
    Cpp_SortQStr_ST(&names, 3, 1, 1, 3, key.data(), blockOf(more), 2, 0, 0);
    EXPECT_EQ(textsIn(more), sixMoved);
    SAFEARRAY* array = memory.array(ints{1, 2, 3});
    guarded<int> arrayAux{4, 5, 6, 7, 8, 9};
    Cpp_SortQLng_ST(&array, 3, 1, 1, 3, integerKey.data(), arrayAux.data(), 2, 0, 0);
    EXPECT_EQ(valuesOf(arrayAux), (ints{5, 4, 6, 8, 7, 9}));

    guarded<double> row{1, 2, 3};
    guarded<double> twoRows{4, 7, 5, 8, 6, 9};
    VB_SortQByColDbl(row.data(), 1, 3, 1, 3, key.data(), twoRows.data(), 2, 0, 0);
    EXPECT_EQ(valuesOf(twoRows), (doubles{5, 8, 4, 7, 6, 9}));
    EXPECT_TRUE(memory.guardsIntact());
}

TEST(FlatSort, EqualKeysKeepTheirRowsInBothDirections)
{
    for (const short int descending : shorts{0, -1}) {
        guarded<double> x{1, 2, 3};
        guarded<double> key{1, 1, 1};
        guarded<double> aux{4, 5, 6};
        VB_SortQDbl(x.data(), 3, 1, 1, 3, key.data(), aux.data(), 1, descending, -1);
        EXPECT_EQ(valuesOf(x), (doubles{1, 2, 3}));
        EXPECT_EQ(valuesOf(aux), (doubles{4, 5, 6}));
    }
}

TEST(FlatSort, OneRowStaysInPlace)
{
    guarded<double> x{2, 1};
    guarded<double> key{2, 1};
    guarded<double> aux{2, 1};
    VB_SortQDbl(x.data(), 2, 1, 2, 2, key.data(), aux.data(), 1, 0, -1);
    EXPECT_EQ(valuesOf(x), (doubles{2, 1}));
    EXPECT_EQ(valuesOf(key), (doubles{2, 1}));
}

TEST(FlatSort, ACopiedTableWhoseKeyIsItsOwnFirstColumnMovesWhole)
{
    guarded<double> x{3, 1, 2, 30, 10, 20};
    guarded<double> aux{0, 0, 0};
    VB_SortQDbl(x.data(), 3, 2, 1, 3, x.data(), aux.data(), 1, 0, 0);
    EXPECT_EQ(valuesOf(x), (doubles{1, 2, 3, 10, 20, 30}));
}

TEST(FlatSort, ColumnsByAKey)
{
    guarded<double> x{1, 10, 2, 20, 3, 30};
    guarded<double> key{3, 2, 1};
    guarded<double> aux{4, 5, 6};
    EXPECT_EQ(VB_SortQByColDbl(x.data(), 2, 3, 1, 3, key.data(), aux.data(), 1, 0, -1), 0);
    EXPECT_EQ(valuesOf(x), (doubles{3, 30, 2, 20, 1, 10}));
    EXPECT_EQ(valuesOf(key), (doubles{1, 2, 3}));
    EXPECT_EQ(valuesOf(aux), (doubles{6, 5, 4}));

    guarded<double> row{1, 2, 3};
    VB_SortQByColDbl(row.data(), 0, 3, 1, 3, key.data(), aux.data(), 0, -1, 0);
    EXPECT_EQ(valuesOf(row), (doubles{3, 2, 1}));
}

TEST(FlatSort, TablesOfIntegersFlagsAndTexts)
{
    guarded<int> integers{1, 2, 3};
    guarded<int> integerKey{3, 1, 2};
    guarded<int> integerAux{4, 5, 6};
    EXPECT_EQ(VB_SortQLng(integers.data(), 3, 1, 1, 3, integerKey.data(), integerAux.data(), 1, 0, -1), 0);
    EXPECT_EQ(valuesOf(integers), (ints{2, 3, 1}));
    EXPECT_EQ(valuesOf(integerKey), (ints{1, 2, 3}));
    EXPECT_EQ(valuesOf(integerAux), (ints{5, 6, 4}));

    guarded<short int> booleans{-1, 0, 0};
    guarded<double> key{3, 1, 2};
    guarded<short int> booleanAux{0, -1, 0};
    EXPECT_EQ(VB_SortQBool(booleans.data(), 3, 1, 1, 3, key.data(), booleanAux.data(), 1, 0, 0), 0);
    EXPECT_EQ(valuesOf(booleans), (shorts{0, 0, -1}));
    EXPECT_EQ(valuesOf(booleanAux), (shorts{-1, 0, 0}));

    caller_memory memory;
    SAFEARRAY* labels = memory.texts({u"a", u"b", u"c"});
    SAFEARRAY* others = memory.texts({u"x", u"y", u"z"});
    EXPECT_EQ(VB_SortQStr(blockOf(labels), 3, 1, 1, 3, key.data(), blockOf(others), 1, 0, -1), 0);
    EXPECT_EQ(textsIn(labels), (texts{u"b", u"c", u"a"}));
    EXPECT_EQ(textsIn(others), (texts{u"y", u"z", u"x"}));
    EXPECT_EQ(valuesOf(key), (doubles{1, 2, 3}));
    EXPECT_TRUE(memory.guardsIntact());
}

TEST(FlatSort, RecordsOfColumns)
{
    caller_memory memory;
    ST_MVect numbers =
        memory.table({memory.column(u"p", doubles{1, 2, 3}), memory.column(u"q", doubles{10, 20, 30}),
                      memory.column(u"short", doubles{5, 4})},
                     {u"p", u"q", u"short"});
    guarded<double> key{3, 1, 2};
    guarded<double> aux{7, 8, 9};
    EXPECT_EQ(Cpp_SortQDbl_ST(&numbers, 3, 3, 1, 3, key.data(), aux.data(), 1, 0, -1), 0);
    EXPECT_EQ(numbersIn<double>(columnOf(numbers, 0).Vect), (doubles{2, 3, 1}));
    EXPECT_EQ(numbersIn<double>(columnOf(numbers, 1).Vect), (doubles{20, 30, 10}));
    EXPECT_EQ(numbersIn<double>(columnOf(numbers, 2).Vect), (doubles{5, 4}));
    EXPECT_EQ(valuesOf(key), (doubles{1, 2, 3}));
    EXPECT_EQ(valuesOf(aux), (doubles{8, 9, 7}));

    ST_MVect labels = memory.table({memory.column(u"p", texts{u"a", u"b"})}, {u"p"});
    SAFEARRAY* others = memory.texts({u"x", u"y"});
    guarded<double> order{2, 1};
    EXPECT_EQ(Cpp_SortQStr_ST(&labels, 2, 1, 1, 2, order.data(), blockOf(others), 1, 0, 0), 0);
    EXPECT_EQ(textsIn(columnOf(labels, 0).Vect), (texts{u"b", u"a"}));
    EXPECT_EQ(textsIn(others), (texts{u"y", u"x"}));

    SAFEARRAY* integers = memory.array({2, 2}, ints{1, 2, 3, 4});
    guarded<int> integerKey{5, 4};
    guarded<int> integerAux{8, 9};
    EXPECT_EQ(Cpp_SortQLng_ST(&integers, 2, 2, 1, 2, integerKey.data(), integerAux.data(), 1, 0, -1), 0);
    const auto* cells = static_cast<const int*>(integers->pvData);
    EXPECT_EQ(ints(cells, cells + 4), (ints{2, 1, 4, 3}));
    EXPECT_EQ(valuesOf(integerKey), (ints{4, 5}));
    EXPECT_EQ(valuesOf(integerAux), (ints{9, 8}));
    EXPECT_TRUE(memory.guardsIntact());
}

TEST(FlatSort, RowsByAnIndicator)
{
    guarded<double> x{1, 2, 3, 4};
    guarded<double> key{1, 0, 1, 0};
    EXPECT_EQ(VB_SortDataBy01(x.data(), 4, 0, key.data()), 0);
    EXPECT_EQ(valuesOf(x), (doubles{2, 4, 1, 3}));
    EXPECT_EQ(valuesOf(key), (doubles{0, 0, 1, 1}));

    guarded<short int> booleans{0, -1};
    guarded<double> booleanKey{1, 0};
    EXPECT_EQ(VB_SortDataBy01Bool(booleans.data(), 2, 1, booleanKey.data()), 0);
    EXPECT_EQ(valuesOf(booleans), (shorts{-1, 0}));
    EXPECT_EQ(valuesOf(booleanKey), (doubles{0, 1}));

    caller_memory memory;
    SAFEARRAY* labels = memory.texts({u"a", u"b", u"c", u"d"});
    guarded<double> labelKey{1, 0, 1, 0};
    EXPECT_EQ(VB_SortDataBy01Str(blockOf(labels), 4, 1, labelKey.data()), 0);
    EXPECT_EQ(textsIn(labels), (texts{u"b", u"d", u"a", u"c"}));
    EXPECT_EQ(valuesOf(labelKey), (doubles{0, 0, 1, 1}));
}
