#include "csv_records.h"
#include "read_data.h"
#include "text_table.h"
#include "utf8.h"

#include <algorithm>
#include <cstddef>
#include <map>
#include <utility>

namespace report
{

namespace
{

template <class Column>
auto named(std::vector<Column>& columns, const std::string& name)
{
    return std::ranges::find(columns, name, &Column::name);
}

template <class Columns>
bool hasColumn(Columns& columns, const std::string& name)
{
    return named(columns, name) != columns.end();
}

std::string rowCount(int count)
{
    return std::to_string(count) + (count == 1 ? " row" : " rows");
}

// The rows by their keys, in ascending order of the keys; those without one are left out.
template <class Key, class KeyOf, class NameOf>
grouping groupedBy(const data_set& data, KeyOf keyOf, NameOf nameOf)
{
    grouping found;
    std::map<Key, std::vector<int>> rows;
    for (int i = 0; i < data.rows; ++i) {
        const auto place = static_cast<std::size_t>(i);
        if (data.leftOut[place] != 0) {
            continue;
        }
        if (const std::optional<Key> key = keyOf(place)) {
            rows[*key].push_back(i);
        } else {
            ++found.without;
        }
    }
    for (auto& [key, members] : rows) {
        found.groups.push_back({nameOf(key), std::move(members)});
    }
    return found;
}

std::optional<double> present(double number)
{
    return VB_IsMissingValueDbl(number) != 0 ? std::nullopt : std::optional(number);
}

} // namespace

void takeWeights(data_set& data, const std::string& name)
{
    const auto column = named(data.numberColumns, name);
    if (column == data.numberColumns.end()) {
        const bool isThere = hasColumn(data.textColumns, name) || hasColumn(data.dateColumns, name);
        throw csv_error(isThere ? "column " + name + " cannot be weights: not all its cells are numbers"
                                : "has no column " + name);
    }
    const auto rows = static_cast<std::size_t>(data.rows);
    for (std::size_t i = 0; i < rows; ++i) {
        const double weight = column->values[i];
        const bool isMissing = VB_IsMissingValueDbl(weight) != 0;
        if (!isMissing && weight < 0.0) {
            throw csv_error("column " + name + " cannot be weights: that of row " + std::to_string(i + 1) +
                            " is negative, " + shown(weight, column->decimals));
        }
        data.leftOut[i] = isMissing || weight == 0.0 ? -1 : 0;
        data.weights[i] = isMissing ? 0.0 : weight;
    }
    const auto without = static_cast<int>(std::ranges::count(data.leftOut, -1));
    if (without == data.rows) {
        throw csv_error("column " + name + " cannot be weights: none of them is above 0");
    }
    if (without > 0) {
        data.notes.push_back("Left out: " + rowCount(without) + " without a weight above 0.");
    }
    data.rowsUsed = data.rows - without;
    data.weightColumn = name;
    // The columns behind it move up.
    std::copy(column->values + rows, data.numbers.get() + data.countOfNumbers(), column->values);
    for (auto behind = data.numberColumns.erase(column); behind != data.numberColumns.end(); ++behind) {
        behind->values -= rows;
    }
}

void takeGroups(data_set& data, const std::string& name)
{
    constexpr int widest = 40;
    grouping found;
    const auto numbers = named(data.numberColumns, name);
    const auto dates = named(data.dateColumns, name);
    const auto texts = named(data.textColumns, name);
    if (texts != data.textColumns.end()) {
        std::map<OLECHAR*, std::string> names;
        for (OLECHAR* const text : texts->cells) {
            if (text != nullptr && !names.contains(text)) {
                names[text] = toUtf8(text);
            }
        }
        found = groupedBy<std::string>(
            data,
            [&](std::size_t i) {
                OLECHAR* const text = texts->cells[i];
                return text == nullptr ? std::nullopt : std::optional(names[text]);
            },
            [](const std::string& text) { return displayText(text, widest); });
    } else if (numbers != data.numberColumns.end()) {
        found = groupedBy<double>(
            data, [&](std::size_t i) { return present(numbers->values[i]); },
            [&](double number) { return shown(number, numbers->decimals); });
    } else if (dates != data.dateColumns.end()) {
        found = groupedBy<double>(
            data, [&](std::size_t i) { return present(dates->days[i]); },
            [&](double days) { return shownDate(days, dates->hasTimes); });
    } else {
        throw csv_error(name == data.weightColumn ? "column " + name + " has the weights already"
                                                  : "has no column " + name);
    }
    if (found.groups.empty()) {
        throw csv_error("column " + name + " has no groups: all its cells are missing");
    }
    if (found.without > 0) {
        data.notes.push_back("Left out of the groups: " + rowCount(found.without) + " without one.");
    }
    found.column = name;
    data.groups = std::move(found);
}

} // namespace report
