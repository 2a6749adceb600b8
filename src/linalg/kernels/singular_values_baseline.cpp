#define KORVEL_KERNEL_SET baseline
#include "linalg/kernels/singular_values_kernel.inc"
