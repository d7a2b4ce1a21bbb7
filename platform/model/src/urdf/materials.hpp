#ifndef VARO_MODEL_URDF_MATERIALS_HPP
#define VARO_MODEL_URDF_MATERIALS_HPP

#include <memory>
#include <string_view>
#include <unordered_map>

#include "urdf/statements.hpp"
#include "varo/model/diagnostics.hpp"
#include "varo/model/name_hash.hpp"

namespace Varo::Model::Urdf {

/// The materials of a robot by their names, those that stand in visuals behind those that stand in the robot.
class Materials {
public:
    /// `robot` must outlive this.
    Materials(Robot const& robot, Diagnostics& diagnostics);

    /// What a visual's material is: what it says itself or, where it has no more than a name, what that stands for.
    std::shared_ptr<Material const> find(SurfaceMaterial const& stated, Diagnostics& diagnostics) const;

private:
    void add(SurfaceMaterial const& stated);

    std::unordered_map<std::string_view, std::shared_ptr<Material const>, NameHash> _byName;
};

}  // namespace Varo::Model::Urdf

#endif
