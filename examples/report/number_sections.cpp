#include "pictures.h"
#include "sections.h"

#include <cstddef>
#include <string>
#include <vector>

namespace report
{

namespace
{

constexpr int shapeDecimals = 3;
constexpr const char* overflowNote = "the figure, or a sum on the way to it, is larger than any number.";

// A mean deserves more decimals than its numbers have.
int meanDecimals(const number_column& column)
{
    return std::max(column.decimals + 2, 3);
}

// A quartile stands at one of the numbers, or at a quarter, a half or three quarters of the way to the next.
int quartileDecimals(const number_column& column)
{
    return column.decimals + 2;
}

std::string shownRow(const extreme& found)
{
    return found.row == 0 ? std::string(noFigure) : shown(found.row);
}

} // namespace

section notesOnFile(const data_set& data, const findings& found)
{
    section result{"Notes on the file", {}, data.notes, {}};
    if (data.isWeighted()) {
        result.notes.push_back(
            found.areCounts == flatTrue
                ? "Weights in " + shownName(data.weightColumn) +
                      ": all are whole numbers, so a row counts as that many observations."
                : "Weights in " + shownName(data.weightColumn) +
                      ": not all are whole numbers, so they say how much a row counts beside the others, not"
                      " how many observations it is.");
    }
    return result;
}

section location(const data_set& data, const findings& found)
{
    std::vector<text_table::heading> headings{
        {"column", alignment::left}, {"n", alignment::point}, {"missing", alignment::point}};
    if (data.isWeighted()) {
        headings.push_back({"weight", alignment::point});
    }
    for (const char* title : {"mean", "st.dev.", "sum"}) {
        headings.push_back({title, alignment::point});
    }
    text_table table(headings);
    for (std::size_t j = 0; j < data.numberColumns.size(); ++j) {
        const number_column& column = data.numberColumns[j];
        const distribution& figures = found.distributions[j];
        std::vector<std::string> cells{shownName(column.name), shown(figures.count),
                                       shown(data.rowsUsed - figures.count)};
        if (data.isWeighted()) {
            cells.push_back(shownWeight(figures.weight));
        }
        const bool isWhole = found.areCounts == flatTrue;
        cells.push_back(shown(figures.mean, meanDecimals(column)));
        cells.push_back(shown(figures.deviation, meanDecimals(column)));
        cells.push_back(shown(figures.sum, isWhole ? column.decimals : meanDecimals(column)));
        table.add(cells);
    }
    section result{"Numbers", {table}, {}, {}};
    result.explain(noFigure, "a mean needs one number, a standard deviation two.");
    result.explain(tooLarge, overflowNote);
    return result;
}

section quartiles(const data_set& data, const findings& found)
{
    text_table table({{"column", alignment::left},
                      {"min", alignment::point},
                      {"row", alignment::point},
                      {"25 %", alignment::point},
                      {"median", alignment::point},
                      {"75 %", alignment::point},
                      {"max", alignment::point},
                      {"row", alignment::point}});
    for (std::size_t j = 0; j < data.numberColumns.size(); ++j) {
        const number_column& column = data.numberColumns[j];
        const distribution& figures = found.distributions[j];
        const int decimals = quartileDecimals(column);
        table.add({shownName(column.name), shown(figures.min.value, column.decimals), shownRow(figures.min),
                   shown(figures.lowerQuartile, decimals), shown(figures.median, decimals),
                   shown(figures.upperQuartile, decimals), shown(figures.max.value, column.decimals),
                   shownRow(figures.max)});
    }
    section result{"Range and quartiles", {table}, {}, distributionPictures(data, found)};
    result.explain(noFigure, "the column has no numbers.");
    result.explain(tooLarge, overflowNote);
    return result;
}

section shape(const data_set& data, const findings& found)
{
    text_table table({{"column", alignment::left},
                      {"skewness", alignment::point},
                      {"s.e.", alignment::point},
                      {"kurtosis", alignment::point},
                      {"s.e.", alignment::point},
                      {"geom. mean", alignment::point},
                      {"geom. s.d.", alignment::point},
                      {"harm. mean", alignment::point}});
    for (std::size_t j = 0; j < data.numberColumns.size(); ++j) {
        const number_column& column = data.numberColumns[j];
        const shape_figures& figures = found.shapes[j];
        table.add({shownName(column.name), rounded(figures.skewness, shapeDecimals),
                   rounded(figures.skewnessError, shapeDecimals), rounded(figures.kurtosis, shapeDecimals),
                   rounded(figures.kurtosisError, shapeDecimals),
                   shown(figures.geometricMean, meanDecimals(column)),
                   rounded(figures.geometricDeviation, shapeDecimals),
                   shown(figures.harmonicMean, meanDecimals(column))});
    }
    section result{"Shape", {table}, {}, {}};
    result.explain(noFigure, "a skewness needs three numbers that are not all equal, a kurtosis four, a "
                             "geometric s.d. two; a geometric or"
                             " harmonic mean needs all numbers above 0.");
    result.explain(tooLarge, overflowNote);
    return result;
}

section groups(const data_set& data, const findings& found)
{
    if (!data.groups) {
        return {};
    }
    std::vector<text_table::heading> headings{{"column", alignment::left},
                                              {shownName(data.groups->column), alignment::left},
                                              {"n", alignment::point},
                                              {"missing", alignment::point}};
    if (data.isWeighted()) {
        headings.push_back({"weight", alignment::point});
    }
    for (const char* title : {"mean", "st.dev.", "25 %", "median", "75 %"}) {
        headings.push_back({title, alignment::point});
    }
    text_table table(headings);
    for (std::size_t j = 0; j < data.numberColumns.size(); ++j) {
        const number_column& column = data.numberColumns[j];
        std::string name = shownName(column.name);
        for (std::size_t g = 0; g < found.byGroup[j].size(); ++g) {
            const row_group& group = *found.groupsShown[g];
            const distribution& figures = found.byGroup[j][g];
            std::vector<std::string> cells{name, shownName(group.name), shown(figures.count),
                                           shown(static_cast<int>(group.rows.size()) - figures.count)};
            if (data.isWeighted()) {
                cells.push_back(shownWeight(figures.weight));
            }
            cells.push_back(shown(figures.mean, meanDecimals(column)));
            cells.push_back(shown(figures.deviation, meanDecimals(column)));
            for (const double quartile : {figures.lowerQuartile, figures.median, figures.upperQuartile}) {
                cells.push_back(shown(quartile, quartileDecimals(column)));
            }
            table.add(cells);
            name.clear();
        }
    }
    section result{"Groups by " + shownName(data.groups->column), {table}, {}, groupPictures(data, found)};
    result.explain(noFigure, "a mean and quartiles need one number in the group, a standard deviation two.");
    result.explain(tooLarge, overflowNote);
    if (found.groupsShown.size() < data.groups->groups.size()) {
        result.notes.push_back("The " + std::to_string(mostGroups) + " largest of " +
                               std::to_string(data.groups->groups.size()) + " groups are shown.");
    }
    return result;
}

} // namespace report
