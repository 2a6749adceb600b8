#define KORVEL_KERNEL_SET baseline
#include "linalg/kernels/symmetric_eigen_kernel.inc"
