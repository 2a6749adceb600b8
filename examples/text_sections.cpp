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

constexpr std::size_t mostCategories = 50; // With more the column is a list of names, and none is frequent.
constexpr int categoryWidth = 20;
constexpr int listWidth = 50; // Leaves room for a long name of the column and for what is not shown.

struct category {
    std::string text;
    double count;
};

std::vector<category> countCategories(data_set& data, text_column& column)
{
    std::vector<category> counted;
    for (const std::string& text : column.categories) {
        const bstr_pointer value = toBstr(text);
        counted.push_back(
            {text, VB_V_FreqStr(column.block.data(), data.rows, data.weights.data(), value.get())});
    }
    // Ties stay in order of appearance.
    std::ranges::stable_sort(counted, std::greater(), &category::count);
    return counted;
}

// The empty text, which means missing, counts as a text here.
int differentTexts(const data_set& data, text_column& column)
{
    return Cpp_V_NbDistinctStr(column.block.data(), data.rows) - (column.present < data.rows ? 1 : 0);
}

std::string mostFrequent(data_set& data, text_column& column)
{
    if (column.categories.size() == static_cast<std::size_t>(column.present)) {
        return "(each once)";
    }
    if (column.categories.size() > mostCategories) {
        return "(too many to list)";
    }
    const std::vector<category> counted = countCategories(data, column);
    std::string list;
    for (std::size_t k = 0; k < counted.size(); ++k) {
        const std::string next = (k == 0 ? "" : ", ") + displayText(counted[k].text, categoryWidth) + " " +
                                 shown(counted[k].count, 0);
        if (displayWidth(list) + displayWidth(next) > listWidth) {
            return list + ", " + std::to_string(counted.size() - k) + " more";
        }
        list += next;
    }
    return list;
}

} // namespace

text_table frequencies(data_set& data)
{
    text_table table({{"column", alignment::left},
                      {"n", alignment::point},
                      {"missing", alignment::point},
                      {"different", alignment::point},
                      {"most frequent", alignment::left}});
    for (text_column& column : data.textColumns) {
        table.add({shownName(column.name), shown(column.present), shown(data.rows - column.present),
                   shown(differentTexts(data, column)), mostFrequent(data, column)});
    }
    return table;
}

} // namespace report
