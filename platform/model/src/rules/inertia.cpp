#include "rules/inertia.hpp"

#include <Eigen/Eigenvalues>

namespace Varo::Model::Rules {

Inertia inertiaOf(std::vector<float> const& entries)
{
    using Rows = Eigen::Matrix<float, 3, 3, Eigen::RowMajor>;
    return Eigen::Map<Rows const>(entries.data()).cast<double>();
}

InertiaFault faultOf(Inertia const& inertia, double tolerance)
{
    double const allowed = tolerance * inertia.cwiseAbs().maxCoeff();
    if ((inertia - inertia.transpose()).cwiseAbs().maxCoeff() > allowed) {
        return InertiaFault::notSymmetric;
    }
    Eigen::Vector3d const moments =
        Eigen::SelfAdjointEigenSolver<Inertia>(inertia, Eigen::EigenvaluesOnly).eigenvalues();
    if (moments[0] < -allowed) {
        return InertiaFault::notPositive;
    }
    return moments[2] > moments[0] + moments[1] + allowed ? InertiaFault::notPossible : InertiaFault::none;
}

}  // namespace Varo::Model::Rules
