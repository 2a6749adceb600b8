#include "sections.h"

#include "utf8.h"

#include <algorithm>
#include <cstddef>
#include <string>

namespace report
{

namespace
{

constexpr std::size_t mostListed = 10;
constexpr int categoryWidth = 40;

} // namespace

section texts(const data_set& data, const findings& found)
{
    text_table table({{"column", alignment::left},
                      {"n", alignment::point},
                      {"missing", alignment::point},
                      {"categories", alignment::point},
                      {"mode", alignment::left}});
    for (std::size_t j = 0; j < data.textColumns.size(); ++j) {
        const inventory& figures = found.inventories[j];
        table.add({shownName(data.textColumns[j].name), shown(figures.count),
                   shown(data.rowsUsed - figures.count), shown(static_cast<int>(figures.categories.size())),
                   figures.count == 0         ? std::string(noFigure)
                   : figures.isAllDifferent() ? "(each once)"
                                              : displayText(figures.mode, categoryWidth)});
    }
    section result{"Texts", {table}, {}, {}};
    result.explain(noFigure, "all texts of the column are in rows that are left out.");
    return result;
}

section categories(const data_set& data, const findings& found)
{
    const char* const total = data.isWeighted() ? "weight" : "n";
    text_table table({{"column", alignment::left},
                      {"category", alignment::left},
                      {total, alignment::point},
                      {std::string("% of ") + total, alignment::point}});
    for (std::size_t j = 0; j < data.textColumns.size(); ++j) {
        const inventory& figures = found.inventories[j];
        if (figures.isAllDifferent()) {
            continue;
        }
        std::string name = shownName(data.textColumns[j].name);
        double others = figures.weight;
        const std::size_t listed = std::min(figures.categories.size(), mostListed);
        for (std::size_t k = 0; k < listed; ++k) {
            const auto& [text, weight] = figures.categories[k];
            table.add({name, displayText(text, categoryWidth), shownWeight(weight),
                       shownPercent(weight, figures.weight)});
            name.clear();
            others -= weight;
        }
        if (listed < figures.categories.size()) {
            const std::string unlisted = std::to_string(figures.categories.size() - listed);
            table.add(
                {"", "(" + unlisted + " more)", shownWeight(others), shownPercent(others, figures.weight)});
        }
    }
    return {"Categories, with their share of the texts that are not missing", {table}, {}, {}};
}

} // namespace report
