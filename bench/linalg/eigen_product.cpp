#define KORVEL_EIGEN_PRODUCT eigenProduct
#include "linalg/eigen_product.inc"
