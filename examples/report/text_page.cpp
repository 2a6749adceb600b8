#include "document.h"
#include "utf8.h"

#include <algorithm>
#include <cstddef>
#include <ostream>
#include <sstream>

namespace report
{

namespace
{

// In lines that begin with two blanks.
void printWrapped(const std::string& note, std::ostream& out)
{
    constexpr int lineWidth = 100;
    std::istringstream words(note);
    std::string line(1, ' ');
    for (std::string word; words >> word;) {
        if (displayWidth(line) + 1 + displayWidth(word) > lineWidth) {
            out << line << '\n';
            line.assign(1, ' ');
        }
        line += ' ' + word;
    }
    out << line << '\n';
}

} // namespace

bool section::empty() const
{
    return notes.empty() && std::ranges::all_of(tables, &text_table::empty);
}

void section::explain(std::string_view cell, const std::string& note)
{
    if (std::ranges::any_of(tables, [cell](const text_table& table) { return table.shows(cell); })) {
        notes.push_back(std::string(cell) + ": " + note);
    }
}

void printText(const document& report, std::ostream& out)
{
    out << report.title << '\n'
        << std::string(static_cast<std::size_t>(displayWidth(report.title)), '=') << '\n';
    for (const section& section : report.sections) {
        out << '\n' << section.title << '\n';
        bool isFirst = true;
        for (const text_table& table : section.tables) {
            out << (isFirst ? "" : "\n");
            table.print(out);
            isFirst = false;
        }
        for (const std::string& note : section.notes) {
            printWrapped(note, out);
        }
    }
    out << '\n';
}

} // namespace report
