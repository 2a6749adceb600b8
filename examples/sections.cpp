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
        section{"Correlations, over the rows that neither column misses", correlations},
        section{"Texts", frequencies},
        section{"Columns with missing cells", missingColumns},
        section{"Rows with missing cells", missingRows},
    };
    return all;
}

} // namespace report
