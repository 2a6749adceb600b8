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
        section{"Principal components of the correlations, over the rows without missing numbers",
                componentShares},
        section{"Loadings of the components that make up 90 %", componentLoadings},
        section{"Texts", texts},
        section{"Categories, with their share of the texts that are not missing", categories},
        section{"Columns with missing cells", missingColumns},
        section{"Rows with missing cells", missingRows},
    };
    return all;
}

} // namespace report
