#ifndef VARO_ACTUATORS_WHEEL_ACTUATOR_IMPL_HPP
#define VARO_ACTUATORS_WHEEL_ACTUATOR_IMPL_HPP

#include <string>
#include <vector>

#include <boost/shared_ptr.hpp>

#include "actuators/dcm_actuator_impl.hpp"
#include "core/kind_of.hpp"
#include "sim/joint.hpp"

namespace Sim {

/// An actuator that turns a wheel, up to a limit.
template <class Device>
class WheelActuatorImpl : public DCMActuatorImpl {
public:
    using Handle = Device;

    WheelActuatorImpl(boost::shared_ptr<Frame const> const& frame, SharedName const& name, DeviceKeys dcmKeys,
                      float limit, boost::shared_ptr<Joint const> const& joint)
        : DCMActuatorImpl(frame, name, kindOf<Device>().type, std::move(dcmKeys)),
          _limit(limit),
          _controlledJoint(joint)
    {}

    boost::shared_ptr<Joint const> controlledJoint() const { return locked(_controlledJoint); }

protected:
    float _limit;

private:
    ElementRef<Joint const> _controlledJoint;
};

}  // namespace Sim

#endif
