#include "pictures.h"
#include "sections.h"

#include <cstddef>
#include <string>
#include <vector>

namespace report
{

namespace
{

constexpr int decimals = 3;
constexpr int shareDecimals = 1;

} // namespace

section componentShares(const data_set&, const findings& found)
{
    if (found.parts.variances.empty()) {
        return {};
    }
    text_table table({{"component", alignment::point},
                      {"variance", alignment::point},
                      {"% of all", alignment::point},
                      {"up to here", alignment::point}});
    double sum = 0;
    for (std::size_t k = 0; k < found.parts.variances.size(); ++k) {
        sum += found.parts.percents[k];
        table.add({shown(static_cast<int>(k) + 1), rounded(found.parts.variances[k], decimals),
                   rounded(found.parts.percents[k], shareDecimals), rounded(sum, shareDecimals)});
    }
    return {"Principal components of the correlations, over the rows without missing numbers",
            {table},
            {},
            {{screePlot(found.parts), {}}}};
}

section componentLoadings(const data_set&, const findings& found)
{
    std::vector<text_table::heading> headings{{"column", alignment::left}};
    for (int k = 1; k <= found.parts.shown; ++k) {
        headings.push_back({"comp. " + shown(k), alignment::point});
    }
    text_table table(headings);
    const std::size_t n = found.parts.columns.size();
    for (std::size_t i = 0; i < n; ++i) {
        std::vector<std::string> cells{shownName(found.parts.columns[i])};
        for (std::size_t k = 0; k + 1 < headings.size(); ++k) {
            cells.push_back(rounded(found.parts.loadings[i + k * n], decimals));
        }
        table.add(cells);
    }
    section result{"Loadings of the components that make up 90 %", {table}, {}, {}};
    if (found.parts.pointCount > 0) {
        result.pictures.push_back({biplot(found.parts), {}});
    }
    return result;
}

} // namespace report
