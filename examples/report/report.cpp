/**
 * @file
 * report FILE.csv...: prints a statistical report on each file, computed by KORVELMathTools, and with --html
 * FILE writes it as a page too. report --help tells the other options.
 *
 * Everything goes through the library's flat functions with plain arrays, as from a macro.
 */
#include "document.h"
#include "options.h"
#include "output.h"
#include "report_document.h"

#include <algorithm>
#include <exception>
#include <filesystem>
#include <iostream>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

namespace
{

constexpr int failed = 1;
constexpr int misused = 2;

void complain(const std::string& about, const std::exception& error)
{
    std::cerr << "report: " << about << ": " << error.what() << '\n';
}

// A page that takes the place of its own data would be a loss.
void checkPage(const report::options& asked)
{
    for (const std::string& file : asked.files) {
        std::error_code error;
        if (asked.page && std::filesystem::equivalent(file, *asked.page, error)) {
            throw std::runtime_error("is the file of the data; name another one for the page");
        }
    }
}

int reportOnAll(const report::options& asked)
{
    try {
        checkPage(asked);
    } catch (const std::exception& error) {
        complain(*asked.page, error);
        return failed;
    }
    int status = 0;
    std::vector<report::document> documents;
    for (const std::string& file : asked.files) {
        try {
            documents.push_back(report::documentOn(file, asked));
        } catch (const std::exception& error) {
            complain(file, error);
            status = failed;
            continue;
        }
        std::ostringstream text;
        report::printText(documents.back(), text);
        try {
            report::writeOut(text.str());
        } catch (const std::exception& error) {
            complain("the report", error);
            return failed;
        }
        if (!asked.page) {
            documents.clear();
        }
    }
    // A page on a part of the files would not be the one that is asked for.
    if (asked.page && status == 0) {
        std::ostringstream page;
        report::printPage(documents, page);
        try {
            report::writeFile(*asked.page, page.str());
        } catch (const std::exception& error) {
            complain(*asked.page, error);
            status = failed;
        }
    }
    return status;
}

} // namespace

int main(int argc, char** argv)
{
    try {
        const report::options asked =
            report::optionsOf(std::vector<std::string>(argv + std::min(argc, 1), argv + argc));
        if (asked.help) {
            report::writeOut(std::string(report::usageLine()) + '\n' + report::helpText());
            return 0;
        }
        return reportOnAll(asked);
    } catch (const report::usage_error& error) {
        std::cerr << "report: " << error.what() << '\n' << report::usageLine() << '\n';
        return misused;
    } catch (const std::exception& error) {
        complain("the report", error);
        return failed;
    }
}
