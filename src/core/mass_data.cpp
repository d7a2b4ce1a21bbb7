#include "sim/mass_data.hpp"

#include "core/handle.hpp"
#include "core/mass_data_impl.hpp"

namespace Sim {

MassData::MassData() : _impl(nullptr) {}

MassData::~MassData()
{
    delete _impl;
}

float MassData::mass() const
{
    return implOf(_impl, massDataErrorMsg).mass();
}

Varo::Math::Position3D const& MassData::CoM() const
{
    return implOf(_impl, massDataErrorMsg).CoM();
}

std::vector<float> const& MassData::inertiaMatrix() const
{
    return implOf(_impl, massDataErrorMsg).inertiaMatrix();
}

}  // namespace Sim
