#include "sections.h"

#include "utf8.h"

#include <algorithm>
#include <cstddef>
#include <functional>
#include <string>
#include <vector>

namespace report
{

namespace
{

constexpr std::size_t mostListed = 10;
constexpr int categoryWidth = 40;

struct category {
    std::string text;
    int count;
};

/** What the library tells of a column of texts. */
struct inventory {
    std::string mode; ///< Of several most frequent categories the first to appear.
    int modeCount;
    std::vector<category> categories; ///< The frequent ones first, ties in order of appearance.
};

inventory inventoryOf(const data_set& data, const text_column& column)
{
    int count = 0;
    Cpp_GetMaxCat(column.block.data(), data.rows, 1, &count);

    text_block mode(1);
    double modeFrequency = 0.0;
    text_block names(static_cast<std::size_t>(count));
    std::vector<double> frequencies(static_cast<std::size_t>(count));
    int total = 0;
    VB_M_InfoQuali2(column.block.data(), data.rows, 1, count, &count, mode.data(), &modeFrequency,
                    names.data(), frequencies.data(), data.weights.data(), &total, 0);

    inventory found{toUtf8(mode[0]), static_cast<int>(modeFrequency), {}};
    for (std::size_t k = 0; k < frequencies.size(); ++k) {
        found.categories.push_back({toUtf8(names[k]), static_cast<int>(frequencies[k])});
    }
    std::ranges::stable_sort(found.categories, std::greater(), &category::count);
    return found;
}

} // namespace

text_table texts(data_set& data)
{
    text_table table({{"column", alignment::left},
                      {"n", alignment::point},
                      {"missing", alignment::point},
                      {"categories", alignment::point},
                      {"mode", alignment::left}});
    for (const text_column& column : data.textColumns) {
        const inventory found = inventoryOf(data, column);
        table.add({shownName(column.name), shown(column.present), shown(data.rows - column.present),
                   shown(static_cast<int>(found.categories.size())),
                   found.modeCount > 1 ? displayText(found.mode, categoryWidth) : "(each once)"});
    }
    return table;
}

text_table categories(data_set& data)
{
    text_table table({{"column", alignment::left},
                      {"category", alignment::left},
                      {"n", alignment::point},
                      {"% of n", alignment::point}});
    for (const text_column& column : data.textColumns) {
        const inventory found = inventoryOf(data, column);
        if (found.modeCount == 1) {
            continue;
        }
        std::string name = shownName(column.name);
        int others = column.present;
        const std::size_t listed = std::min(found.categories.size(), mostListed);
        for (std::size_t k = 0; k < listed; ++k) {
            const auto& [text, count] = found.categories[k];
            table.add(
                {name, displayText(text, categoryWidth), shown(count), shownPercent(count, column.present)});
            name.clear();
            others -= count;
        }
        if (others > 0) {
            const std::string unlisted = std::to_string(found.categories.size() - listed);
            table.add({"", "(" + unlisted + " more)", shown(others), shownPercent(others, column.present)});
        }
    }
    return table;
}

} // namespace report
