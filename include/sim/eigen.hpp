#ifndef SIM_EIGEN_HPP
#define SIM_EIGEN_HPP

#include <cstddef>
#include <vector>

#include <Eigen/Geometry>

#include "sim/kinematics.hpp"

/// For programs that compute with Eigen: poses, vectors and Jacobians of Kinematics in its types. Beside
/// varo/math/eigen.hpp the only public header that needs Eigen; nothing else includes it.
namespace Sim {

/// Coordinate by coordinate.
inline Eigen::Vector3d toEigen(Vector3 const& vector)
{
    return {vector[0], vector[1], vector[2]};
}

/// Eigen takes the linear part of an isometry for a rotation.
inline Eigen::Isometry3d toEigen(Pose const& pose)
{
    using Rows = Eigen::Matrix<double, 3, 4, Eigen::RowMajor>;
    Eigen::Isometry3d result = Eigen::Isometry3d::Identity();
    result.affine() = Eigen::Map<Rows const>(pose.rows.data());
    return result;
}

/// Entry by entry.
inline Pose poseFromEigen(Eigen::Isometry3d const& isometry)
{
    using Rows = Eigen::Matrix<double, 3, 4, Eigen::RowMajor>;
    Pose pose;
    Eigen::Map<Rows>(pose.rows.data()) = isometry.affine();
    return pose;
}

/// Kinematics::jacobian, which is 6 x n, as a matrix.
inline Eigen::Matrix<double, 6, Eigen::Dynamic> jacobian(Kinematics const& kinematics,
                                                         Configuration const& configuration, Frame const& frame,
                                                         Frame const* axes = nullptr)
{
    Eigen::Matrix<double, 6, Eigen::Dynamic> matrix(6, static_cast<Eigen::Index>(configuration.size()));
    kinematics.jacobian(configuration, frame, matrix.data(), static_cast<std::size_t>(matrix.size()), axes);
    return matrix;
}

/// Kinematics::centerOfMassJacobian, which is 3 x n, as a matrix.
inline Eigen::Matrix3Xd centerOfMassJacobian(Kinematics const& kinematics, Configuration const& configuration,
                                             Frame const* axes = nullptr)
{
    std::vector<double> const entries = kinematics.centerOfMassJacobian(configuration, axes);
    return Eigen::Map<Eigen::Matrix3Xd const>(entries.data(), 3, static_cast<Eigen::Index>(entries.size() / 3));
}

}  // namespace Sim

#endif
