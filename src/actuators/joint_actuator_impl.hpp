#ifndef VARO_ACTUATORS_JOINT_ACTUATOR_IMPL_HPP
#define VARO_ACTUATORS_JOINT_ACTUATOR_IMPL_HPP

#include <string>
#include <utility>
#include <vector>

#include "actuators/mirrored_actuator_impl.hpp"
#include "sim/joint.hpp"

namespace Sim {

/// A mirrored actuator that drives one joint.
template <class Device>
class JointActuatorImpl : public MirroredActuatorImpl<Device> {
public:
    JointActuatorImpl(boost::shared_ptr<Frame const> const& frame, SharedName const& name, DeviceKeys dcmKeys,
                      float startValue, float minValue, float maxValue, boost::shared_ptr<Joint const> const& joint)
        : MirroredActuatorImpl<Device>(frame, name, std::move(dcmKeys), startValue, minValue, maxValue),
          _controlledJoint(joint)
    {}

    boost::shared_ptr<Joint const> controlledJoint() const { return this->locked(_controlledJoint); }

private:
    ElementRef<Joint const> _controlledJoint;
};

// The kinds that are just that.

class AngleSpeedActuatorImpl : public JointActuatorImpl<AngleSpeedActuator> {
public:
    using JointActuatorImpl::JointActuatorImpl;
};

class TorqueActuatorImpl : public JointActuatorImpl<TorqueActuator> {
public:
    using JointActuatorImpl::JointActuatorImpl;
};

}  // namespace Sim

#endif
