// Compiled for AVX2; the warning at the head of product_avx2.cpp holds here too.
#define KORVEL_KERNEL_SET avx2
#include "linalg/kernels/block_sums_kernel.inc"
