#include "sections.h"

#include <cstddef>
#include <string>
#include <vector>

namespace report
{

namespace
{

constexpr short int visualBasicTrue = -1;
constexpr short int visualBasicFalse = 0;

constexpr int correlationDecimals = 3;

// For each pair of columns the number of rows in which neither is missing. It is the product with itself of a
// table of 1 for present and 0 for missing.
std::vector<double> commonRows(const data_set& data, int columns)
{
    std::vector<double> present(data.numbers.size());
    for (std::size_t k = 0; k < present.size(); ++k) {
        present[k] = VB_IsMissingValueDbl(data.numbers[k]) != 0 ? 0.0 : 1.0;
    }
    std::vector<double> counts(static_cast<std::size_t>(columns) * static_cast<std::size_t>(columns));
    VB_M_ProductTrAA(present.data(), data.rows, columns, counts.data());
    return counts;
}

// Each column with mean 0 and deviation 1, so that no small variance counts as none.
std::vector<double> standardized(data_set& data)
{
    std::vector<double> scores(data.numbers.size());
    std::size_t start = 0;
    for (const number_column& column : data.numberColumns) {
        VB_V_Standardize(column.values, data.rows, data.leftOut.data(), data.weights.data(), visualBasicFalse,
                         &scores[start]);
        start += static_cast<std::size_t>(data.rows);
    }
    return scores;
}

} // namespace

text_table correlations(data_set& data)
{
    const std::size_t columns = data.numberColumns.size();
    if (columns < 2) {
        return text_table({});
    }
    const auto count = static_cast<int>(columns);
    std::vector<double> found(columns * columns);
    const std::vector<double> scores = standardized(data);
    VB_M_CorrMatMat(scores.data(), data.rows, count, scores.data(), count, found.data(), data.leftOut.data(),
                    data.weights.data(), visualBasicTrue, visualBasicFalse, visualBasicTrue, visualBasicTrue,
                    visualBasicFalse);
    const std::vector<double> rows = commonRows(data, count);

    std::vector<text_table::heading> headings{{"column", alignment::left}};
    for (std::size_t j = 0; j + 1 < columns; ++j) {
        headings.push_back({shownName(data.numberColumns[j].name), alignment::point});
    }
    text_table table(headings);
    for (std::size_t i = 1; i < columns; ++i) {
        std::vector<std::string> figures{shownName(data.numberColumns[i].name)};
        std::vector<std::string> counts{"  rows"};
        for (std::size_t j = 0; j + 1 < columns; ++j) {
            const std::size_t pair = i + j * columns;
            figures.push_back(j < i ? rounded(found[pair], correlationDecimals) : "");
            counts.push_back(j < i ? shown(rows[pair], 0) : "");
        }
        table.add(figures);
        table.add(counts);
    }
    return table;
}

} // namespace report
