/**
 * @file
 * The macro layer's codes for the type of a column.
 */
#ifndef KORVEL_QUALITATIVE_COLUMN_TYPES_H
#define KORVEL_QUALITATIVE_COLUMN_TYPES_H

namespace korvel
{

/** Whether the code stands for a qualitative column that is nothing else. */
[[nodiscard]] constexpr bool isPurelyQualitative(int type)
{
    return type == 2 || type == 4;
}

/** Whether the code stands for a column that is taken as qualitative. */
[[nodiscard]] constexpr bool isQualitative(int type)
{
    return isPurelyQualitative(type) || type == 5;
}

} // namespace korvel

#endif
