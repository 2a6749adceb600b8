#include "text_table.h"

#include "data_set.h"
#include "utf8.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdio>
#include <ostream>

namespace report
{

namespace
{

// The characters of a number, all of one byte, before its point and from there on.
struct parts {
    std::size_t before;
    std::size_t after;
};

parts partsOf(const std::string& number)
{
    const std::size_t point = std::min(number.find('.'), number.size());
    return {point, number.size() - point};
}

std::string blanks(std::size_t count)
{
    return std::string(count, ' ');
}

std::string filled(const std::string& text, std::size_t width)
{
    return text + blanks(width - static_cast<std::size_t>(displayWidth(text)));
}

} // namespace

std::vector<std::string> text_table::paddedColumn(std::size_t j) const
{
    const auto& [title, cells] = headings_[j];
    parts widest{0, 0};
    auto width = static_cast<std::size_t>(displayWidth(title));
    for (const auto& row : rows_) {
        const parts cell = partsOf(row[j]);
        widest = {std::max(widest.before, cell.before), std::max(widest.after, cell.after)};
        width = std::max(width, static_cast<std::size_t>(displayWidth(row[j])));
    }
    std::vector<std::string> padded;
    if (cells == alignment::left) {
        padded.push_back(filled(title, width));
        for (const auto& row : rows_) {
            padded.push_back(filled(row[j], width));
        }
    } else {
        width = std::max(width, widest.before + widest.after);
        padded.push_back(blanks(width - static_cast<std::size_t>(displayWidth(title))) + title);
        for (const auto& row : rows_) {
            const parts cell = partsOf(row[j]);
            padded.push_back(blanks(width - widest.after - cell.before) + row[j] +
                             blanks(widest.after - cell.after));
        }
    }
    return padded;
}

void text_table::print(std::ostream& out) const
{
    constexpr int lineWidth = 100;
    const auto append = [](std::vector<std::string>& lines, const std::vector<std::string>& column) {
        for (std::size_t i = 0; i < lines.size(); ++i) {
            lines[i] += "  " + column[i];
        }
    };
    const auto printLines = [&](const std::vector<std::string>& lines) {
        for (const std::string& line : lines) {
            out << line.substr(0, line.find_last_not_of(' ') + 1) << '\n';
        }
    };
    std::vector<std::string> labels(rows_.size() + 1);
    append(labels, paddedColumn(0));
    std::vector<std::string> lines = labels;
    for (std::size_t j = 1; j < headings_.size(); ++j) {
        const std::vector<std::string> column = paddedColumn(j);
        if (lines != labels && displayWidth(lines[0]) + 2 + displayWidth(column[0]) > lineWidth) {
            printLines(lines);
            out << '\n';
            lines = labels;
        }
        append(lines, column);
    }
    printLines(lines);
}

std::string shown(double number, int decimals)
{
    if (VB_IsMissingValueDbl(number) != 0) {
        return "-";
    }
    if (number == 0) {
        return "0";
    }
    constexpr int mostDecimals = 8;
    constexpr int decimalsOfPowers = 4;
    const double size = std::abs(number);
    const bool fixed = !std::isfinite(number) ||
                       (decimals <= mostDecimals && size < 1e12 && size >= std::pow(10.0, -decimals));
    std::array<char, 64> buffer{};
    std::snprintf(buffer.data(), buffer.size(), fixed ? "%.*f" : "%.*e", fixed ? decimals : decimalsOfPowers,
                  number);
    return buffer.data();
}

std::string rounded(double number, int decimals)
{
    if (VB_IsMissingValueDbl(number) != 0) {
        return "-";
    }
    const double scale = std::pow(10.0, decimals);
    return shown(std::round(number * scale) / scale, decimals);
}

std::string shown(int count)
{
    return std::to_string(count);
}

std::string shownPercent(int count, int all)
{
    return rounded(100.0 * count / all, 1);
}

std::string shownName(const std::string& name)
{
    constexpr int widest = 24;
    return displayText(name, widest);
}

} // namespace report
