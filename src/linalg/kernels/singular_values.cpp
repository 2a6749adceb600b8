#include "linalg/kernels/singular_values.h"

namespace korvel::kernels
{

const singular_value_kernel& singularValueKernel() noexcept
{
    switch (currentSet()) {
    case instruction_set::avx512:
        return avx512::singularValueKernel;
    case instruction_set::avx2:
        return avx2::singularValueKernel;
    default:
        return baseline::singularValueKernel;
    }
}

} // namespace korvel::kernels
