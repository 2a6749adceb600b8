#include "csv.h"

#include "encoding.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>
#include <limits>
#include <memory>
#include <system_error>

namespace report
{

namespace
{

struct file_close {
    void operator()(std::FILE* file) const { std::fclose(file); }
};

std::string lastError()
{
    return std::generic_category().message(errno);
}

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
    const std::unique_ptr<std::FILE, file_close> file(std::fopen(path.string().c_str(), "rb"));
    if (file == nullptr) {
        throw csv_error("cannot be opened: " + lastError());
    }
    std::string bytes;
    // The size is known of a usual file only.
    const std::uintmax_t size = std::filesystem::file_size(path, error);
    constexpr std::size_t block = std::size_t{1} << 20U;
    if (!error && size < std::numeric_limits<std::size_t>::max() - block) {
        bytes.reserve(static_cast<std::size_t>(size) + block);
    }
    for (;;) {
        const std::size_t before = bytes.size();
        bytes.resize(before + block);
        const std::size_t count = std::fread(&bytes[before], 1, block, file.get());
        bytes.resize(before + count);
        if (count < block) {
            break;
        }
    }
    if (std::ferror(file.get()) != 0) {
        throw csv_error("cannot be read: " + lastError());
    }
    return bytes;
}

// The first record that is not blank, or a blank one when all are.
record headerOf(record_reader& reader)
{
    record header;
    while (reader.next(header) && header.blank) {
    }
    return header;
}

char likelySeparator(std::string_view text)
{
    constexpr std::array candidates{',', ';', '\t', '|'};
    std::array<std::size_t, candidates.size()> cells{};
    std::transform(candidates.begin(), candidates.end(), cells.begin(), [&](char candidate) {
        record_reader reader(text, candidate, 1);
        return headerOf(reader).cells.size();
    });
    // The first one wins a tie, so a header of one cell counts as comma-separated.
    return candidates[static_cast<std::size_t>(std::max_element(cells.begin(), cells.end()) - cells.begin())];
}

// The separator in a first line `sep=;`, which is then taken off; nothing when there is no such line.
std::optional<char> takeSeparatorLine(std::string_view& text)
{
    const std::size_t end = std::min(text.find_first_of("\r\n"), text.size());
    std::string_view line = text.substr(0, end);
    if (line.starts_with('"') && line.ends_with('"')) {
        line = line.substr(1, line.size() - 2);
    }
    if (line.size() != 5 || !(line.starts_with("sep=") || line.starts_with("SEP="))) {
        return std::nullopt;
    }
    const char separator = line[4];
    text.remove_prefix(end);
    text.remove_prefix(text.starts_with("\r\n") ? 2 : text.empty() ? 0 : 1);
    return separator;
}

std::string cellCount(std::size_t count)
{
    return std::to_string(count) + (count == 1 ? " cell" : " cells");
}

} // namespace

csv_file::csv_file(const std::filesystem::path& path, std::optional<char> separator) : bytes_(readWhole(path))
{
    if (const auto note = makeUtf8(bytes_)) {
        notes_.push_back(*note);
    }
    std::string_view table = bytes_;
    if (table.starts_with("\xEF\xBB\xBF")) {
        table.remove_prefix(3);
    }
    const std::optional<char> told = takeSeparatorLine(table);
    separator_ = separator ? *separator : told ? *told : likelySeparator(table);
    record_reader reader(table, separator_, told ? 2 : 1);
    const record header = headerOf(reader);
    if (header.blank) {
        throw csv_error("is empty");
    }
    for (const std::string_view name : header.cells) {
        names_.emplace_back(name.empty() ? "(column " + std::to_string(names_.size() + 1) + ")" : name);
    }
    body_ = reader.rest();
    firstLine_ = reader.line();
}

std::size_t csv_file::mostRows() const
{
    const auto count = [this](char end) { return std::count(body_.begin(), body_.end(), end); };
    // Each row ends a line, and each of its cells but the last one is followed by a separator.
    const auto lines = static_cast<std::size_t>(std::max(count('\n') + count('\r'), std::ptrdiff_t{0})) + 1;
    return std::min(lines, body_.size() / names_.size() + 1);
}

double csv_file::shareBefore(const record& row) const
{
    const char* const at = row.cells[0].data();
    const char* const begin = body_.data();
    // A cell that was quoted does not stand in the file.
    return at >= begin && at <= begin + body_.size()
               ? static_cast<double>(at - begin) / static_cast<double>(body_.size())
               : 0.0;
}

void csv_file::throwRagged(const record& row) const
{
    throw csv_error("line " + std::to_string(row.line) + " has " + cellCount(row.cells.size()) +
                    ", the header has " + std::to_string(names_.size()));
}

} // namespace report
