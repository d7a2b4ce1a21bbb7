#ifndef VARO_MODEL_URDF_COUPLINGS_HPP
#define VARO_MODEL_URDF_COUPLINGS_HPP

#include <cstddef>
#include <vector>

#include "urdf/description.hpp"
#include "urdf/elements.hpp"
#include "urdf/names.hpp"
#include "varo/model/records.hpp"

namespace Varo::Model::Urdf {

/// How a joint depends on the joint that it mimics in the end: its value is ratio * leader's value + offset.
struct Following {
    std::size_t leader = none;  ///< none for a joint that mimics no other
    double ratio = 1.0;
    double offset = 0.0;  ///< rad or m
};

/// By joint, with mimics of mimics multiplied through.
std::vector<Following> followMimics(Description const& description, Diagnostics& diagnostics);

/// One actuator per leader, which moves it and its followers together.
///
/// Such an actuator would make a tree hang its members on the joint that it is attached to, unless they have been built
/// by then: every member is a group of its own, and the actuator is attached to the member that is built last.
void makeCouplings(Description const& description, std::vector<Following> const& followings,
                   std::vector<std::size_t> const& buildingOrder, UniqueNames& names, Records& robot,
                   Diagnostics& diagnostics);

}  // namespace Varo::Model::Urdf

#endif
