#include "frames/linalg/symmetric_eigen.h"

#include "frames/frame.h"
#include "linalg/symmetric_eigen.h"

using namespace korvel;

int VB_M_Eigen(const double* a, double* values, double* vectors, int n, short int sortFlag)
{
    auto table = frame::insteadOfCopy(a, n, n);
    matrix<double> eigenvalues;
    matrix<double> eigenvectors;
    const int status = M_Eigen(table, eigenvalues, eigenvectors, n, sortFlag);
    if (status >= 0) {
        frame::copyOut(eigenvalues, values);
        frame::copyOut(eigenvectors, vectors);
    }
    return status;
}

int Cpp_M_EigenSPV_T(Hostarray** a, double* values, Hostarray** vectors, int n, short int sortFlag)
{
    matrix3D<matrix<double>> triangle(n, a);
    matrix3D<matrix<double>> eigenvectors(n, vectors);
    auto eigenvalues = frame::copyIn(values, n);
    const int status = M_EigenSPV_T(&triangle, &eigenvalues, &eigenvectors, n, sortFlag);
    frame::copyOut(eigenvalues, values);
    return status;
}
