#include "tables/matrix_dump.h"

#include "containers/utf8.h"
#include "platform/desktop_folder.h"

#include <array>
#include <charconv>
#include <filesystem>
#include <fstream>
#include <optional>
#include <string>
#include <system_error>

namespace korvel
{

namespace
{

using std::filesystem::path;

/** Every byte as one character of a file name. */
path::string_type fileCharacters(std::string_view bytes)
{
    path::string_type characters;
    for (const char byte : bytes) {
        characters += static_cast<path::value_type>(static_cast<unsigned char>(byte));
    }
    return characters;
}

/** The first unused file name in the folder for dumps; none when there is no desktop. */
std::optional<path> freeFile(std::string_view name)
{
    const auto desktop = platform::desktopFolder();
    if (!desktop) {
        return std::nullopt;
    }
    path::string_type stem = (*desktop / "matrix").native();
    stem += path::preferred_separator;
    stem += fileCharacters(name);
    const path::string_type ending = fileCharacters(".csv");
    path candidate(stem + ending);
    std::error_code unknown;
    for (int number = 1; std::filesystem::exists(candidate, unknown); ++number) {
        candidate = stem + fileCharacters("(") + fileCharacters(std::to_string(number)) +
                    fileCharacters(")") + ending;
    }
    return candidate;
}

/** The digits that a stream of precision 20 writes, the same with every C library. */
std::string rendered(double value)
{
    std::array<char, 40> digits{};
    const auto end =
        std::to_chars(digits.data(), digits.data() + digits.size(), value, std::chars_format::general, 20);
    return std::string(digits.data(), end.ptr);
}

std::string rendered(int value)
{
    return std::to_string(value);
}

std::string rendered(const text& value)
{
    return toUtf8(value);
}

} // namespace

template <class T>
void dumpTable(const matrix<T>& table, int rows, int cols, std::string_view name)
{
    const auto file = freeFile(name);
    if (!file) {
        return;
    }
    std::ofstream out(*file);
    out << "n = " << rendered(rows) << "; p = " << rendered(cols) << std::endl;
    for (int i = 0; out && i < rows; ++i) {
        for (int j = 0; j < cols; ++j) {
            out << rendered(table.getElement(i, j)) << ';';
        }
        out << std::endl;
    }
}

template void dumpTable(const matrix<double>&, int, int, std::string_view);
template void dumpTable(const matrix<int>&, int, int, std::string_view);
template void dumpTable(const matrix<text>&, int, int, std::string_view);

} // namespace korvel
