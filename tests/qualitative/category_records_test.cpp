#include "qualitative/category_records.h"

#include "reference/categories.h"
#include "support/near_tables.h"
#include "support/text_tables.h"

#include <gtest/gtest.h>

using namespace korvel::test;

namespace
{

using texts = std::vector<text>;
using doubles = std::vector<double>;

/** A labelled table of texts, and statistics with room for some categories of each column. */
struct labelled {
    cST_MVect<text> data;
    cST_QualiInfo info;

    labelled(int rows, int cols, int room) : data(rows, cols)
    {
        for (int j = 0; j < cols; ++j) {
            data.CLabels[j] = u"v" + text(1, static_cast<char16_t>(u'1' + j));
        }
        info.NbCat = new matrix<int>(cols, 1);
        info.VarLabels = new matrix<text>(cols, 1, text());
        info.CatNames = new cST_MVect<text>(room, cols);
        info.CatFreq = new cST_MVect<double>(room, cols);
        info.CatFreqW = new cST_MVect<double>(room, cols);
        info.Codes = new matrix<double>(rows, cols, 77.0);
    }

    labelled(int room, const std::vector<texts>& columns)
        : labelled(static_cast<int>(columns.front().size()), static_cast<int>(columns.size()), room)
    {
        for (std::size_t j = 0; j < columns.size(); ++j) {
            std::copy(columns[j].begin(), columns[j].end(), data.Vectors[j].Vect.data);
        }
    }

    void run(const doubles& weights) { M_InfoQuali_ST(data, vectorOf(weights), info); }

    [[nodiscard]] texts names(std::size_t j = 0) const
    {
        texts all = textsOf(info.CatNames->Vectors[j].Vect);
        all.resize(static_cast<std::size_t>(info.NbCat->data[j]));
        return all;
    }
    [[nodiscard]] static doubles slots(const cST_MVect<double>& record, std::size_t j = 0)
    {
        const matrix<double>& vector = record.Vectors[j].Vect;
        return {vector.data, vector.data + vector.nbElem};
    }
    [[nodiscard]] doubles codes() const { return {info.Codes->data, info.Codes->data + info.Codes->nbElem}; }
};

} // namespace

TEST(CategoryRecords, CountRowsAndWeights)
{
    labelled x(3, {{u"b", u"", u"a", u"b"}, {u"q", u"r", u"q", u"q"}});
    x.info.NbCatTotal = 99;
    x.run({0.5, 8, 2, MISSING_DBL});
    EXPECT_EQ(x.names(0), (texts{u"b", u"a"}));
    EXPECT_EQ(x.names(1), (texts{u"q", u"r"}));
    EXPECT_EQ(labelled::slots(*x.info.CatFreq, 0), (doubles{2, 1, 0}));
    EXPECT_EQ(labelled::slots(*x.info.CatFreqW, 0), (doubles{0.5 + MISSING_DBL, 2, 0}));
    EXPECT_EQ(labelled::slots(*x.info.CatFreq, 1), (doubles{3, 1, 0}));
    EXPECT_EQ(textsOf(*x.info.VarLabels), (texts{u"v1", u"v2"}));
    EXPECT_EQ(x.info.Count, 2);
    EXPECT_EQ(x.info.NbCatTotal, 4);
    EXPECT_EQ(x.info.FreqMax, 3.0);
    EXPECT_EQ(x.info.SumW, 10.5) << "without the weight that is missing";
    EXPECT_EQ(x.codes(), doubles(8, 77.0)) << "without the flag no cell is coded";
}

TEST(CategoryRecords, KeepALargerFrequencyOfBefore)
{
    labelled x(3, {{u"b", u"a", u"b"}});
    x.info.FreqMax = 5.0;
    x.run({1, 1, 1});
    EXPECT_EQ(x.info.FreqMax, 5.0);
}

TEST(CategoryRecords, MayLeaveTheWeightsUnread)
{
    labelled x(3, {{u"b", u"a", u"b"}});
    x.info.noWeights = -1;
    M_InfoQuali_ST(x.data, matrix<double>(3, 1, nullptr, true), x.info);
    EXPECT_EQ(labelled::slots(*x.info.CatFreqW), (doubles{2, 1, 0}));
    EXPECT_EQ(x.info.SumW, 3.0);
    x.info.noWeights = 1;
    x.run({5, 5, 5});
    EXPECT_EQ(labelled::slots(*x.info.CatFreqW), (doubles{10, 5, 0})) << "only -1 sets the flag";
    EXPECT_EQ(x.info.SumW, 15.0);
}

TEST(CategoryRecords, CodeCellsFromACodeOn)
{
    labelled x(3, {{u"", u"b", u"", u"a", u"b"}});
    x.info.withRecode = -1;
    x.info.codeStart = 5;
    x.run(doubles(5, 1.0));
    EXPECT_EQ(x.codes(), (doubles{MISSING_DBL, 5, MISSING_DBL, 6, 5}));
    x.info.withRecode = 1;
    x.info.codeStart = 0;
    x.run(doubles(5, 1.0));
    EXPECT_EQ(x.codes()[1], 5.0) << "only -1 sets the flag";
}

TEST(CategoryRecords, CodesFollowSortedCategories)
{
    labelled x(4, {{u"10", u"9", u"", u"1,5", u"9"}, {u"b", u"a", u"b", u"", u"c"}});
    x.info.withRecode = -1;
    x.info.withSort = -1;
    x.info.codeStart = 1;
    x.run({1, 2, 4, 8, 16});
    EXPECT_EQ(x.names(0), (texts{u"1,5", u"9", u"10"}));
    EXPECT_EQ(labelled::slots(*x.info.CatFreq, 0), (doubles{1, 2, 1, 0}));
    EXPECT_EQ(labelled::slots(*x.info.CatFreqW, 0), (doubles{8, 18, 1, 0}));
    EXPECT_EQ(x.names(1), (texts{u"a", u"b", u"c"}));
    EXPECT_EQ(x.codes(), (doubles{3, 2, MISSING_DBL, 1, 2, 2, 1, 2, MISSING_DBL, 3}));
}

TEST(CategoryRecords, LongLabelsMakeEachRowACategory)
{
    labelled x(5, {{u"b", u"", u"b", u"a", u"b"}});
    x.info.withLongLabels = -1;
    x.info.withRecode = -1;
    x.info.codeStart = 1;
    x.run(doubles(5, 1.0));
    EXPECT_EQ(x.names(), (texts{u"v1-b", u"v1-b", u"v1-a", u"v1-b"}));
    EXPECT_EQ(labelled::slots(*x.info.CatFreq), (doubles{1, 1, 1, 1, 0}));
    EXPECT_EQ(x.codes(), (doubles{1, MISSING_DBL, 2, 3, 4}));
    EXPECT_EQ(x.info.NbCatTotal, 4);

    // A text that is such a name itself is found, the newest first.
    labelled y(5, {{u"b", u"b", u"v1-b"}});
    y.info.withLongLabels = -1;
    y.run(doubles(3, 1.0));
    EXPECT_EQ(labelled::slots(*y.info.CatFreq), (doubles{1, 2, 0, 0, 0}));
}

TEST(CategoryRecords, SortOrTakeLongLabelsOnlyWhenTheFlagIsMinusOne)
{
    labelled x(3, {{u"b", u"a", u"b"}});
    x.info.withRecode = -1;
    x.info.withSort = 1;
    x.info.withLongLabels = 1;
    x.run(doubles(3, 1.0));
    EXPECT_EQ(x.names(), (texts{u"b", u"a"}));
    EXPECT_EQ(labelled::slots(*x.info.CatFreq), (doubles{2, 1, 0}));
    EXPECT_EQ(x.codes(), (doubles{0, 1, 0}));
}

TEST(CategoryRecords, SortLongLabelsAsTheyStand)
{
    labelled x(5, {{u"10", u"9", u"", u"9"}});
    x.info.withLongLabels = -1;
    x.info.withRecode = -1;
    x.info.withSort = -1;
    x.info.codeStart = 1;
    x.run({1, 2, 4, 8});
    EXPECT_EQ(x.names(), (texts{u"v1-10", u"v1-9", u"v1-9"})) << "no number begins with the label";
    EXPECT_EQ(labelled::slots(*x.info.CatFreqW), (doubles{1, 2, 8, 0, 0}));
    EXPECT_EQ(x.codes(), (doubles{1, 2, MISSING_DBL, 3}));

    labelled y(5, {{u"b", u"a"}, {u"b", u"a"}});
    y.data.CLabels[0] = u"7";
    y.info.withLongLabels = -1;
    y.info.withRecode = -1;
    y.info.withSort = -1;
    y.run({1, 2});
    EXPECT_EQ(y.names(0), (texts{u"7-b", u"7-a"})) << "both are the number of the label";
    EXPECT_EQ(y.names(1), (texts{u"v2-a", u"v2-b"}));
    EXPECT_EQ(y.codes(), (doubles{0, 1, 1, 0}));
}

TEST(CategoryRecords, OfAnEmptyColumnAreOneCategoryWhoseSlotStays)
{
    labelled x(2, {{u"", u""}, {u"a", u"a"}});
    x.info.CatNames->Vectors[0].Vect[0] = u"old";
    x.info.withRecode = -1;
    x.info.withSort = -1;
    x.run({1, 1});
    EXPECT_EQ(x.info.NbCat->data[0], 1);
    EXPECT_EQ(x.info.NbCatTotal, 2);
    EXPECT_EQ(x.names(0), texts{u"old"});
    EXPECT_EQ(x.codes(), (doubles{MISSING_DBL, MISSING_DBL, 0, 0}));
}

TEST(CategoryRecords, ReadShorterColumnsAsEmptyBelowTheirEnd)
{
    labelled x(3, {{u"a", u"b", u"a"}, {u"x", u"", u""}});
    x.data.Vectors[1].Vect.Redim(1, 1, u"x");
    x.info.withRecode = -1;
    x.run({1, 2, 4});
    EXPECT_EQ(x.codes(), (doubles{0, 1, 0, 0, MISSING_DBL, MISSING_DBL}));
    EXPECT_EQ(labelled::slots(*x.info.CatFreqW, 1), (doubles{1, 0, 0}));
}

TEST(CategoryRecords, DoNotReachBeyondTheirArrays)
{
    labelled x(1, {{u"a", u"b", u"c", u"a"}, {u"x", u"y", u"x", u"x"}});
    x.data.nbcols = 3;
    x.info.withRecode = -1;
    x.info.withSort = -1;
    x.info.Codes->Redim(2, 1, 77.0);
    x.run({1, 1});
    EXPECT_EQ(x.info.NbCat->data[0], 3);
    EXPECT_EQ(x.info.CatNames->Vectors[0].Vect.nbElem, 1u);
    EXPECT_EQ(x.info.Count, 3);

    labelled y(1, {{u"a", u"b", u"b", u"a"}});
    y.info.withRecode = -1;
    y.run(doubles(4, 1.0));
    EXPECT_EQ(y.names().front(), u"a");
    EXPECT_EQ(y.codes(), (doubles{0, 1, 1, 0})) << "the spare slot holds the newest category";
}

TEST(CategoryRecords, AreThoseOfThePlainSearch)
{
    for (std::uint64_t seed = 1; seed <= 200; ++seed) {
        SCOPED_TRACE(seed);
        random_cells cells(seed, seed % 2 == 0 ? odd_cells::none : odd_cells::all);
        const int n = cells.integer(1, 40);
        const int p = cells.integer(1, 3);
        const matrix<text> data = randomTexts(cells, n, p, cells.integer(1, 40));
        labelled x(n, p, n + 1);
        for (int j = 0; j < p; ++j) {
            std::copy_n(data.data + n * j, n, x.data.Vectors[static_cast<std::size_t>(j)].Vect.data);
        }
        x.info.withSort = seed % 3 == 0 ? short{0} : short{-1};
        x.info.withRecode = -1;
        x.info.codeStart = cells.integer(-3, 3);
        const matrix<double> weights = cells.weights(n);
        M_InfoQuali_ST(x.data, weights, x.info);

        matrix<text> names(p, n + 1, text());
        matrix<double> rows(p, n + 1, 0.0);
        matrix<double> sums(p, n + 1, 0.0);
        const matrix<double> ones(n, 1, 1.0);
        std::vector<int> counts;
        double most = 0.0;
        for (int j = 0; j < p; ++j) {
            counts.push_back(korvel::reference::countVariable(data, n, j, names, {&rows, &ones},
                                                              std::pair{&sums, &weights}));
            most = std::max(most, rows.getElement(j, korvel::reference::modeOf(rows, j, counts.back())));
        }
        EXPECT_EQ(x.info.FreqMax, most);
        if (x.info.withSort == -1) {
            korvel::reference::sortSlots(counts, names, rows, sums);
        }
        for (int j = 0; j < p; ++j) {
            const auto at = static_cast<std::size_t>(j);
            EXPECT_EQ((*x.info.NbCat)[j], counts[at]);
            EXPECT_EQ(textsOf(x.info.CatNames->Vectors[at].Vect), rowOf(names, j));
            for (int k = 0; k <= n; ++k) {
                EXPECT_SAME_BITS(x.info.CatFreq->Vectors[at].Vect[k], rows.getElement(j, k));
                EXPECT_SAME_BITS(x.info.CatFreqW->Vectors[at].Vect[k], sums.getElement(j, k));
            }
            for (int i = 0; i < n; ++i) {
                // A code names the category whose text the cell has.
                const double code = x.info.Codes->getElement(i, j);
                const text cell = data.getElement(i, j);
                if (cell.empty()) {
                    EXPECT_SAME_BITS(code, MISSING_DBL);
                } else {
                    EXPECT_EQ(names.getElement(j, static_cast<int>(code) - x.info.codeStart), cell);
                }
            }
        }
        if (HasFailure()) {
            return;
        }
    }
}
