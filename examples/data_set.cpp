#include "data_set.h"

#include "utf8.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <optional>
#include <string_view>
#include <utility>

namespace report
{

namespace
{

bool isMissing(std::string_view cell)
{
    return cell.empty() || cell == "NA";
}

struct parsed_number {
    double value = missingNumber;
    int decimals = 0;
};

int decimalsOf(std::string_view digits)
{
    const std::size_t exponent = std::min(digits.find_first_of("eE"), digits.size());
    const std::size_t point = std::min(digits.find('.'), exponent);
    int decimals = static_cast<int>(exponent - std::min(point + 1, exponent));
    if (exponent < digits.size()) {
        digits.remove_prefix(exponent + 1);
        if (digits.starts_with('+')) {
            digits.remove_prefix(1);
        }
        int power = 0;
        std::from_chars(digits.data(), digits.data() + digits.size(), power);
        decimals -= power;
    }
    return std::max(decimals, 0);
}

// Nothing when the cell is neither missing nor a finite number.
std::optional<parsed_number> parseNumber(std::string cell, bool decimalComma)
{
    if (isMissing(cell)) {
        return parsed_number{};
    }
    if (decimalComma) {
        std::replace(cell.begin(), cell.end(), ',', '.');
    }
    std::string_view digits = cell;
    if (digits.starts_with('+') && !digits.starts_with("+-")) {
        digits.remove_prefix(1);
    }
    parsed_number number;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number.value);
    if (error != std::errc{} || end != digits.data() + digits.size() || !std::isfinite(number.value)) {
        return std::nullopt;
    }
    number.decimals = decimalsOf(digits);
    return number;
}

std::optional<std::vector<parsed_number>> parseColumn(const csv_column& column, bool decimalComma)
{
    std::vector<parsed_number> parsed;
    parsed.reserve(column.cells.size());
    for (const std::string& cell : column.cells) {
        const auto number = parseNumber(cell, decimalComma);
        if (!number) {
            return std::nullopt;
        }
        parsed.push_back(*number);
    }
    return parsed;
}

number_column storeColumn(const std::string& name, const std::vector<parsed_number>& parsed, double* values)
{
    number_column column{name, values};
    for (const parsed_number& number : parsed) {
        *values++ = number.value;
        column.decimals = std::max(column.decimals, number.decimals);
        column.present += VB_IsMissingValueDbl(number.value) == 0 ? 1 : 0;
    }
    return column;
}

} // namespace

text_block::~text_block()
{
    std::for_each(texts_.begin(), texts_.end(), SysFreeString);
}

text_column::text_column(std::string columnName, const std::vector<std::string>& cells)
    : name(std::move(columnName)), block(cells.size())
{
    for (std::size_t i = 0; i < cells.size(); ++i) {
        if (isMissing(cells[i])) {
            continue;
        }
        block[i] = toBstr(cells[i]).release();
        ++present;
    }
}

data_set::data_set(const csv_table& table)
    : rows(static_cast<int>(table.columns.front().cells.size())), leftOut(table.columns.front().cells.size()),
      weights(leftOut.size(), 1.0)
{
    // The table of numbers must not move once columns point into it.
    numbers.resize(leftOut.size() * table.columns.size());
    for (const csv_column& column : table.columns) {
        if (const auto parsed = parseColumn(column, table.separator == ';')) {
            double* values = numbers.data() + numberColumns.size() * leftOut.size();
            numberColumns.push_back(storeColumn(column.name, *parsed, values));
        } else {
            textColumns.emplace_back(column.name, column.cells);
        }
    }
    numbers.resize(leftOut.size() * numberColumns.size());
}

} // namespace report
