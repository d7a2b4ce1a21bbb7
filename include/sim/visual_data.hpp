#ifndef SIM_VISUAL_DATA_HPP
#define SIM_VISUAL_DATA_HPP

#include <string>

#include "varo/export.hpp"
#include "varo/math/transform.hpp"

namespace Sim {

class VisualDataImpl;

/// What a link looks like: a mesh file and where the mesh lies. The file is never opened.
///
/// An element of a Model, which says how long it lives and who may ask it at once.
class VAROROBOTMODEL_API VisualData {
public:
    VisualData();
    VisualData(VisualData const&) = delete;
    VisualData& operator=(VisualData const&) = delete;
    virtual ~VisualData();

    /// The mesh file, exactly as the description states it, be it a path or a URI; empty when it states none.
    std::string const& meshPath() const;
    /// The pose of the mesh in the link's frame (m).
    Varo::Math::Transform const& meshTransform() const;

private:
    friend class ModelImpl;

    VisualDataImpl* _impl;
};

}  // namespace Sim

#endif
