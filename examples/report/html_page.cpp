#include "document.h"
#include "markup.h"
#include "page_style.h"

#include <cstddef>
#include <ostream>
#include <string>

namespace report
{

namespace
{

void printHead(const std::string& title, std::ostream& out)
{
    out << "<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n"
           // The browser itself sees to it that the page asks for nothing outside.
           "<meta http-equiv=\"Content-Security-Policy\""
           " content=\"default-src 'none'; style-src 'unsafe-inline'; img-src data:\">\n"
           "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\n"
           "<meta name=\"color-scheme\" content=\"light dark\">\n"
           "<link rel=\"icon\" href=\"data:,\">\n"
           "<title>"
        << escaped(title) << "</title>\n<style>" << pageStyle() << "</style>\n</head>\n";
}

void printCell(const std::string& tag, const std::string& attributes, const std::string& text,
               std::ostream& out)
{
    out << '<' << tag << attributes << '>' << escaped(text) << "</" << tag << '>';
}

// The class of a cell, and the room that puts its decimal point below those of the other cells.
std::string placeOf(const text_table& table, std::size_t j, const std::string& cell)
{
    if (table.headings()[j].cells == alignment::left) {
        return cell.starts_with(' ') ? " class=\"minor\"" : "";
    }
    const std::size_t behind = table.mostBehindPoint(j) - partsOf(cell).after;
    const std::string room = " style=\"padding-right:calc(0.6rem + " + std::to_string(behind) + "ch)\"";
    return " class=\"figure\"" + (behind == 0 ? "" : room);
}

void printTable(const text_table& table, const std::vector<std::size_t>& columns, std::ostream& out)
{
    const auto printHeading = [&](std::size_t j) {
        const bool isLeft = table.headings()[j].cells == alignment::left;
        printCell("th", isLeft ? " scope=\"col\"" : " scope=\"col\" class=\"figure\"",
                  table.headings()[j].title, out);
    };
    out << "<div class=\"scroll\"><table>\n<thead><tr>";
    printHeading(0);
    for (const std::size_t j : columns) {
        printHeading(j);
    }
    out << "</tr></thead>\n<tbody>\n";
    for (const auto& row : table.rows()) {
        out << "<tr>";
        printCell("th", " scope=\"row\"" + placeOf(table, 0, row[0]), row[0], out);
        for (const std::size_t j : columns) {
            printCell("td", placeOf(table, j, row[j]), row[j], out);
        }
        out << "</tr>\n";
    }
    out << "</tbody></table></div>\n";
}

void printSection(const section& section, const std::string& id, std::ostream& out)
{
    out << "<section id=\"" << id << "\">\n";
    printCell("h2", "", section.title, out);
    out << '\n';
    for (const text_table& table : section.tables) {
        for (const auto& columns : table.parts()) {
            printTable(table, columns, out);
        }
    }
    for (const std::string& note : section.notes) {
        printCell("p", " class=\"note\"", note, out);
        out << '\n';
    }
    if (!section.pictures.empty()) {
        out << "<div class=\"pictures\">\n";
        for (const picture& picture : section.pictures) {
            out << "<figure>" << picture.svg;
            for (const text_table& table : picture.numbers) {
                out << "<details><summary>Numbers</summary>";
                for (const auto& columns : table.parts()) {
                    printTable(table, columns, out);
                }
                out << "</details>";
            }
            out << "</figure>\n";
        }
        out << "</div>\n";
    }
    out << "</section>\n";
}

} // namespace

void printPage(const std::vector<document>& reports, std::ostream& out)
{
    printHead(reports.size() == 1 ? reports.front().title : std::to_string(reports.size()) + " reports", out);
    out << "<body>\n<main>\n";
    int number = 0;
    for (const document& report : reports) {
        const std::string prefix = "report" + std::to_string(++number) + "-";
        out << "<article>\n";
        printCell("h1", "", report.title, out);
        out << "\n<nav aria-label=\"Sections\"><ul>\n";
        for (std::size_t k = 0; k < report.sections.size(); ++k) {
            out << "<li><a href=\"#" << prefix << k + 1 << "\">" << escaped(report.sections[k].title)
                << "</a></li>\n";
        }
        out << "</ul></nav>\n";
        for (std::size_t k = 0; k < report.sections.size(); ++k) {
            printSection(report.sections[k], prefix + std::to_string(k + 1), out);
        }
        out << "</article>\n";
    }
    out << "</main>\n</body>\n</html>\n";
}

} // namespace report
