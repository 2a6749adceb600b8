#include "column_kinds.h"

#include "utf8.h"

#include <algorithm>
#include <utility>

namespace report
{

namespace
{

// For each different text the number of rows that have it.
std::vector<int> frequenciesOf(const interned_column& column)
{
    std::vector<int> frequencies(column.texts().size());
    for (const int cell : column.cells()) {
        if (cell != interned_column::missing) {
            ++frequencies[static_cast<std::size_t>(cell)];
        }
    }
    return frequencies;
}

std::string quoted(const std::string& text)
{
    constexpr int widest = 40;
    return '"' + displayText(text, widest) + '"';
}

std::string columnNamed(const std::string& name)
{
    constexpr int widest = 40;
    return "Column " + displayText(name, widest);
}

template <class Style, class Read>
bool allAre(const interned_column& column, const Style& style, Read read)
{
    return std::ranges::all_of(column.texts(),
                               [&](const std::string& text) { return read(text, style).has_value(); });
}

std::string shortest(double number)
{
    std::string text = std::to_string(number);
    text.erase(text.find_last_not_of('0') + 1);
    return text.ends_with('.') ? text.substr(0, text.size() - 1) : text;
}

// Tells how a cell was read whose meaning another reader might take otherwise.
std::string noteOnStyle(const std::string& name, const interned_column& column, const number_style& style,
                        char separator)
{
    if (style.group == 0 && separator == ';') {
        return "";
    }
    const auto example = std::ranges::find_if(
        column.texts(), [](const std::string& text) { return !readNumber(text).has_value(); });
    return columnNamed(name) + " has numbers " + style.told + ": " + quoted(*example) + " was read as " +
           shortest(readNumber(*example, style)->value) + '.';
}

std::string noteOnDates(const std::string& name, const interned_column& column, const date_style& style)
{
    for (const date_style& other : dateStyles()) {
        if (&other != &style && allAre(column, other, readDate)) {
            return columnNamed(name) + " has dates that may also be read as " + other.told +
                   "; they were read as " + style.told + '.';
        }
    }
    return "";
}

// A hint when nearly all cells of a column of texts are numbers.
std::string noteOnTexts(const std::string& name, const interned_column& column, char separator)
{
    const std::vector<int> frequencies = frequenciesOf(column);
    int all = 0;
    for (const int frequency : frequencies) {
        all += frequency;
    }
    int most = 0;
    std::vector<std::size_t> others;
    for (const number_style& style : numberStyles(separator)) {
        int count = 0;
        std::vector<std::size_t> unread;
        for (std::size_t k = 0; k < frequencies.size(); ++k) {
            if (readNumber(column.texts()[k], style)) {
                count += frequencies[k];
            } else {
                unread.push_back(k);
            }
        }
        if (count > most) {
            most = count;
            others = std::move(unread);
        }
    }
    // Nearly all: four of five at least.
    if (most < 3 || most < all - all / 5) {
        return "";
    }
    const auto row =
        std::ranges::find(column.cells(), static_cast<int>(others.front())) - column.cells().begin();
    std::string note = columnNamed(name) + " was taken for texts, but " + std::to_string(most) + " of its " +
                       std::to_string(all) + " cells are numbers. The first other one is " +
                       quoted(column.texts()[others.front()]) + " in row " + std::to_string(row + 1) + '.';
    if (others.size() == 1) {
        note +=
            " If it stands for a missing number: --missing " + quoted(column.texts()[others.front()]) + '.';
    }
    return note;
}

} // namespace

void interned_column::add(std::string_view text)
{
    const auto found = numbers_.find(text);
    if (found != numbers_.end()) {
        cells_.push_back(found->second);
        return;
    }
    const auto number = static_cast<int>(texts_.size());
    numbers_.emplace(texts_.emplace_back(text), number);
    cells_.push_back(number);
}

column_kind kindOf(const std::string& name, const interned_column& column, char separator)
{
    const auto readAs = [](const std::string& text, const number_style& style) {
        return readNumber(text, style);
    };
    for (const number_style& style : numberStyles(separator)) {
        if (allAre(column, style, readAs)) {
            return {&style, nullptr, noteOnStyle(name, column, style, separator)};
        }
    }
    for (const date_style& style : dateStyles()) {
        if (allAre(column, style, readDate)) {
            return {nullptr, &style, noteOnDates(name, column, style)};
        }
    }
    return {nullptr, nullptr, noteOnTexts(name, column, separator)};
}

int storeNumbers(const interned_column& column, const number_style& style, double* values)
{
    std::vector<double> numbers;
    int decimals = 0;
    for (const std::string& text : column.texts()) {
        const parsed_number number = readNumber(text, style).value();
        numbers.push_back(number.value);
        decimals = std::max(decimals, number.decimals);
    }
    for (const int cell : column.cells()) {
        *values++ =
            cell == interned_column::missing ? missingNumber : numbers[static_cast<std::size_t>(cell)];
    }
    return decimals;
}

date_column datesOf(std::string name, const interned_column& column, const date_style& style)
{
    date_column dates{std::move(name), {}, style.told, false};
    std::vector<double> days;
    for (const std::string& text : column.texts()) {
        const parsed_date date = readDate(text, style).value();
        days.push_back(date.days);
        dates.hasTimes = dates.hasTimes || date.hasTime;
    }
    dates.days.reserve(column.cells().size());
    for (const int cell : column.cells()) {
        dates.days.push_back(cell == interned_column::missing ? missingNumber
                                                              : days[static_cast<std::size_t>(cell)]);
    }
    return dates;
}

text_column textsOf(std::string name, const interned_column& column)
{
    text_column texts{std::move(name), text_block(column.texts().size()), {}};
    for (std::size_t k = 0; k < column.texts().size(); ++k) {
        texts.different[k] = toBstr(column.texts()[k]).release();
    }
    texts.cells.reserve(column.cells().size());
    for (const int cell : column.cells()) {
        texts.cells.push_back(
            cell == interned_column::missing ? nullptr : texts.different[static_cast<std::size_t>(cell)]);
    }
    return texts;
}

} // namespace report
