#define KORVEL_EIGEN_SPECTRUM eigenSeparateSpectrum
#include "linalg/eigen_spectrum.inc"
