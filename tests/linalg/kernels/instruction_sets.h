#ifndef KORVEL_TESTS_LINALG_KERNELS_INSTRUCTION_SETS_H
#define KORVEL_TESTS_LINALG_KERNELS_INSTRUCTION_SETS_H

#include "linalg/kernels/product.h"

#include <vector>

namespace korvel::test
{

/** The instruction sets that kernels are compiled for and this processor has. */
inline std::vector<kernels::instruction_set> setsOfThisProcessor()
{
    std::vector<kernels::instruction_set> sets;
    for (const auto set : {kernels::instruction_set::baseline, kernels::instruction_set::avx2,
                           kernels::instruction_set::avx512}) {
        if (kernels::hasSet(set)) {
            sets.push_back(set);
        }
    }
    return sets;
}

} // namespace korvel::test

#endif
