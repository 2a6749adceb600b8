#define KORVEL_KERNEL_SET baseline
#define KORVEL_KERNEL_LANES 2
#include "linalg/kernels/product_kernel.inc"
