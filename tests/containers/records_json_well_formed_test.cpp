#include "containers/bstr.h"
#include "containers/records.h"
#include "containers/utf8.h"
#include "support/json_events.h"

#include <bit>
#include <cmath>
#include <gtest/gtest.h>
#include <random>

using namespace korvel::test;

namespace
{

/** Random records of every shape, their JSON text, and the events that a reader must meet in it. */
class random_records
{
public:
    explicit random_records(unsigned seed) : random_(seed) {}

    ~random_records()
    {
        for (BSTR label : labels_) {
            SysFreeString(label);
        }
    }

    random_records(const random_records&) = delete;
    random_records& operator=(const random_records&) = delete;

    int below(int bound) { return static_cast<int>(random_() % static_cast<std::uint64_t>(bound)); }

    template <class T>
    T value()
    {
        if constexpr (korvel::is_text<T>) {
            text made(static_cast<std::size_t>(below(6)), u' ');
            for (char16_t& unit : made) {
                constexpr char16_t bases[] = {0,      0x20,   0x60,   0x7E,   0x7F0,
                                              0xD7F0, 0xD800, 0xDBF0, 0xDC00, 0xFFF0};
                unit = static_cast<char16_t>(below(4) == 0 ? below(0x10000) : bases[below(10)] + below(40));
            }
            return made;
        } else if constexpr (std::same_as<T, double>) {
            constexpr double special[] = {MISSING_DBL, NAN, INFINITY, -INFINITY, 0.0, -0.0, 1.0, 5e-324};
            return below(3) == 0 ? special[below(8)] : std::bit_cast<double>(random_());
        } else {
            return static_cast<T>(random_());
        }
    }

    template <class T>
    matrix<T> table()
    {
        if (below(5) == 0) {
            return matrix<T>();
        }
        matrix<T> made(below(4), below(4), T{});
        std::generate_n(made.data, made.nbElem, [&] { return value<T>(); });
        return made;
    }

    template <class T>
    void fill(cST_MVect<T>& target)
    {
        target.nbcols = value<int>();
        target.nbrowsmax = value<int>();
        target.samenbrows = value<short int>();
        target.bTriangular = below(2) == 0;
        target.CLabels = table<text>();
        target.nbrows = table<int>();
        for (int j = below(4); j > 0; --j) {
            cST_Vect<T>& column = target.Vectors.emplace_back();
            column.Count = value<int>();
            column.Label = below(4) == 0 ? nullptr : label(value<text>());
            column.Vect = table<T>();
        }
    }

    void fill(cST_QualiInfo& target)
    {
        target.Count = value<int>();
        target.SumW = value<double>();
        target.MaxNbCat = value<int>();
        target.NbCatTotal = value<int>();
        target.FreqMax = value<double>();
        if (below(3) != 0) {
            target.NbCat = new matrix<int>(table<int>());
        }
        if (below(3) != 0) {
            target.VarLabels = new matrix<text>(table<text>());
        }
        if (below(3) != 0) {
            fill(*(target.CatNames = new cST_MVect<text>));
        }
        if (below(3) != 0) {
            fill(*(target.CatFreq = new cST_MVect<double>));
        }
        if (below(3) != 0) {
            fill(*(target.CatFreqW = new cST_MVect<double>));
        }
        target.IgnoreNewCategoryInPred = value<short int>();
        target.withRecode = value<short int>();
        target.codeStart = value<int>();
        if (below(3) != 0) {
            target.Codes = new matrix<double>(table<double>());
        }
        target.nCodes = value<int>();
        target.withSort = value<short int>();
        target.noWeights = value<short int>();
        target.withLongLabels = value<short int>();
        target.CheckType = value<int>();
    }

private:
    BSTR label(const text& value)
    {
        const std::basic_string<OLECHAR> units(value.begin(), value.end());
        return labels_.emplace_back(SysAllocStringLen(units.data(), static_cast<UINT>(units.size())));
    }

    std::mt19937_64 random_;
    std::vector<BSTR> labels_;
};

/** Says what a reader must meet. */
class expectation
{
public:
    json_events events;

    void value(int number) { events.push_back("integer:" + std::to_string(number)); }
    void value(double number)
    {
        if (std::isnan(number)) {
            events.push_back("string:NaN");
        } else if (std::isinf(number)) {
            events.push_back(number > 0 ? "string:Infinity" : "string:-Infinity");
        } else {
            events.push_back(eventOfNumber(number));
        }
    }
    void value(const text& characters) { events.push_back("string:" + korvel::toUtf8(characters)); }
    void key(const std::string& name) { events.push_back("key:" + name); }

    template <class T>
    void member(const std::string& name, const T& content)
    {
        key(name);
        value(content);
    }

    template <class T>
    void table(const std::string& name, const matrix<T>& content)
    {
        if (content.nbElem == 0) {
            return;
        }
        key(name);
        if (content.nbcols != 1) {
            events.push_back("[");
        }
        for (std::uint64_t k = 0; k < content.nbElem; ++k) {
            const auto row = static_cast<int>(k) % content.nbrows;
            if (row == 0) {
                events.push_back("[");
            }
            value(content.data[k]);
            if (row == content.nbrows - 1) {
                events.push_back("]");
            }
        }
        if (content.nbcols != 1) {
            events.push_back("]");
        }
    }

    template <class T>
    void record(const cST_MVect<T>& content)
    {
        events.push_back("{");
        table("CLabels", content.CLabels);
        if (!content.Vectors.empty()) {
            key("Vectors");
            events.push_back("[");
            for (const cST_Vect<T>& column : content.Vectors) {
                events.push_back("{");
                member("Label", korvel::readBstr(column.Label));
                member("Count", column.Count);
                table("Vect", column.Vect);
                events.push_back("}");
            }
            events.push_back("]");
        }
        member("nbcols", content.nbcols);
        member("nbrowsmax", content.nbrowsmax);
        member("samenbrows", int{content.samenbrows});
        table("nbrows", content.nbrows);
        key("bTriangular");
        events.push_back(content.bTriangular ? "true" : "false");
        events.push_back("}");
    }

    void record(const cST_QualiInfo& content)
    {
        const auto optionalTable = [&](const std::string& name, const auto* part) {
            if (part != nullptr) {
                table(name, *part);
            }
        };
        const auto optionalRecord = [&](const std::string& name, const auto* part) {
            if (part != nullptr) {
                key(name);
                record(*part);
            }
        };
        events.push_back("{");
        member("Count", content.Count);
        member("SumW", content.SumW);
        member("MaxNbCat", content.MaxNbCat);
        member("NbCatTotal", content.NbCatTotal);
        member("FreqMax", content.FreqMax);
        optionalTable("NbCat", content.NbCat);
        optionalTable("VarLabels", content.VarLabels);
        optionalRecord("CatNames", content.CatNames);
        optionalRecord("CatFreq", content.CatFreq);
        optionalRecord("CatFreqW", content.CatFreqW);
        member("IgnoreNewCategoryInPred", int{content.IgnoreNewCategoryInPred});
        member("withRecode", int{content.withRecode});
        member("codeStart", content.codeStart);
        optionalTable("Codes", content.Codes);
        member("nCodes", content.nCodes);
        member("withSort", int{content.withSort});
        member("noWeights", int{content.noWeights});
        member("withLongLabels", int{content.withLongLabels});
        member("CheckType", content.CheckType);
        events.push_back("}");
    }
};

template <class Record>
void expectReadsBack(unsigned seeds)
{
    for (unsigned seed = 0; seed < seeds; ++seed) {
        random_records random(seed);
        Record record;
        random.fill(record);
        JsonMaker maker;
        record.writeJson(maker, "");
        const std::string json = maker.written();
        maker.dispose();

        const auto met = eventsOf(quoteSpecialNumbers(json));
        ASSERT_TRUE(met.has_value()) << json;
        expectation expected;
        expected.record(record);
        ASSERT_EQ(*met, expected.events) << json;
    }
}

} // namespace

TEST(WellFormedJson, OfTablesOfNumbers)
{
    expectReadsBack<cST_MVect<double>>(3000);
}

TEST(WellFormedJson, OfTablesOfTexts)
{
    expectReadsBack<cST_MVect<text>>(3000);
}

TEST(WellFormedJson, OfTablesOfIntegersAndFlags)
{
    expectReadsBack<cST_MVect<int>>(1000);
    expectReadsBack<cST_MVect<short int>>(1000);
}

TEST(WellFormedJson, OfCategories)
{
    expectReadsBack<cST_QualiInfo>(3000);
}

TEST(WellFormedJson, OfEveryUnitAloneAndBeforeAnother)
{
    for (const char16_t next : {u'\0', u'"', u'a', u'\xD800', u'\xDC00'}) {
        JsonMaker maker;
        maker.startArray("");
        for (int unit = 0; unit < 0x10000; ++unit) {
            maker.write("", text{static_cast<char16_t>(unit)});
            maker.write("", text{static_cast<char16_t>(unit), next});
        }
        maker.endArray();
        const auto met = eventsOf(maker.written());
        maker.dispose();
        ASSERT_TRUE(met.has_value());
        ASSERT_EQ(met->size(), 2u * 0x10000 + 2);
        for (std::size_t unit = 0; unit < 0x10000; ++unit) {
            const text pair{static_cast<char16_t>(unit), next};
            ASSERT_EQ((*met)[2 * unit + 2], "string:" + korvel::toUtf8(pair));
        }
    }
}
