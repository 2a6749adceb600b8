#include "options.h"

#include <cstddef>

namespace report
{

namespace
{

char separatorNamed(const std::string& word)
{
    if (word == "tab" || word == "\\t") {
        return '\t';
    }
    if (word.size() != 1 || word[0] == '"' || word[0] == '\r' || word[0] == '\n') {
        throw usage_error("--separator needs one character, or \"tab\"");
    }
    return word[0];
}

} // namespace

options optionsOf(const std::vector<std::string>& words)
{
    options asked;
    bool ownMissing = false;
    for (std::size_t k = 0; k < words.size(); ++k) {
        const std::string& word = words[k];
        if (word == "--help" || word == "-h") {
            asked.help = true;
            return asked;
        }
        if (!word.starts_with("--")) {
            asked.files.push_back(word);
            continue;
        }
        const bool isKnown = word == "--y" || word == "--weights" || word == "--by" || word == "--html" ||
                             word == "--separator" || word == "--missing";
        if (!isKnown) {
            throw usage_error("there is no option " + word);
        }
        if (++k == words.size()) {
            throw usage_error(word + " needs a word behind it");
        }
        if (word == "--y") {
            asked.response = words[k];
        } else if (word == "--weights") {
            asked.weights = words[k];
        } else if (word == "--by") {
            asked.groups = words[k];
        } else if (word == "--html") {
            asked.page = words[k];
        } else if (word == "--separator") {
            asked.reading.separator = separatorNamed(words[k]);
        } else {
            if (!ownMissing) {
                asked.reading.missing = {""};
                ownMissing = true;
            }
            asked.reading.missing.push_back(words[k]);
        }
    }
    if (asked.files.empty()) {
        throw usage_error("no file is named");
    }
    return asked;
}

const char* usageLine()
{
    return "usage: report FILE.csv... [--y COLUMN] [--weights COLUMN] [--by COLUMN] [--html FILE]"
           " [--separator C] [--missing TEXT]... [--help]";
}

const char* helpText()
{
    return R"(
Prints a statistical report on each file, computed by KORVELMathTools.

  --y COLUMN        adds the regression of that column on the other columns of numbers
  --weights COLUMN  how much each row counts; rows without a weight, or of weight 0, are left out
  --by COLUMN       adds summaries of each column of numbers by the groups that this column names
  --html FILE       writes the report as a page with pictures too, which needs no other file
  --separator C     the character between cells, or "tab"; otherwise it is guessed: , ; | or a tab, or
                    told by a first line such as sep=;
  --missing TEXT    a cell with this text is missing; may be given several times. An empty cell always
                    is. Without this option NA, N/A, "." and null are too
  --help            prints this text

A column is one of numbers or dates when every cell of it is one, or missing. Exit code 0; 1 when a file
cannot be reported on (one line on the error stream tells why, other files are reported all the same) or a
result cannot be written; 2 when the command line cannot be understood.
)";
}

} // namespace report
