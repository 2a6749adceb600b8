#include "csv.h"

#include "utf8.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <fstream>
#include <iterator>
#include <limits>
#include <string_view>
#include <utility>

namespace report
{

namespace
{

std::string readWhole(const std::filesystem::path& path)
{
    std::error_code error;
    const auto kind = std::filesystem::status(path, error).type();
    if (kind == std::filesystem::file_type::not_found) {
        throw csv_error("no such file");
    }
    if (kind == std::filesystem::file_type::directory) {
        throw csv_error("is a directory, not a file");
    }
    std::ifstream file(path, std::ios::binary);
    if (!file) {
        throw csv_error("cannot be opened");
    }
    std::string bytes{std::istreambuf_iterator<char>(file), {}};
    if (file.bad()) {
        throw csv_error("cannot be read");
    }
    return bytes;
}

// One row of the table, or its header; a quoted cell may stretch it over several lines of the file.
struct record {
    std::vector<std::string> cells;
    std::size_t line = 0; // The line that it begins on, from 1.
    bool blank = false;   // Nothing on it, neither a separator nor quotes.
};

// Takes a text apart, record by record.
class record_reader
{
public:
    record_reader(std::string_view text, char separator) : rest_(text), separator_(separator) {}

    [[nodiscard]] bool atEnd() const { return rest_.empty(); }

    // The first record that is not blank, or a blank one when all are.
    record header()
    {
        for (;;) {
            record first = next();
            if (!first.blank || atEnd()) {
                return first;
            }
        }
    }

    record next()
    {
        record result;
        result.line = line_;
        const std::string_view before = rest_;
        do {
            result.cells.push_back(nextCell());
        } while (takeIf(separator_));
        result.blank = trimmed(before.substr(0, before.size() - rest_.size())).empty();
        takeLineEnd();
        return result;
    }

private:
    std::string nextCell()
    {
        std::string cell;
        while (rest_.starts_with(' ')) {
            rest_.remove_prefix(1);
        }
        if (takeIf('"')) {
            cell = quotedPart();
        }
        // Whatever follows the closing quote belongs to the cell, as in most spreadsheets.
        const std::size_t end =
            std::min(rest_.find_first_of(std::array{separator_, '\r', '\n', '\0'}.data()), rest_.size());
        cell += trimmed(rest_.substr(0, end));
        rest_.remove_prefix(end);
        return cell;
    }

    std::string quotedPart()
    {
        const std::size_t opened = line_;
        std::string part;
        for (;;) {
            const std::size_t quote = rest_.find('"');
            if (quote == std::string_view::npos) {
                throw csv_error("line " + std::to_string(opened) + ": a quoted cell is not closed");
            }
            const std::string_view stretch = rest_.substr(0, quote);
            line_ += static_cast<std::size_t>(std::count(stretch.begin(), stretch.end(), '\n'));
            part += stretch;
            rest_.remove_prefix(quote + 1);
            if (!takeIf('"')) {
                return part;
            }
            part += '"';
        }
    }

    static std::string_view trimmed(std::string_view cell)
    {
        const std::size_t first = std::min(cell.find_first_not_of(' '), cell.size());
        return cell.substr(first, cell.find_last_not_of(' ') + 1 - first);
    }

    void takeLineEnd()
    {
        const bool carriageReturn = takeIf('\r');
        if (takeIf('\n') || carriageReturn) {
            ++line_;
        }
    }

    bool takeIf(char expected)
    {
        if (rest_.empty() || rest_.front() != expected) {
            return false;
        }
        rest_.remove_prefix(1);
        return true;
    }

    std::string_view rest_;
    char separator_;
    std::size_t line_ = 1;
};

char separatorOf(std::string_view text)
{
    constexpr std::array candidates{',', ';', '\t'};
    std::array<std::size_t, candidates.size()> cells{};
    std::transform(candidates.begin(), candidates.end(), cells.begin(),
                   [&](char candidate) { return record_reader(text, candidate).header().cells.size(); });
    // The first one wins a tie, so a header of one cell counts as comma-separated.
    return candidates[static_cast<std::size_t>(std::max_element(cells.begin(), cells.end()) - cells.begin())];
}

std::vector<record> recordsOf(std::string_view text, char separator)
{
    std::vector<record> records;
    record_reader reader(text, separator);
    records.push_back(reader.header());
    while (!reader.atEnd()) {
        records.push_back(reader.next());
    }
    while (!records.empty() && records.back().blank) {
        records.pop_back();
    }
    return records;
}

std::string cellCount(std::size_t count)
{
    return std::to_string(count) + (count == 1 ? " cell" : " cells");
}

} // namespace

csv_table readCsv(const std::filesystem::path& path)
{
    const std::string text = asUtf8(readWhole(path));
    if (text.find('\0') != std::string::npos) {
        throw csv_error("holds zero bytes; save it as text in UTF-8");
    }
    std::string_view table = text;
    if (table.starts_with("\xEF\xBB\xBF")) {
        table.remove_prefix(3);
    }
    csv_table result;
    result.separator = separatorOf(table);
    std::vector<record> records = recordsOf(table, result.separator);
    if (records.empty()) {
        throw csv_error("is empty");
    }
    const std::size_t columns = records.front().cells.size();
    for (std::size_t j = 0; j < columns; ++j) {
        const std::string& name = records.front().cells[j];
        result.columns.push_back({name.empty() ? "(column " + std::to_string(j + 1) + ")" : name, {}});
    }
    for (auto row = records.begin() + 1; row != records.end(); ++row) {
        if (row->blank && columns > 1) {
            continue;
        }
        if (row->cells.size() != columns) {
            throw csv_error("line " + std::to_string(row->line) + " has " + cellCount(row->cells.size()) +
                            ", the header has " + std::to_string(columns));
        }
        for (std::size_t j = 0; j < columns; ++j) {
            result.columns[j].cells.push_back(std::move(row->cells[j]));
        }
    }
    const std::size_t rows = result.columns.front().cells.size();
    if (rows == 0) {
        throw csv_error("has a header and no rows");
    }
    if (rows > static_cast<std::size_t>(std::numeric_limits<int>::max())) {
        throw csv_error("has too many rows");
    }
    return result;
}

} // namespace report
