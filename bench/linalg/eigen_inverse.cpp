#define KORVEL_EIGEN_INVERSE eigenInverse
#include "linalg/eigen_inverse.inc"
