#ifndef SIM_VISUAL_DATA_HPP
#define SIM_VISUAL_DATA_HPP

#include <string>

#include "varo/export.hpp"
#include "varo/math/transform.hpp"

namespace Sim {

class VisualDataImpl;

/// What a link looks like.
///
/// Borrowed from its link: valid as long as the model, immutable, and safe to ask from several threads. Every getter
/// throws std::runtime_error on visual data that no model made.
class VAROROBOTMODEL_API VisualData {
public:
    VisualData();
    VisualData(VisualData const&) = delete;
    VisualData& operator=(VisualData const&) = delete;
    virtual ~VisualData();

    /// The mesh file, exactly as the description states it; may be empty.
    std::string const& meshPath() const;
    /// The pose of the mesh in the link's frame (m).
    Varo::Math::Transform const& meshTransform() const;

private:
    friend class ModelImpl;

    VisualDataImpl* _impl;
};

}  // namespace Sim

#endif
