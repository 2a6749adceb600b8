/**
 * @file
 * What the command line asks for.
 */
#ifndef KORVEL_EXAMPLES_OPTIONS_H
#define KORVEL_EXAMPLES_OPTIONS_H

#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

namespace report
{

/** A command line that cannot be understood; what() tells why. */
class usage_error : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

/** How the cells of a file are told apart and which are missing. */
struct reading_rules {
    std::optional<char> separator;
    std::vector<std::string> missing{"", "NA", "N/A", ".", "null"};
};

/** Files, the roles of their columns, and where the page goes. */
struct options {
    bool help = false;
    std::vector<std::string> files;
    std::optional<std::string> response; ///< The column that a regression explains.
    std::optional<std::string> weights;  ///< The column of weights.
    std::optional<std::string> groups;   ///< The column that tells the group of a row.
    std::optional<std::string> page;     ///< The file of the HTML page.
    reading_rules reading;
};

/** @throws usage_error when the words cannot be understood */
options optionsOf(const std::vector<std::string>& words);

/** How the program is called, in one line. */
const char* usageLine();

/** What it does and what each option means. */
const char* helpText();

} // namespace report

#endif
