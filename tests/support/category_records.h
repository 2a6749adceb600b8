/**
 * @file
 * A caller's record of category statistics, with guards round every block.
 */
#ifndef KORVEL_TESTS_SUPPORT_CATEGORY_RECORDS_H
#define KORVEL_TESTS_SUPPORT_CATEGORY_RECORDS_H

#include "support/caller_memory.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace korvel::test
{

/** Statistics of variables, each with some names and room for as many categories as it has names. */
class caller_categories
{
public:
    explicit caller_categories(const std::vector<texts>& names, int rows = 0)
    {
        std::vector<ST_Vect> nameColumns;
        std::vector<ST_Vect> first;
        std::vector<ST_Vect> second;
        ints counts;
        texts labels;
        for (const texts& variable : names) {
            nameColumns.push_back(memory_.column(u"names", variable));
            first.push_back(memory_.column(u"rows", doubles(variable.size(), 77.0)));
            second.push_back(memory_.column(u"weights", doubles(variable.size(), 77.0)));
            counts.push_back(static_cast<int>(variable.size()));
            labels.emplace_back();
        }
        record.CatNames = memory_.table(nameColumns, labels);
        record.CatFreq = memory_.table(first, labels);
        record.CatFreqW = memory_.table(second, labels);
        record.NbCat = memory_.array(counts);
        record.VarLabels = memory_.texts(labels);
        const std::vector<ULONG> shape{static_cast<ULONG>(rows), static_cast<ULONG>(names.size())};
        record.Codes = memory_.array(shape, doubles(names.size() * static_cast<std::size_t>(rows), 77.0));
    }

    ST_QualiInfo record{};

    [[nodiscard]] texts names(int j) const { return textsIn(columnOf(record.CatNames, j).Vect); }
    [[nodiscard]] doubles rows(int j) const { return numbersIn<double>(columnOf(record.CatFreq, j).Vect); }
    [[nodiscard]] doubles weights(int j) const
    {
        return numbersIn<double>(columnOf(record.CatFreqW, j).Vect);
    }
    [[nodiscard]] double code(int k) const { return static_cast<const double*>(record.Codes->pvData)[k]; }
    [[nodiscard]] caller_memory& memory() { return memory_; }

private:
    caller_memory memory_;
};

} // namespace korvel::test

#endif
