// Compiled for AVX2: no inline function of another header may be used here, see
// src/linalg/kernels/product_avx2.cpp.
#define KORVEL_KERNEL_SET avx2
#include "statistics/kernels/columns_kernel.inc"
