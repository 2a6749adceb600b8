/**
 * @file
 * A table of texts printed with aligned columns.
 */
#ifndef KORVEL_EXAMPLES_TEXT_TABLE_H
#define KORVEL_EXAMPLES_TEXT_TABLE_H

#include <cstddef>
#include <iosfwd>
#include <string>
#include <string_view>
#include <vector>

namespace report
{

/** How the cells of a column stand: at its left edge, or with their decimal points one below the other. */
enum class alignment { left, point };

/** Rows of cells below a line of headings. */
class text_table
{
public:
    struct heading {
        std::string title;
        alignment cells;
    };

    explicit text_table(std::vector<heading> headings) : headings_(std::move(headings)) {}

    /** Adds a row; it has as many cells as there are headings. */
    void add(std::vector<std::string> cells) { rows_.push_back(std::move(cells)); }

    [[nodiscard]] bool empty() const { return rows_.empty(); }
    [[nodiscard]] const std::vector<heading>& headings() const { return headings_; }
    [[nodiscard]] const std::vector<std::vector<std::string>>& rows() const { return rows_; }

    /** Whether some cell is that text. */
    [[nodiscard]] bool shows(std::string_view cell) const;

    /**
     * The columns beside the first one, in as many parts as fit into a line of text each.
     */
    [[nodiscard]] std::vector<std::vector<std::size_t>> parts() const;

    /** The most characters from the point on in any cell of a column. */
    [[nodiscard]] std::size_t mostBehindPoint(std::size_t j) const;

    /**
     * Prints headings and rows, each line indented by two blanks. Columns that do not fit into a line follow
     * below the others, beside the first column once more.
     */
    void print(std::ostream& out) const;

private:
    /** Column `j` with its heading, each cell padded to the same width. */
    [[nodiscard]] std::vector<std::string> paddedColumn(std::size_t j) const;

    std::vector<heading> headings_;
    std::vector<std::vector<std::string>> rows_;
};

/** The characters of a number, all of one byte, before its point and from there on. */
struct number_parts {
    std::size_t before;
    std::size_t after;
};

number_parts partsOf(const std::string& number);

/** What stands in the place of a figure that there is none of, and of one beyond all numbers. */
inline constexpr std::string_view noFigure = "-";
inline constexpr std::string_view tooLarge = "overflow";

/**
 * A number with `decimals` digits after its point, or in powers of ten when these digits would not show it.
 */
std::string shown(double number, int decimals);

/** The same, but a number too small for its decimals becomes zero. */
std::string rounded(double number, int decimals);

std::string shown(int count);

/** With five digits or so that count. */
std::string shownFigure(double number);

/** A sum of weights: without decimals when it is whole. */
std::string shownWeight(double weight);

/** What percentage of `all` a number is. */
std::string shownPercent(double number, double all);

/** The name of a column, cut to a width that leaves room for figures. */
std::string shownName(const std::string& name);

} // namespace report

#endif
