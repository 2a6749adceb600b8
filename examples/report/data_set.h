/**
 * @file
 * A data set as a caller of the flat functions holds it: plain arrays, with the library's missing values.
 */
#ifndef KORVEL_EXAMPLES_DATA_SET_H
#define KORVEL_EXAMPLES_DATA_SET_H

#include "cells.h"
#include "korvelmathtools/KORVELMathTools.h"

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace report
{

/** A column of numbers: its place in the table of numbers, and how the file writes them. */
struct number_column {
    std::string name;
    double* values = nullptr; ///< One for each row.
    int decimals = 0;         ///< Most digits after the point in any cell.
};

/** An array of BSTR, which this object owns: at first all are empty. */
class text_block
{
public:
    explicit text_block(std::size_t size) : texts_(size) {}
    text_block(text_block&& other) noexcept = default;
    text_block(const text_block&) = delete;
    text_block& operator=(text_block&&) = delete;
    text_block& operator=(const text_block&) = delete;
    ~text_block();

    [[nodiscard]] OLECHAR** data() { return texts_.data(); }
    OLECHAR*& operator[](std::size_t k) { return texts_[k]; }
    OLECHAR* operator[](std::size_t k) const { return texts_[k]; }

private:
    std::vector<OLECHAR*> texts_;
};

/** A column of texts; a missing text is empty. */
struct text_column {
    std::string name;
    text_block different;        ///< Each text once.
    std::vector<OLECHAR*> cells; ///< One text for each row, out of that block.
};

/** A column of dates, perhaps with times of day. */
struct date_column {
    std::string name;
    std::vector<double> days; ///< One for each row, from 1970 on.
    std::string style;        ///< How the file writes them, in words.
    bool hasTimes = false;
};

/** The rows that belong together, in the order of the rows. */
struct row_group {
    std::string name;
    std::vector<int> rows; ///< From 0.
};

/** How the rows fall into groups. */
struct grouping {
    std::string column;
    std::vector<row_group> groups; ///< In the order of the numbers or dates, or else of the texts.
    int without = 0;               ///< Rows whose group is missing.
};

/** The columns of a file by kind, and the roles that some of them have. */
struct data_set {
    int rows = 0;
    int rowsUsed = 0;                  ///< Rows that are not left out.
    std::unique_ptr<double[]> numbers; ///< Column-major: one column of numbers after the other.
    std::vector<number_column> numberColumns;
    std::vector<text_column> textColumns;
    std::vector<date_column> dateColumns;
    std::vector<short int> leftOut; ///< A flag for each row: -1 for one without weight.
    std::vector<double> weights;    ///< One for each row; all 1 when no column of the file has them.
    std::string weightColumn;       ///< Empty when there is none.
    std::optional<grouping> groups;
    std::vector<std::string> notes; ///< What a reader should know of the file, in sentences.

    [[nodiscard]] bool isWeighted() const { return !weightColumn.empty(); }

    [[nodiscard]] std::size_t countOfNumbers() const
    {
        return numberColumns.size() * static_cast<std::size_t>(rows);
    }
};

} // namespace report

#endif
