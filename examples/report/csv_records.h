/**
 * @file
 * Takes a text of separated values apart, record by record. No library in Debian serves here: libcsv tells no
 * line numbers, and libfccp fixes the number of columns in the source and ends each cell with its line.
 */
#ifndef KORVEL_EXAMPLES_CSV_RECORDS_H
#define KORVEL_EXAMPLES_CSV_RECORDS_H

#include <cstddef>
#include <deque>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace report
{

/** A file that cannot be read as a table; what() tells why in a few words that follow the file's name. */
class csv_error : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

/** A row of the table, or its header; a quoted cell may stretch it over several lines of the file. */
struct record {
    std::vector<std::string_view> cells; ///< Valid until the next record is read.
    std::size_t line = 0;                ///< The line that it begins on, from 1.
    bool blank = true;                   ///< Nothing on it, neither a separator nor quotes.
};

/** Reads records from a text, which must outlive it. */
class record_reader
{
public:
    /** @param line the number of the text's first line */
    record_reader(std::string_view text, char separator, std::size_t line)
        : text_(text), separator_(separator), line_(line)
    {
    }

    /**
     * Reads the next record into `row`.
     * @return false at the end of the text
     * @throws csv_error at a quote that is not closed
     */
    bool next(record& row);

    /** What is not read yet. */
    [[nodiscard]] std::string_view rest() const { return text_.substr(place_); }

    /** The number of the line that the next record begins on. */
    [[nodiscard]] std::size_t line() const { return line_; }

private:
    std::string_view nextCell();
    std::string_view quotedCell();
    std::string quotedPart();
    std::string_view plainPart();
    bool takeIf(char expected);

    std::string_view text_;
    char separator_;
    std::size_t place_ = 0;
    std::size_t line_;
    std::deque<std::string>
        unquoted_; // Cells of the current record that do not stand in the text as they are.
};

} // namespace report

#endif
