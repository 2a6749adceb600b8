#include "pictures.h"
#include "sections.h"

#include <cstddef>
#include <string>
#include <vector>

namespace report
{

namespace
{

constexpr int correlationDecimals = 3;

// The lower triangle of a table of correlations; with the rows behind each one below it, if they are given.
text_table triangle(const data_set& data, const std::vector<double>& figures, const std::vector<double>& rows)
{
    const std::size_t columns = data.numberColumns.size();
    std::vector<text_table::heading> headings{{"column", alignment::left}};
    for (std::size_t j = 0; j + 1 < columns; ++j) {
        headings.push_back({shownName(data.numberColumns[j].name), alignment::point});
    }
    text_table table(headings);
    for (std::size_t i = 1; i < columns; ++i) {
        std::vector<std::string> cells{shownName(data.numberColumns[i].name)};
        std::vector<std::string> counts{"  rows"};
        for (std::size_t j = 0; j + 1 < columns; ++j) {
            const std::size_t pair = i + j * columns;
            cells.push_back(j < i ? rounded(figures[pair], correlationDecimals) : "");
            counts.push_back(j < i && !rows.empty() ? shown(rows[pair], 0) : "");
        }
        table.add(cells);
        if (!rows.empty()) {
            table.add(counts);
        }
    }
    return table;
}

constexpr const char* undefinedNote = "a correlation needs two rows, two columns that are not constant in "
                                      "them, and sums no larger than any number.";

} // namespace

section correlations(const data_set& data, const findings& found)
{
    if (found.correlations.pairwise.empty()) {
        return {};
    }
    section result{"Correlations, over the rows that neither column misses",
                   {triangle(data, found.correlations.pairwise, found.correlations.rows)},
                   {},
                   {{heatMap(data, found.correlations.pairwise), {}}}};
    result.explain(noFigure, undefinedNote);
    result.explain(tooLarge, undefinedNote);
    return result;
}

section rankCorrelations(const data_set& data, const findings& found)
{
    if (found.correlations.ofRanks.empty()) {
        return {};
    }
    section result{"Correlations of ranks, over the " + shown(found.correlations.completeRows) +
                       " rows without missing numbers",
                   {triangle(data, found.correlations.ofRanks, {})},
                   {},
                   {}};
    result.explain(noFigure, undefinedNote);
    return result;
}

} // namespace report
