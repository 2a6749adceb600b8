#include "linalg/kernels/sweep.h"

#include "linalg/kernels/product.h"

namespace korvel::kernels
{

const sweep_kernel& sweepKernel() noexcept
{
    switch (currentSet()) {
    case instruction_set::avx512:
        return avx512::sweepKernel;
    case instruction_set::avx2:
        return avx2::sweepKernel;
    default:
        return baseline::sweepKernel;
    }
}

} // namespace korvel::kernels
