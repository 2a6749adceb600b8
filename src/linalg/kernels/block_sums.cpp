#include "linalg/kernels/block_sums.h"

#include "linalg/kernels/product.h"

namespace korvel::kernels
{

const block_sums_kernel& blockSumsKernel() noexcept
{
    switch (currentSet()) {
    case instruction_set::avx512:
        return avx512::blockSumsKernel;
    case instruction_set::avx2:
        return avx2::blockSumsKernel;
    default:
        return baseline::blockSumsKernel;
    }
}

} // namespace korvel::kernels
