// A name of its own keeps the linker from taking one build of Eigen for the other.
#define Eigen EigenWithoutFusing
#define KORVEL_EIGEN_INVERSE eigenSeparateInverse
#include "linalg/eigen_inverse.inc"
