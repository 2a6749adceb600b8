// Compiled for AVX-512; the warning at the head of product_avx2.cpp holds here too.
#define KORVEL_KERNEL_SET avx512
#define KORVEL_KERNEL_LANES 8
#include "linalg/kernels/product_kernel.inc"
