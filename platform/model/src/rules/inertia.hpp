#ifndef VARO_MODEL_RULES_INERTIA_HPP
#define VARO_MODEL_RULES_INERTIA_HPP

#include <cstdint>
#include <vector>

#include <Eigen/Core>

namespace Varo::Model::Rules {

using Inertia = Eigen::Matrix3d;

/// From nine entries row by row, as the records have them.
Inertia inertiaOf(std::vector<float> const& entries);

/// Why no body can have an inertia. Each supposes that those before it do not hold.
enum class InertiaFault : std::uint8_t { none, notSymmetric, notPositive, notPossible };

/// Zero moments are possible: those of a point, or of a thin rod about its axis. `tolerance` is a part of the greatest
/// entry.
InertiaFault faultOf(Inertia const& inertia, double tolerance);

}  // namespace Varo::Model::Rules

#endif
