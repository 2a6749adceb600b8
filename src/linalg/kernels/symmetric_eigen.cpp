#include "linalg/kernels/symmetric_eigen.h"

namespace korvel::kernels
{

const symmetric_eigen_kernel& symmetricEigenKernel() noexcept
{
    switch (currentSet()) {
    case instruction_set::avx512:
        return avx512::symmetricEigenKernel;
    case instruction_set::avx2:
        return avx2::symmetricEigenKernel;
    default:
        return baseline::symmetricEigenKernel;
    }
}

} // namespace korvel::kernels
