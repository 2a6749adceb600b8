/**
 * @file
 * A report before it is printed: the same sections become text and a page.
 */
#ifndef KORVEL_EXAMPLES_DOCUMENT_H
#define KORVEL_EXAMPLES_DOCUMENT_H

#include "text_table.h"

#include <iosfwd>
#include <string>
#include <vector>

namespace report
{

/** A picture of the page. */
struct picture {
    std::string svg;
    std::vector<text_table> numbers; ///< What it shows that no table of its section does, to be unfolded.
};

/** Some tables below a title, with notes below them. */
struct section {
    std::string title;
    std::vector<text_table> tables;
    std::vector<std::string> notes;
    std::vector<picture> pictures; ///< For the page only.

    [[nodiscard]] bool empty() const;

    /** Adds a note when a table shows that cell. */
    void explain(std::string_view cell, const std::string& note);
};

/** The report on one file. */
struct document {
    std::string title;
    std::vector<section> sections;
};

/** Prints the document as plain text, in lines of 100 columns at most. */
void printText(const document& report, std::ostream& out);

/** Prints documents as one page in HTML, which needs no other file. */
void printPage(const std::vector<document>& reports, std::ostream& out);

} // namespace report

#endif
