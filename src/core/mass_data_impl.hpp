#ifndef VARO_CORE_MASS_DATA_IMPL_HPP
#define VARO_CORE_MASS_DATA_IMPL_HPP

#include <utility>
#include <vector>

#include "core/shared_value.hpp"
#include "sim/mass_data.hpp"

namespace Sim {

inline constexpr char massDataErrorMsg[] = "Could not query MassData as it seems not properly constructed";

class MassDataImpl {
public:
    MassDataImpl(float mass, Varo::Math::Position3D CoM, SharedValue<std::vector<float>> inertiaMatrix)
        : _mass(mass), _com(CoM), _inertiaMatrix(std::move(inertiaMatrix))
    {}

    float mass() const { return _mass; }
    Varo::Math::Position3D const& CoM() const { return _com; }
    std::vector<float> const& inertiaMatrix() const { return _inertiaMatrix; }

private:
    float _mass;
    Varo::Math::Position3D _com;
    SharedValue<std::vector<float>> _inertiaMatrix;
};

}  // namespace Sim

#endif
