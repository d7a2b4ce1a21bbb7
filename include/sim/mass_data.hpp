#ifndef SIM_MASS_DATA_HPP
#define SIM_MASS_DATA_HPP

#include <vector>

#include "varo/export.hpp"
#include "varo/math/position3d.hpp"

namespace Sim {

class MassDataImpl;

/// What a link weighs and how its mass is spread, as the description states it: SI units, single precision. Nothing
/// checks that a body could have such values; `varo-robot check` does.
///
/// An element of a Model, which says how long it lives and who may ask it at once.
class VAROROBOTMODEL_API MassData {
public:
    MassData();
    MassData(MassData const&) = delete;
    MassData& operator=(MassData const&) = delete;
    virtual ~MassData();

    /// kg
    float mass() const;
    /// The centre of mass in the link's frame (m).
    Varo::Math::Position3D const& CoM() const;
    /// kg*m^2: the 3x3 inertia about the centre of mass in the axes of the link's frame, nine values row by row.
    std::vector<float> const& inertiaMatrix() const;

private:
    friend class ModelImpl;

    MassDataImpl* _impl;
};

}  // namespace Sim

#endif
