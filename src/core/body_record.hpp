#ifndef VARO_CORE_BODY_RECORD_HPP
#define VARO_CORE_BODY_RECORD_HPP

#include <variant>
#include <vector>

#include <boost/shared_ptr.hpp>
#include <boost/weak_ptr.hpp>

#include "sim/shape.hpp"
#include "varo/model/configs.hpp"

namespace Sim {

/// What the description says of a link: the record of the root or a joint, of a sub-joint, or of a wheel. It says
/// nothing any more when the owner of the record is gone.
class BodyRecord {
public:
    /// Of nothing.
    BodyRecord() = default;
    /// `record` may be null.
    template <class Owner, class Config>
    BodyRecord(boost::shared_ptr<Owner> const& owner, Config const* record)
        : _record(boost::weak_ptr<Config const>(boost::shared_ptr<Config const>(owner, record)))
    {}

    std::vector<Visual> visuals() const;
    std::vector<Collision> collisions() const;

private:
    std::variant<boost::weak_ptr<Varo::Model::JointConfig const>, boost::weak_ptr<Varo::Model::SubActuatorConfig const>,
                 boost::weak_ptr<Varo::Model::WheelConfig const>>
        _record;
};

}  // namespace Sim

#endif
