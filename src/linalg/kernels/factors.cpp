#include "linalg/kernels/factors.h"

#include "linalg/kernels/product.h"

namespace korvel::kernels
{

const factor_kernel& factorKernel() noexcept
{
    switch (currentSet()) {
    case instruction_set::avx512:
        return avx512::factorKernel;
    case instruction_set::avx2:
        return avx2::factorKernel;
    default:
        return baseline::factorKernel;
    }
}

} // namespace korvel::kernels
