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

std::string blanks(std::size_t count)
{
    return std::string(count, ' ');
}

std::string filled(const std::string& text, std::size_t width)
{
    return text + blanks(width - static_cast<std::size_t>(displayWidth(text)));
}

} // namespace

number_parts partsOf(const std::string& number)
{
    const std::size_t point = std::min(number.find('.'), number.size());
    return {point, number.size() - point};
}

bool text_table::shows(std::string_view cell) const
{
    return std::ranges::any_of(rows_, [cell](const std::vector<std::string>& row) {
        return std::ranges::find(row, cell) != row.end();
    });
}

std::vector<std::string> text_table::paddedColumn(std::size_t j) const
{
    const auto& [title, cells] = headings_[j];
    number_parts widest{0, 0};
    auto width = static_cast<std::size_t>(displayWidth(title));
    for (const auto& row : rows_) {
        const number_parts cell = partsOf(row[j]);
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
            const number_parts cell = partsOf(row[j]);
            padded.push_back(blanks(width - widest.after - cell.before) + row[j] +
                             blanks(widest.after - cell.after));
        }
    }
    return padded;
}

std::size_t text_table::mostBehindPoint(std::size_t j) const
{
    std::size_t most = 0;
    for (const auto& row : rows_) {
        most = std::max(most, partsOf(row[j]).after);
    }
    return most;
}

std::vector<std::vector<std::size_t>> text_table::parts() const
{
    constexpr int lineWidth = 100;
    constexpr int gap = 2;
    const int labelWidth = gap + displayWidth(paddedColumn(0)[0]);
    std::vector<std::vector<std::size_t>> found(1);
    int width = labelWidth;
    for (std::size_t j = 1; j < headings_.size(); ++j) {
        const int columnWidth = gap + displayWidth(paddedColumn(j)[0]);
        if (!found.back().empty() && width + columnWidth > lineWidth) {
            found.emplace_back();
            width = labelWidth;
        }
        found.back().push_back(j);
        width += columnWidth;
    }
    return found;
}

void text_table::print(std::ostream& out) const
{
    bool isFirst = true;
    for (const std::vector<std::size_t>& part : parts()) {
        std::vector<std::string> lines(rows_.size() + 1);
        const auto append = [&](std::size_t j) {
            const std::vector<std::string> column = paddedColumn(j);
            for (std::size_t i = 0; i < lines.size(); ++i) {
                lines[i] += "  " + column[i];
            }
        };
        append(0);
        std::ranges::for_each(part, append);
        out << (isFirst ? "" : "\n");
        for (const std::string& line : lines) {
            out << line.substr(0, line.find_last_not_of(' ') + 1) << '\n';
        }
        isFirst = false;
    }
}

std::string shown(double number, int decimals)
{
    if (VB_IsMissingValueDbl(number) != 0) {
        return std::string(noFigure);
    }
    // All cells are finite, and so are the figures made of them but when they pass all numbers on the way.
    if (!std::isfinite(number)) {
        return std::string(tooLarge);
    }
    if (number == 0) {
        return "0";
    }
    constexpr int mostDecimals = 8;
    constexpr int decimalsOfPowers = 4;
    const double size = std::abs(number);
    const bool fixed = decimals <= mostDecimals && size < 1e12 && size >= std::pow(10.0, -decimals);
    std::array<char, 64> buffer{};
    std::snprintf(buffer.data(), buffer.size(), fixed ? "%.*f" : "%.*e", fixed ? decimals : decimalsOfPowers,
                  number);
    return buffer.data();
}

std::string rounded(double number, int decimals)
{
    if (VB_IsMissingValueDbl(number) != 0) {
        return std::string(noFigure);
    }
    const double scale = std::pow(10.0, decimals);
    return shown(std::round(number * scale) / scale, decimals);
}

std::string shown(int count)
{
    return std::to_string(count);
}

std::string shownFigure(double number)
{
    constexpr int digits = 5;
    const bool hasSize = number != 0.0 && std::isfinite(number);
    const int before = hasSize ? static_cast<int>(std::floor(std::log10(std::abs(number)))) + 1 : 1;
    return shown(number, std::max(digits - before, 0));
}

std::string shownWeight(double weight)
{
    constexpr int decimals = 3;
    return shown(weight, weight == std::floor(weight) ? 0 : decimals);
}

std::string shownPercent(double number, double all)
{
    return rounded(100.0 * number / all, 1);
}

std::string shownName(const std::string& name)
{
    constexpr int widest = 24;
    return displayText(name, widest);
}

} // namespace report
