#define KORVEL_EIGEN_LU eigenLU
#define KORVEL_EIGEN_CHOLESKY eigenCholesky
#include "linalg/eigen_factors.inc"
