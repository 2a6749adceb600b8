#include "qualitative/category_validation.h"

#include "reference/categories.h"
#include "support/near_tables.h"
#include "support/text_tables.h"

#include <gtest/gtest.h>

using namespace korvel::test;

namespace
{

using doubles = std::vector<double>;

/** Statistics with one variable for each list of names. */
void setNames(cST_QualiInfo& info, const std::vector<std::vector<text>>& names)
{
    const int p = static_cast<int>(names.size());
    info.NbCat = new matrix<int>(p, 1);
    info.CatNames = new cST_MVect<text>(4, p);
    info.CatFreq = new cST_MVect<double>(4, p);
    info.CatFreqW = new cST_MVect<double>(4, p);
    for (std::size_t j = 0; j < names.size(); ++j) {
        info.NbCat->data[j] = static_cast<int>(names[j].size());
        std::copy(names[j].begin(), names[j].end(), info.CatNames->Vectors[j].Vect.data);
        std::fill_n(info.CatFreq->Vectors[j].Vect.data, 4, 77.0);
        std::fill_n(info.CatFreqW->Vectors[j].Vect.data, 4, 77.0);
    }
}

cST_MVect<text> textRecord(int rows, const std::vector<text>& cells)
{
    const int cols = static_cast<int>(cells.size()) / rows;
    cST_MVect<text> record(rows, cols);
    for (std::size_t k = 0; k < cells.size(); ++k) {
        record.Vectors[k / static_cast<std::size_t>(rows)].Vect.data[k % static_cast<std::size_t>(rows)] =
            cells[k];
    }
    return record;
}

doubles column(const cST_MVect<double>& record, int j)
{
    const matrix<double>& vector = record.Vectors[static_cast<std::size_t>(j)].Vect;
    return {vector.data, vector.data + vector.nbElem};
}

} // namespace

TEST(CategoryValidation, AddsWeightsToKnownCategories)
{
    matrix<text> data = textTable(3, {u"b", u"", u"b", u"x", u"y", u"x"});
    matrix<text> names(2, 2, text());
    names.setElement(0, 0, u"a");
    names.setElement(0, 1, u"b");
    names.setElement(1, 0, u"x");
    names.setElement(1, 1, u"y");
    matrix<int> known(2, 1, 2);
    matrix<double> counts(2, 2, 77.0);
    matrix<double> weights = vectorOf(doubles{1, 2, 4});
    short int flag = 5;
    M_InfoQualiValid(&data, 3, 2, 2, &known, &names, &counts, &flag, &weights);
    EXPECT_EQ(flag, 0);
    EXPECT_EQ(rowOf(counts, 0), (doubles{0, 5}));
    EXPECT_EQ(rowOf(counts, 1), (doubles{5, 2}));
    M_InfoQualiValid(&data, 3, 2, 2, &known, &names, &counts, &flag, nullptr);
    EXPECT_EQ(rowOf(counts, 0), (doubles{0, 2})) << "without weights all are 1";
    EXPECT_EQ(rowOf(counts, 1), (doubles{2, 1}));
}

TEST(CategoryValidation, EndsAtAnUnknownCategory)
{
    matrix<text> data = textTable(3, {u"a", u"A", u"a", u"a", u"a", u"a"});
    matrix<text> names(2, 1, u"a");
    matrix<int> known(2, 1, 1);
    matrix<double> counts(2, 1, 77.0);
    matrix<double> weights(3, 1, 1.0);
    short int flag = 0;
    M_InfoQualiValid(&data, 3, 2, 1, &known, &names, &counts, &flag, &weights);
    EXPECT_EQ(flag, -1);
    EXPECT_EQ(rowOf(counts, 0), doubles{1}) << "the rows before it";
    EXPECT_EQ(rowOf(counts, 1), doubles{0}) << "the next variable was not begun";
}

TEST(CategoryValidation, OfEqualNamesTakesTheLastThatIsKnown)
{
    matrix<text> data = textVector({u"a", u"a"});
    matrix<text> names(1, 4, u"a");
    matrix<int> known(1, 1, 3);
    matrix<double> counts(1, 4, 77.0);
    matrix<double> weights(2, 1, 1.0);
    short int flag = 0;
    M_InfoQualiValid(&data, 2, 1, 4, &known, &names, &counts, &flag, &weights);
    EXPECT_EQ(rowOf(counts, 0), (doubles{0, 0, 2, 0}));
}

TEST(CategoryValidation, OfOneVariableLeavesTheOthersAlone)
{
    const matrix<text> column = textVector({u"x", u"y", u"x"});
    matrix<text> names(3, 2, u"x");
    names.setElement(1, 1, u"y");
    matrix<double> counts(3, 2, 77.0);
    matrix<double> weights = vectorOf(doubles{1, 2, 4});
    short int flag = 5;
    M_InfoQualiValid(column, 3, 2, 2, names, counts, &flag, weights);
    EXPECT_EQ(flag, 0);
    EXPECT_EQ(rowOf(counts, 0), (doubles{77, 77}));
    EXPECT_EQ(rowOf(counts, 1), (doubles{5, 2}));
    EXPECT_EQ(rowOf(counts, 2), (doubles{77, 77}));
    M_InfoQualiValid(column, 3, 2, 1, names, counts, &flag, weights);
    EXPECT_EQ(flag, -1);
    EXPECT_EQ(rowOf(counts, 1), (doubles{1, 0}));
}

TEST(CategoryValidation, OfRecordsCountsRowsAndWeights)
{
    auto data = textRecord(3, {u"b", u"a", u"b", u"", u"x", u"x"});
    cST_QualiInfo known, result;
    setNames(known, {{u"a", u"b"}, {u"x"}});
    setNames(result, {{}, {}});
    matrix<double> weights = vectorOf(doubles{0.5, 2, 4});
    short int flag = 5;
    M_InfoQualiValid_ST(data, 3, 2, known, result, &flag, weights);
    EXPECT_EQ(flag, 0);
    EXPECT_EQ(column(*result.CatFreq, 0), (doubles{1, 2, 0, 0}));
    EXPECT_EQ(column(*result.CatFreqW, 0), (doubles{2, 4.5, 0, 0}));
    EXPECT_EQ(column(*result.CatFreq, 1), (doubles{2, 0, 0, 0}));
    EXPECT_EQ(column(*result.CatFreqW, 1), (doubles{6, 0, 0, 0}));
    EXPECT_EQ(column(*known.CatFreq, 0), (doubles{77, 77, 77, 77}));
    data.Vectors[1].Vect[0] = u"unknown";
    cST_QualiInfo ofFirst;
    setNames(ofFirst, {{}, {}});
    M_InfoQualiValid_ST(data, 3, 1, known, ofFirst, &flag, weights);
    EXPECT_EQ(flag, 0) << "the second variable is not looked at";
    EXPECT_EQ(column(*ofFirst.CatFreq, 0), (doubles{1, 2, 0, 0}));
    EXPECT_EQ(column(*ofFirst.CatFreq, 1), (doubles{77, 77, 77, 77}));
}

TEST(CategoryValidation, OfRecordsMayPassUnknownCategoriesOver)
{
    auto data = textRecord(3, {u"a", u"new", u"a"});
    cST_QualiInfo known, result;
    setNames(known, {{u"a"}});
    setNames(result, {{}});
    matrix<double> weights(3, 1, 1.0);
    short int flag = 5;
    known.IgnoreNewCategoryInPred = -1;
    M_InfoQualiValid_ST(data, 3, 1, known, result, &flag, weights);
    EXPECT_EQ(flag, -1) << "what the reference says of it does not count";
    EXPECT_EQ(column(*result.CatFreq, 0)[0], 1.0);
    for (const short int ignore : {short{-1}, short{1}}) {
        result.IgnoreNewCategoryInPred = ignore;
        M_InfoQualiValid_ST(data, 3, 1, known, result, &flag, weights);
        EXPECT_EQ(flag, 0);
        EXPECT_EQ(column(*result.CatFreq, 0)[0], 2.0);
    }
}

TEST(CategoryValidation, OfOneVariableInSeveralColumns)
{
    auto data = textRecord(2, {u"a", u"b", u"b", u"", u"b", u"a"});
    cST_QualiInfo known, result;
    setNames(known, {{u"q"}, {u"a", u"b"}});
    setNames(result, {{}, {}});
    cST_Vect<int> counts;
    counts.Vect.Redim(2, 1, 2);
    matrix<double> first = vectorOf(doubles{1, 2});
    matrix<double> second = vectorOf(doubles{10, 20});
    short int flag = 5;
    M_InfoQualiValid_Plus_ST(2, data, 2, 3, 3, counts, known, result, first, second, &flag);
    EXPECT_EQ(flag, 0);
    EXPECT_EQ(column(*result.CatFreq, 0), (doubles{77, 77, 77, 77})) << "another variable";
    EXPECT_EQ(column(*result.CatFreq, 1), (doubles{3, 4, 0, 77})) << "three slots are cleared";
    EXPECT_EQ(column(*result.CatFreqW, 1), (doubles{30, 40, 0, 77}));
    data.Vectors[2].Vect[0] = u"unknown";
    M_InfoQualiValid_Plus_ST(2, data, 2, 2, 3, counts, known, result, first, second, &flag);
    EXPECT_EQ(flag, 0) << "the third column is not looked at";
    EXPECT_EQ(column(*result.CatFreq, 1), (doubles{1, 3, 0, 77}));
    data.Vectors[2].Vect[0] = u"b";

    counts.Vect[1] = 1;
    M_InfoQualiValid_Plus_ST(2, data, 2, 3, 3, counts, known, result, first, second, &flag);
    EXPECT_EQ(flag, -1) << "only so many are known as the counts say";
    EXPECT_EQ(column(*result.CatFreq, 1), (doubles{1, 0, 0, 77}));
    result.IgnoreNewCategoryInPred = 1;
    M_InfoQualiValid_Plus_ST(2, data, 2, 3, 3, counts, known, result, first, second, &flag);
    EXPECT_EQ(flag, 0);
    EXPECT_EQ(column(*result.CatFreqW, 1), (doubles{30, 0, 0, 77}));
}

// A row behind the last weight weighs what the spare slot of the weights holds.
TEST(CategoryValidation, ReadsTheSpareSlotBehindTheWeights)
{
    matrix<text> data = textVector({u"b", u"a", u"b"});
    matrix<text> names = textTable(1, {u"a", u"b"});
    matrix<int> known(1, 1, 2);
    matrix<double> counts(1, 2, 77.0);
    matrix<double> weights(1, 1, 1.0);
    weights.oobValue = 0.25;
    short int flag = 5;
    M_InfoQualiValid(&data, 3, 1, 2, &known, &names, &counts, &flag, &weights);
    EXPECT_EQ(rowOf(counts, 0), (doubles{0.25, 1.25}));
    M_InfoQualiValid(data, 3, 1, 2, names, counts, &flag, weights);
    EXPECT_EQ(rowOf(counts, 0), (doubles{0.25, 1.25}));

    auto record = textRecord(3, {u"b", u"a", u"b"});
    cST_QualiInfo reference, result;
    setNames(reference, {{u"a", u"b"}});
    setNames(result, {{}});
    M_InfoQualiValid_ST(record, 3, 1, reference, result, &flag, weights);
    EXPECT_EQ(column(*result.CatFreq, 0), (doubles{1, 2, 0, 0}));
    EXPECT_EQ(column(*result.CatFreqW, 0), (doubles{0.25, 1.25, 0, 0}));
    cST_Vect<int> sizes;
    sizes.Vect.Redim(1, 1, 2);
    matrix<double> second(2, 1, 10.0);
    second.oobValue = 100.0;
    M_InfoQualiValid_Plus_ST(1, record, 3, 1, 2, sizes, reference, result, weights, second, &flag);
    EXPECT_EQ(column(*result.CatFreq, 0), (doubles{0.25, 1.25, 0, 0}));
    EXPECT_EQ(column(*result.CatFreqW, 0), (doubles{10, 110, 0, 0}));
}

TEST(CategoryValidation, IsThatOfThePlainSearch)
{
    int unknown = 0;
    for (std::uint64_t seed = 1; seed <= 300; ++seed) {
        SCOPED_TRACE(seed);
        random_cells cells(seed, seed % 2 == 0 ? odd_cells::none : odd_cells::all);
        const int n = cells.integer(0, 20);
        const int p = cells.integer(0, 3);
        const int width = cells.integer(1, 30);
        matrix<text> data = randomTexts(cells, n, p, 5);
        matrix<text> names = randomTexts(cells, p, width, 5);
        matrix<int> known = cells.integers(p, width - 1, width + (cells.integer(0, 5) == 0 ? 2 : 0));
        matrix<double> weights = cells.weights(n);
        matrix<double> counts(p, width, 77.0);
        matrix<double> expected(p, width, 77.0);
        short int flag = 5;
        M_InfoQualiValid(&data, n, p, width, &known, &names, &counts, &flag, &weights);
        EXPECT_EQ(flag, korvel::reference::validate(data, n, p, width, known, names, expected, weights));
        expectSame(counts, expected);
        unknown += flag != 0 ? 1 : 0;
        if (HasFailure()) {
            return;
        }
    }
    EXPECT_GT(unknown, 50);
    EXPECT_LT(unknown, 250);
}
