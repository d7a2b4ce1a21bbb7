#ifndef VARO_CORE_BODY_RECORD_HPP
#define VARO_CORE_BODY_RECORD_HPP

#include <variant>
#include <vector>

#include "sim/shape.hpp"
#include "varo/model/configs.hpp"

namespace Sim {

/// What the description says of a link: the record of the root or a joint, of a sub-joint, or of a wheel, which
/// outlives this.
class BodyRecord {
public:
    /// Of nothing.
    BodyRecord() = default;
    /// `record` may be null.
    template <class Config>
    BodyRecord(Config const* record) : _record(record)  // NOLINT(google-explicit-constructor): it is that record
    {}

    std::vector<Visual> visuals() const;
    std::vector<Collision> collisions() const;

private:
    std::variant<Varo::Model::JointConfig const*, Varo::Model::SubActuatorConfig const*,
                 Varo::Model::WheelConfig const*>
        _record = static_cast<Varo::Model::JointConfig const*>(nullptr);
};

}  // namespace Sim

#endif
