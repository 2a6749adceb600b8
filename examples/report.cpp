/**
 * @file
 * report FILE.csv...: prints a statistical report on each file, computed by KORVELMathTools.
 *
 * Everything goes through the library's flat functions with plain arrays, as from a macro. Exit code 0; 1
 * when a file could not be read (one line on the error stream tells why, the other files are reported all the
 * same); 2 without a file.
 */
#include "csv.h"
#include "data_set.h"
#include "sections.h"
#include "utf8.h"

#include <exception>
#include <filesystem>
#include <iostream>
#include <span>
#include <string>

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

void printReport(const std::filesystem::path& path, std::ostream& out)
{
    report::data_set data(report::readCsv(path));
    const std::string title = titleOf(path.filename().string(), data);
    out << title << '\n' << std::string(static_cast<std::size_t>(report::displayWidth(title)), '=') << '\n';
    for (const report::section& section : report::sections()) {
        const report::text_table table = section.make(data);
        if (!table.empty()) {
            out << '\n' << section.title << '\n';
            table.print(out);
        }
    }
    out << '\n';
}

} // namespace

int main(int argc, char** argv)
{
    const std::span files(argv + 1, argc > 0 ? static_cast<std::size_t>(argc) - 1 : 0);
    if (files.empty()) {
        std::cerr << "usage: report FILE.csv...\n";
        return 2;
    }
    int status = 0;
    for (const char* file : files) {
        try {
            printReport(file, std::cout);
        } catch (const std::exception& error) {
            std::cout.flush();
            std::cerr << "report: " << file << ": " << error.what() << '\n';
            status = 1;
        }
    }
    return std::cout.flush() ? status : 1;
}
