#include "sim/visual_data.hpp"

#include "core/handle.hpp"
#include "core/visual_data_impl.hpp"

namespace Sim {

VisualData::VisualData() : _impl(nullptr) {}

VisualData::~VisualData()
{
    delete _impl;
}

std::string const& VisualData::meshPath() const
{
    return implOf(_impl, visualDataErrorMsg).meshPath();
}

Varo::Math::Transform const& VisualData::meshTransform() const
{
    return implOf(_impl, visualDataErrorMsg).meshTransform();
}

}  // namespace Sim
