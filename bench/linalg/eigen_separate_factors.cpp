// A name of its own keeps the linker from taking one build of Eigen for the other.
#define Eigen EigenWithoutFusing
#define KORVEL_EIGEN_LU eigenSeparateLU
#define KORVEL_EIGEN_CHOLESKY eigenSeparateCholesky
#include "linalg/eigen_factors.inc"
