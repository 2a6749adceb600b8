#define KORVEL_EIGEN_SPECTRUM eigenSpectrum
#include "linalg/eigen_spectrum.inc"
