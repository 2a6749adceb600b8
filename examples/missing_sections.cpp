#include "sections.h"

#include <algorithm>
#include <cstddef>
#include <map>
#include <string>
#include <vector>

namespace report
{

namespace
{

// What is missing in one row, counted by the library in a copy of the row.
int missingInRow(const data_set& data, int row)
{
    const auto place = static_cast<std::size_t>(row);
    std::vector<double> numbers;
    for (const number_column& column : data.numberColumns) {
        numbers.push_back(column.values[place]);
    }
    std::vector<OLECHAR*> texts;
    for (const text_column& column : data.textColumns) {
        texts.push_back(column.block[place]);
    }
    return VB_V_NbMissing(numbers.data(), static_cast<int>(numbers.size())) +
           VB_V_NbMissingStr(texts.data(), static_cast<int>(texts.size()));
}

std::string listed(const std::vector<int>& rows)
{
    constexpr std::size_t most = 12;
    std::string list;
    for (std::size_t k = 0; k < rows.size() && k < most; ++k) {
        list += (k == 0 ? "" : ", ") + std::to_string(rows[k]);
    }
    return rows.size() > most ? list + ", " + std::to_string(rows.size() - most) + " more" : list;
}

} // namespace

text_table missingColumns(data_set& data)
{
    text_table table(
        {{"column", alignment::left}, {"missing", alignment::point}, {"% of rows", alignment::point}});
    const auto add = [&](const std::string& name, int missing) {
        if (missing > 0) {
            table.add({shownName(name), shown(missing), shownPercent(missing, data.rows)});
        }
    };
    for (const number_column& column : data.numberColumns) {
        add(column.name, VB_V_NbMissing(column.values, data.rows));
    }
    for (const text_column& column : data.textColumns) {
        add(column.name, VB_V_NbMissingStr(column.block.data(), data.rows));
    }
    return table;
}

text_table missingRows(data_set& data)
{
    text_table table({{"missing cells", alignment::point},
                      {"rows", alignment::point},
                      {"% of rows", alignment::point},
                      {"which", alignment::left}});
    std::map<int, std::vector<int>> rowsByCount;
    for (int row = 0; row < data.rows; ++row) {
        const int missing = missingInRow(data, row);
        if (missing > 0) {
            rowsByCount[missing].push_back(row + 1);
        }
    }
    for (const auto& [missing, rows] : rowsByCount) {
        const auto count = static_cast<int>(rows.size());
        table.add({shown(missing), shown(count), shownPercent(count, data.rows), listed(rows)});
    }
    return table;
}

} // namespace report
