// LU and Cholesky decomposition for the baseline.
#define KORVEL_KERNEL_SET baseline
#include "linalg/kernels/factors_kernel.inc"
