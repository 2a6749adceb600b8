/**
 * @file
 * The report on one file, from reading it to the sections.
 */
#ifndef KORVEL_EXAMPLES_REPORT_DOCUMENT_H
#define KORVEL_EXAMPLES_REPORT_DOCUMENT_H

#include "document.h"
#include "options.h"

#include <string>

namespace report
{

/** @throws std::runtime_error when the file cannot be reported on as is asked */
document documentOn(const std::string& file, const options& asked);

} // namespace report

#endif
