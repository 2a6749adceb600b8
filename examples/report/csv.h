/**
 * @file
 * Reads files of separated values.
 */
#ifndef KORVEL_EXAMPLES_CSV_H
#define KORVEL_EXAMPLES_CSV_H

#include "csv_records.h"

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace report
{

/**
 * The text of a file with a header line, taken apart row by row as often as is asked for: no cell is kept.
 *
 * The separator is the one that is told, else the one in a first line `sep=;`, else whichever of comma,
 * semicolon, tab and bar is most frequent in the header. Cells may be quoted, with quotes inside doubled;
 * blanks around other cells are dropped. Lines may end in any usual way. A byte order mark is skipped. Empty
 * lines are skipped too, except in a file of one column, where each one before the last other line is an
 * empty cell.
 */
class csv_file
{
public:
    /** @throws csv_error when there is no such file, when it is no text, or when it is empty */
    csv_file(const std::filesystem::path& path, std::optional<char> separator);
    csv_file(const csv_file&) = delete;
    csv_file& operator=(const csv_file&) = delete;
    ~csv_file() = default;

    [[nodiscard]] char separator() const { return separator_; }

    /** The names in the header; a column without one has its number for a name. */
    [[nodiscard]] const std::vector<std::string>& names() const { return names_; }

    /** What a reader should know of the file, in sentences. */
    [[nodiscard]] const std::vector<std::string>& notes() const { return notes_; }

    /** A number of rows that the file does not exceed. */
    [[nodiscard]] std::size_t mostRows() const;

    /** How much of the file lies before a cell, from 0 to 1. */
    [[nodiscard]] double shareBefore(const record& row) const;

    /**
     * Calls `take(row)` with each record below the header.
     * @throws csv_error at a row with more or fewer cells than the header, and at a quote that is not closed
     */
    template <class Take>
    void eachRow(Take take) const;

private:
    [[noreturn]] void throwRagged(const record& row) const;

    std::string bytes_;
    std::string_view body_;
    std::size_t firstLine_ = 1; // Of the body.
    char separator_ = ',';
    std::vector<std::string> names_;
    std::vector<std::string> notes_;
};

template <class Take>
void csv_file::eachRow(Take take) const
{
    record_reader reader(body_, separator_, firstLine_);
    record row;
    std::size_t blanks = 0;
    while (reader.next(row)) {
        if (row.blank) {
            ++blanks;
            continue;
        }
        if (names_.size() == 1) {
            record empty;
            empty.cells.emplace_back();
            for (; blanks > 0; --blanks) {
                take(empty);
            }
        }
        if (row.cells.size() != names_.size()) {
            throwRagged(row);
        }
        take(row);
    }
}

} // namespace report

#endif
