/**
 * @file
 * report FILE.csv...: prints a statistical report on each file, computed by KORVELMathTools.
 * report FILE.csv... --y COLUMN: prints the regression of that column on the others instead.
 *
 * Everything goes through the library's flat functions with plain arrays, as from a macro. Exit code 0; 1
 * when a file could not be read (one line on the error stream tells why, the other files are reported all the
 * same) or a column is not there; 2 without a file.
 */
#include "csv.h"
#include "data_set.h"
#include "regression.h"
#include "sections.h"
#include "utf8.h"

#include <algorithm>
#include <exception>
#include <filesystem>
#include <iostream>
#include <optional>
#include <sstream>
#include <string>
#include <vector>

namespace
{

std::string counted(std::size_t count, const std::string& thing)
{
    return ", " + std::to_string(count) + " " + thing + (count == 1 ? "" : "s");
}

std::string titleOf(const std::string& fileName, const report::data_set& data)
{
    constexpr int nameWidth = 60;
    std::string title = report::displayText(fileName, nameWidth) + counted(data.leftOut.size(), "row");
    if (!data.numberColumns.empty()) {
        title += counted(data.numberColumns.size(), "column") + " of numbers";
    }
    if (!data.textColumns.empty()) {
        title += counted(data.textColumns.size(), "column") + " of text";
    }
    return title;
}

void printSections(report::data_set& data, std::ostream& out)
{
    for (const report::section& section : report::sections()) {
        const report::text_table table = section.make(data);
        if (!table.empty()) {
            out << '\n' << section.title << '\n';
            table.print(out);
        }
    }
}

void printTitle(const std::string& title, std::ostream& out)
{
    out << title << '\n' << std::string(static_cast<std::size_t>(report::displayWidth(title)), '=') << '\n';
}

/** What is asked for: files, and the column that a regression explains. */
struct request {
    std::vector<std::string> files;
    std::optional<std::string> response;
};

/** Nothing when it cannot be understood. */
std::optional<request> requestOf(const std::vector<std::string>& words)
{
    request asked;
    for (std::size_t k = 0; k < words.size(); ++k) {
        if (words[k] != "--y") {
            asked.files.push_back(words[k]);
        } else if (++k < words.size()) {
            asked.response = words[k];
        } else {
            return std::nullopt;
        }
    }
    return asked.files.empty() ? std::nullopt : std::optional(asked);
}

void printReport(const std::filesystem::path& path, const std::optional<std::string>& response,
                 std::ostream& out)
{
    report::data_set data(report::readCsv(path));
    const std::string title = titleOf(path.filename().string(), data);
    if (response) {
        // Nothing is printed of a file that does not have the column.
        std::ostringstream regression;
        report::printRegression(data, *response, regression);
        printTitle(title, out);
        out << regression.str();
    } else {
        printTitle(title, out);
        printSections(data, out);
    }
    out << '\n';
}

} // namespace

int main(int argc, char** argv)
{
    const auto asked = requestOf(std::vector<std::string>(argv + std::min(argc, 1), argv + argc));
    if (!asked) {
        std::cerr << "usage: report FILE.csv... [--y COLUMN]\n";
        return 2;
    }
    int status = 0;
    for (const std::string& file : asked->files) {
        try {
            printReport(file, asked->response, std::cout);
        } catch (const std::exception& error) {
            std::cout.flush();
            std::cerr << "report: " << file << ": " << error.what() << '\n';
            status = 1;
        }
    }
    return std::cout.flush() ? status : 1;
}
