#include "sections.h"

#include <cstddef>
#include <map>
#include <string>
#include <vector>

namespace report
{

namespace
{

// Counts what is missing in one row: the library counts in a copy of the row.
class row_counter
{
public:
    explicit row_counter(const data_set& data) : data_(data) {}

    int missingIn(std::size_t row)
    {
        numbers_.clear();
        for (const number_column& column : data_.numberColumns) {
            numbers_.push_back(column.values[row]);
        }
        for (const date_column& column : data_.dateColumns) {
            numbers_.push_back(column.days[row]);
        }
        texts_.clear();
        for (const text_column& column : data_.textColumns) {
            texts_.push_back(column.cells[row]);
        }
        return VB_V_NbMissing(numbers_.data(), static_cast<int>(numbers_.size())) +
               VB_V_NbMissingStr(texts_.data(), static_cast<int>(texts_.size()));
    }

private:
    const data_set& data_;
    std::vector<double> numbers_;
    std::vector<OLECHAR*> texts_;
};

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

section missingColumns(const data_set& data, const findings& found)
{
    text_table table(
        {{"column", alignment::left}, {"missing", alignment::point}, {"% of rows", alignment::point}});
    const auto add = [&](const std::string& name, int present) {
        const int missing = data.rowsUsed - present;
        if (missing > 0) {
            table.add({shownName(name), shown(missing), shownPercent(missing, data.rowsUsed)});
        }
    };
    for (std::size_t j = 0; j < data.numberColumns.size(); ++j) {
        add(data.numberColumns[j].name, found.distributions[j].count);
    }
    for (std::size_t j = 0; j < data.textColumns.size(); ++j) {
        add(data.textColumns[j].name, found.inventories[j].count);
    }
    for (const date_column& column : data.dateColumns) {
        add(column.name, keptOf(data, column.days.data()).count());
    }
    return {"Columns with missing cells", {table}, {}, {}};
}

section missingRows(const data_set& data, const findings&)
{
    text_table table({{"missing cells", alignment::point},
                      {"rows", alignment::point},
                      {"% of rows", alignment::point},
                      {"which", alignment::left}});
    row_counter counter(data);
    std::map<int, std::vector<int>> rowsByCount;
    for (int row = 0; row < data.rows; ++row) {
        const auto place = static_cast<std::size_t>(row);
        const int missing = data.leftOut[place] != 0 ? 0 : counter.missingIn(place);
        if (missing > 0) {
            rowsByCount[missing].push_back(row + 1);
        }
    }
    for (const auto& [missing, rows] : rowsByCount) {
        const auto count = static_cast<int>(rows.size());
        table.add({shown(missing), shown(count), shownPercent(count, data.rowsUsed), listed(rows)});
    }
    return {"Rows with missing cells", {table}, {}, {}};
}

} // namespace report
