#ifndef SIM_MASS_DATA_HPP
#define SIM_MASS_DATA_HPP

#include <vector>

#include "varo/export.hpp"
#include "varo/math/position3d.hpp"

namespace Sim {

class MassDataImpl;

/// The mass properties of a link, as the description states them.
///
/// Borrowed from its link: valid as long as the model, immutable, and safe to ask from several threads. Every getter
/// throws std::runtime_error on mass data that no model made.
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
