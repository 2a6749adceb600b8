#include "statistics/kernels/columns.h"

#include "linalg/kernels/product.h"

namespace korvel::kernels
{

const column_kernel& columnKernel() noexcept
{
    switch (currentSet()) {
    case instruction_set::avx512:
        return avx512::columnKernel;
    case instruction_set::avx2:
        return avx2::columnKernel;
    default:
        return baseline::columnKernel;
    }
}

} // namespace korvel::kernels
