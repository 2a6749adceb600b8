#include "csv_records.h"

#include <algorithm>
#include <utility>

namespace report
{

namespace
{

std::string_view trimmed(std::string_view cell)
{
    while (cell.starts_with(' ')) {
        cell.remove_prefix(1);
    }
    while (cell.ends_with(' ')) {
        cell.remove_suffix(1);
    }
    return cell;
}

} // namespace

bool record_reader::next(record& row)
{
    if (place_ == text_.size()) {
        return false;
    }
    unquoted_.clear();
    row.cells.clear();
    row.line = line_;
    const std::size_t begin = place_;
    do {
        row.cells.push_back(nextCell());
    } while (takeIf(separator_));
    // A record of several cells has a separator, and quotes are something too.
    row.blank =
        row.cells.size() == 1 && row.cells[0].empty() && trimmed(text_.substr(begin, place_ - begin)).empty();
    const bool carriageReturn = takeIf('\r');
    if (takeIf('\n') || carriageReturn) {
        ++line_;
    }
    return true;
}

std::string_view record_reader::nextCell()
{
    while (separator_ != ' ' && takeIf(' ')) {
    }
    return takeIf('"') ? quotedCell() : trimmed(plainPart());
}

// Whatever follows the closing quote belongs to the cell, as in most spreadsheets.
std::string_view record_reader::quotedCell()
{
    std::string cell = quotedPart();
    cell += trimmed(plainPart());
    return unquoted_.emplace_back(std::move(cell));
}

std::string record_reader::quotedPart()
{
    const std::size_t opened = line_;
    std::string part;
    for (;;) {
        const std::size_t quote = text_.find('"', place_);
        if (quote == std::string_view::npos) {
            throw csv_error("line " + std::to_string(opened) + ": a quoted cell is not closed");
        }
        const std::string_view stretch = text_.substr(place_, quote - place_);
        line_ += static_cast<std::size_t>(std::count(stretch.begin(), stretch.end(), '\n'));
        part += stretch;
        place_ = quote + 1;
        if (!takeIf('"')) {
            return part;
        }
        part += '"';
    }
}

std::string_view record_reader::plainPart()
{
    const std::size_t begin = place_;
    while (place_ < text_.size() && text_[place_] != separator_ && text_[place_] != '\n' &&
           text_[place_] != '\r') {
        ++place_;
    }
    return text_.substr(begin, place_ - begin);
}

bool record_reader::takeIf(char expected)
{
    if (place_ == text_.size() || text_[place_] != expected) {
        return false;
    }
    ++place_;
    return true;
}

} // namespace report
