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

std::string padded(const std::string& text, std::size_t width)
{
    return text + blanks(width - static_cast<std::size_t>(displayWidth(text)));
}

} // namespace

void text_table::print(std::ostream& out) const
{
    std::vector<std::string> lines(rows_.size() + 1);
    for (std::size_t j = 0; j < headings_.size(); ++j) {
        const auto& [title, cells] = headings_[j];
        parts widest{0, 0};
        auto width = static_cast<std::size_t>(displayWidth(title));
        for (const auto& row : rows_) {
            const parts cell = partsOf(row[j]);
            widest = {std::max(widest.before, cell.before), std::max(widest.after, cell.after)};
            width = std::max(width, static_cast<std::size_t>(displayWidth(row[j])));
        }
        if (cells == alignment::left) {
            lines[0] += "  " + padded(title, width);
            for (std::size_t i = 0; i < rows_.size(); ++i) {
                lines[i + 1] += "  " + padded(rows_[i][j], width);
            }
        } else {
            width = std::max(width, widest.before + widest.after);
            lines[0] += "  " + blanks(width - static_cast<std::size_t>(displayWidth(title))) + title;
            for (std::size_t i = 0; i < rows_.size(); ++i) {
                const parts cell = partsOf(rows_[i][j]);
                lines[i + 1] += "  " + blanks(width - widest.after - cell.before) + rows_[i][j] +
                                blanks(widest.after - cell.after);
            }
        }
    }
    for (const std::string& line : lines) {
        out << line.substr(0, line.find_last_not_of(' ') + 1) << '\n';
    }
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

std::string shownName(const std::string& name)
{
    constexpr int widest = 24;
    return displayText(name, widest);
}

} // namespace report
