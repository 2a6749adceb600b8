/**
 * @file
 * Numbers as a JSON text has them.
 */
#ifndef KORVEL_CONTAINERS_JSON_NUMBER_H
#define KORVEL_CONTAINERS_JSON_NUMBER_H

#include <string>

namespace korvel
{

/**
 * The shortest text that reads back as the same number, and of several such texts the nearest to it: in plain
 * digits with a decimal point ("1.0", "0.000001") for a first digit between the sixth decimal and the 21st
 * place before the point, otherwise with an exponent ("1e21", "1.5e-7").
 *
 * @param value a finite number
 */
[[nodiscard]] std::string jsonNumber(double value);

} // namespace korvel

#endif
