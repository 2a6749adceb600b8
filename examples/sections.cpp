#include "sections.h"

#include <array>

namespace report
{

std::span<const section> sections()
{
    static constexpr std::array all{
        section{"Numbers", location},
        section{"Range and quartiles", quartiles},
        section{"Shape", shape},
        section{"Texts", frequencies},
    };
    return all;
}

} // namespace report
