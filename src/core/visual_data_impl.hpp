#ifndef VARO_CORE_VISUAL_DATA_IMPL_HPP
#define VARO_CORE_VISUAL_DATA_IMPL_HPP

#include <string>

#include "core/shared_value.hpp"
#include "sim/visual_data.hpp"

namespace Sim {

inline constexpr char visualDataErrorMsg[] = "Could not query VisualData as it seems not properly constructed";

class VisualDataImpl {
public:
    VisualDataImpl(SharedValue<std::string> const& meshPath, Varo::Math::Transform const& meshTransform)
        : _meshPath(meshPath), _meshTransform(meshTransform)
    {}

    std::string const& meshPath() const { return _meshPath; }
    Varo::Math::Transform const& meshTransform() const { return _meshTransform; }

private:
    SharedValue<std::string> _meshPath;
    Varo::Math::Transform _meshTransform;
};

}  // namespace Sim

#endif
