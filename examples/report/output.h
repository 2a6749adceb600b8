/**
 * @file
 * Writes what is made: all of it, or an exception.
 */
#ifndef KORVEL_EXAMPLES_OUTPUT_H
#define KORVEL_EXAMPLES_OUTPUT_H

#include <filesystem>
#include <string_view>

namespace report
{

/** Writes a text to the standard output. @throws std::runtime_error when that fails */
void writeOut(std::string_view text);

/**
 * Writes a text into a file. A file of that name is replaced only when all is written.
 * @throws std::runtime_error when that fails; no part of the text is left then
 */
void writeFile(const std::filesystem::path& path, std::string_view text);

} // namespace report

#endif
