#define KORVEL_KERNEL_SET baseline
#include "linalg/kernels/sweep_kernel.inc"
