#include "sections.h"

#include <algorithm>
#include <string>
#include <vector>

namespace report
{

namespace
{

text_table coefficientTable(const regression_figures& figures)
{
    constexpr int decimals = 3;
    text_table table({{"term", alignment::left},
                      {"estimate", alignment::point},
                      {"st.error", alignment::point},
                      {"t", alignment::point},
                      {"tolerance", alignment::point},
                      {"VIF", alignment::point}});
    const std::string none(noFigure);
    const auto add = [&](const regression_term& term, const std::string& tolerance,
                         const std::string& inflation) {
        const bool hasError = VB_IsMissingValueDbl(term.error) == 0;
        table.add({shownName(term.name), shownFigure(term.estimate), shownFigure(term.error),
                   hasError ? shown(term.estimate / term.error, decimals) : none, tolerance, inflation});
    };
    add(figures.intercept, "", "");
    for (const regression_term& term : figures.terms) {
        if (term.isLeftOut) {
            table.add({shownName(term.name), "left out", none, none, shownFigure(term.tolerance), none});
        } else {
            add(term, shownFigure(term.tolerance), shown(term.inflation, decimals));
        }
    }
    return table;
}

text_table qualityTable(const regression_figures& figures)
{
    constexpr int decimals = 4;
    text_table table({{"fit", alignment::left}, {"", alignment::point}});
    table.add({"R-squared", shown(figures.explained, decimals)});
    table.add({"R-squared, adjusted", shown(figures.explainedAdjusted, decimals)});
    table.add({"residual deviation", shownFigure(figures.residualDeviation)});
    table.add({"degrees of freedom", shownWeight(figures.freedom)});
    return table;
}

} // namespace

section regression(const data_set&, const findings& found)
{
    if (!found.regression) {
        return {};
    }
    const regression_figures& figures = *found.regression;
    section result{"Regression of " + shownName(figures.response) +
                       " on the other columns of numbers, over the " + shown(figures.rows) +
                       " rows without missing numbers",
                   {coefficientTable(figures), qualityTable(figures)},
                   {},
                   {}};
    const bool leavesOut = std::ranges::any_of(figures.terms, &regression_term::isLeftOut);
    if (leavesOut) {
        result.notes.emplace_back(
            "A column is left out when it is constant, or the columns above it explain all of it.");
    }
    result.explain(noFigure,
                   leavesOut
                       ? "a column that is left out has no figure, and errors need a degree of freedom."
                       : "errors need a degree of freedom, and R-squared a column that is not constant.");
    result.explain(tooLarge, "a sum on the way to the figure is larger than any number.");
    return result;
}

} // namespace report
