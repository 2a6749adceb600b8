#include "linalg/kernels/product.h"

#include "platform/cpu.h"

namespace korvel::kernels
{

namespace
{

const product_kernel& kernelOf(instruction_set set) noexcept
{
    switch (set) {
    case instruction_set::avx512:
        return avx512::productKernel;
    case instruction_set::avx2:
        return avx2::productKernel;
    default:
        return baseline::productKernel;
    }
}

instruction_set bestSet() noexcept
{
    return hasSet(instruction_set::avx512) ? instruction_set::avx512
           : hasSet(instruction_set::avx2) ? instruction_set::avx2
                                           : instruction_set::baseline;
}

instruction_set chosenSet = bestSet();
const product_kernel* chosen = &kernelOf(chosenSet);

void choose(instruction_set set) noexcept
{
    chosenSet = set;
    chosen = &kernelOf(set);
}

} // namespace

const product_kernel& productKernel() noexcept
{
    return *chosen;
}

bool hasSet(instruction_set set) noexcept
{
    switch (set) {
    case instruction_set::avx512:
        return platform::hasAvx512();
    case instruction_set::avx2:
        return platform::hasAvx2();
    default:
        return true;
    }
}

instruction_set currentSet() noexcept
{
    return chosenSet;
}

forced_set::forced_set(instruction_set set) noexcept
{
    choose(set);
}

forced_set::~forced_set()
{
    choose(bestSet());
}

} // namespace korvel::kernels
