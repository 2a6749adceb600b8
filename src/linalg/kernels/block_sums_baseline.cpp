#define KORVEL_KERNEL_SET baseline
#include "linalg/kernels/block_sums_kernel.inc"
