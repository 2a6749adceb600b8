#include "containers/records.h"
#include "support/caller_memory.h"

#include <gtest/gtest.h>

using namespace korvel::test;

namespace
{

using numbers = std::vector<double>;

std::string jsonOf(JsonMakerBase& object)
{
    JsonMaker maker;
    object.writeJson(maker, "");
    std::string json = maker.written();
    maker.dispose();
    return json;
}

} // namespace

TEST(RecordJson, OfAColumn)
{
    caller_memory caller;
    ST_Vect record = caller.column(u"weight", numbers{1.0, -2.5, 1e300});
    cST_Vect<double> column(&record);
    EXPECT_EQ(jsonOf(column), R"({
    "Label": "weight",
    "Count": 3,
    "Vect": [1.0, -2.5, 1e300]
})");
}

TEST(RecordJson, OfFlagsPrintsIntegers)
{
    caller_memory caller;
    ST_Vect record = caller.column(u"kept", std::vector<short int>{-1, 0, -1});
    cST_Vect<short int> column(&record);
    EXPECT_EQ(jsonOf(column), R"({
    "Label": "kept",
    "Count": 3,
    "Vect": [-1, 0, -1]
})");
}

TEST(RecordJson, OfAColumnOfSeveralColumnsNestsArrays)
{
    cST_Vect<int> column;
    column.Count = 2;
    column.Vect = matrix<int>(2, 2, 7);
    column.Vect[1] = -3;
    column.Vect[2] = MISSING_LNG;
    EXPECT_EQ(jsonOf(column), R"({
    "Label": "",
    "Count": 2,
    "Vect": [[7, -3], [-2147483648, 7]]
})");
}

TEST(RecordJson, OfAColumnWithoutDataKeepsLabelAndCount)
{
    caller_memory caller;
    ST_Vect record = caller.column(u"empty", texts{});
    record.Count = 4;
    const std::string expected = R"({
    "Label": "empty",
    "Count": 4
})";
    cST_Vect<text> column(&record);
    EXPECT_EQ(jsonOf(column), expected);

    // A column whose array has elements but no block.
    cST_Vect<text> other(&record);
    other.Vect.nbElem = 3;
    other.Vect.nbrows = 3;
    delete[] std::exchange(other.Vect.data, nullptr);
    EXPECT_EQ(jsonOf(other), expected);
}

TEST(RecordJson, OfALabelEndsAtItsFirstNul)
{
    caller_memory caller;
    using namespace std::string_literals;
    ST_Vect record = caller.column(u"ab\0cd"s, numbers{});
    cST_Vect<double> column(&record);
    EXPECT_EQ(jsonOf(column), R"({
    "Label": "ab",
    "Count": 0
})");
}

TEST(RecordJson, OfATable)
{
    caller_memory caller;
    ST_MVect record = caller.table({caller.column(u"x", numbers{1.0, 2.0}), caller.column(u"", numbers{0.1})},
                                   {u"first", u""});
    cST_MVect<double> table(&record);
    EXPECT_EQ(jsonOf(table), R"({
    "CLabels": ["first", ""],
    "Vectors": [{
            "Label": "x",
            "Count": 2,
            "Vect": [1.0, 2.0]
        }, {
            "Label": "",
            "Count": 1,
            "Vect": [0.1]
        }],
    "nbcols": 2,
    "nbrowsmax": 2,
    "samenbrows": 0,
    "nbrows": [2, 1],
    "bTriangular": false
})");
}

TEST(RecordJson, OfAnEmptyTableHasScalarsAlone)
{
    cST_MVect<text> table;
    EXPECT_EQ(jsonOf(table), R"({
    "nbcols": 0,
    "nbrowsmax": 0,
    "samenbrows": 0,
    "bTriangular": false
})");
    table.samenbrows = -1;
    table.bTriangular = true;
    EXPECT_EQ(jsonOf(table), R"({
    "nbcols": 0,
    "nbrowsmax": 0,
    "samenbrows": -1,
    "bTriangular": true
})");
}

TEST(RecordJson, OfCategoriesWithoutPartsHasScalarsAlone)
{
    cST_QualiInfo info;
    EXPECT_EQ(jsonOf(info), R"({
    "Count": 0,
    "SumW": 0.0,
    "MaxNbCat": 0,
    "NbCatTotal": 0,
    "FreqMax": 0.0,
    "IgnoreNewCategoryInPred": 0,
    "withRecode": 0,
    "codeStart": 0,
    "nCodes": 0,
    "withSort": 0,
    "noWeights": 0,
    "withLongLabels": 0,
    "CheckType": -1
})");
}

TEST(RecordJson, OfCategories)
{
    cST_QualiInfo info;
    info.Count = 1;
    info.SumW = 3.5;
    info.MaxNbCat = 2;
    info.NbCatTotal = 3;
    info.FreqMax = MISSING_DBL;
    info.NbCat = new matrix<int>(2, 1, 4);
    info.VarLabels = new matrix<text>(1, 2, u"v");
    info.CatNames = new cST_MVect<text>(1, 1);
    info.CatFreq = new cST_MVect<double>;
    info.CatFreqW = new cST_MVect<double>;
    info.IgnoreNewCategoryInPred = -1;
    info.withRecode = 5;
    info.codeStart = 6;
    info.Codes = new matrix<double>(1, 2, 0.25);
    info.nCodes = 7;
    info.withSort = 8;
    info.noWeights = 9;
    info.withLongLabels = 10;
    info.CheckType = 11;
    const std::string empty = R"({
        "nbcols": 0,
        "nbrowsmax": 0,
        "samenbrows": 0,
        "bTriangular": false
    })";
    EXPECT_EQ(jsonOf(info), R"({
    "Count": 1,
    "SumW": 3.5,
    "MaxNbCat": 2,
    "NbCatTotal": 3,
    "FreqMax": -1.79769313486231e308,
    "NbCat": [4, 4],
    "VarLabels": [["v"], ["v"]],
    "CatNames": {
        "CLabels": [""],
        "Vectors": [{
                "Label": "",
                "Count": 1,
                "Vect": [""]
            }],
        "nbcols": 1,
        "nbrowsmax": 1,
        "samenbrows": -1,
        "nbrows": [1],
        "bTriangular": false
    },
    "CatFreq": )" + empty + R"(,
    "CatFreqW": )" + empty + R"(,
    "IgnoreNewCategoryInPred": -1,
    "withRecode": 5,
    "codeStart": 6,
    "Codes": [[0.25], [0.25]],
    "nCodes": 7,
    "withSort": 8,
    "noWeights": 9,
    "withLongLabels": 10,
    "CheckType": 11
})");
}

TEST(RecordJson, DropsAPartWithoutElementsWithItsKey)
{
    cST_QualiInfo info;
    info.NbCat = new matrix<int>;
    info.Codes = new matrix<double>(0, 3, 1.0);
    const std::string json = jsonOf(info);
    EXPECT_EQ(json.find("\"NbCat\""), std::string::npos);
    EXPECT_EQ(json.find("\"Codes\""), std::string::npos);
}

TEST(RecordJson, StandsUnderAKeyInTheCallersObject)
{
    cST_MVect<int> table;
    JsonMaker maker;
    maker.startObject("");
    table.writeJson(maker, "table");
    maker.write("after", 1);
    maker.endObject();
    EXPECT_EQ(maker.written(), R"({
    "table": {
        "nbcols": 0,
        "nbrowsmax": 0,
        "samenbrows": 0,
        "bTriangular": false
    },
    "after": 1
})");
    maker.dispose();
}
