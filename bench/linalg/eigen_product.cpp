#include "linalg/eigen_product.h"

#include <Eigen/Dense>

namespace korvel::bench
{

void eigenProduct(const double* a, const double* b, double* c, int n)
{
    Eigen::setNbThreads(1);
    const Eigen::Map<const Eigen::MatrixXd> left(a, n, n);
    const Eigen::Map<const Eigen::MatrixXd> right(b, n, n);
    Eigen::Map<Eigen::MatrixXd>(c, n, n).noalias() = left * right;
}

} // namespace korvel::bench
