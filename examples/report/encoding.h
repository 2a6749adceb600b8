/**
 * @file
 * How the bytes of a file stand for characters.
 */
#ifndef KORVEL_EXAMPLES_ENCODING_H
#define KORVEL_EXAMPLES_ENCODING_H

#include <optional>
#include <string>

namespace report
{

/**
 * Leaves UTF-8 as it is. Other bytes are taken for those of Windows-1252, as older spreadsheets save, which
 * is Latin-1 with some more characters.
 * @return then a sentence that tells it, with the first byte that is not UTF-8
 * @throws csv_error when the bytes are no text, or a text in UTF-16 or UTF-32
 */
std::optional<std::string> makeUtf8(std::string& bytes);

} // namespace report

#endif
