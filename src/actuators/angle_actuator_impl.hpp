#ifndef VARO_ACTUATORS_ANGLE_ACTUATOR_IMPL_HPP
#define VARO_ACTUATORS_ANGLE_ACTUATOR_IMPL_HPP

#include <string>
#include <utility>
#include <vector>

#include "actuators/joint_actuator_impl.hpp"
#include "sim/angle_actuator.hpp"

namespace Sim {

inline constexpr char angleActuatorErrorMsg[] = "Could not query AngleActuator as it seems not correctly constructed.";

class AngleActuatorImpl : public JointActuatorImpl<AngleActuator> {
public:
    AngleActuatorImpl(boost::shared_ptr<Frame const> const& frame, SharedName const& name, DeviceKeys dcmKeys,
                      float startValue, float minValue, float maxValue, float maxSpeed,
                      boost::shared_ptr<Joint const> const& joint, bool reflectionForced)
        : JointActuatorImpl(frame, name, std::move(dcmKeys), startValue, minValue, maxValue, joint),
          _maxSpeed(maxSpeed),
          _reflectionForced(reflectionForced)
    {}

    float maxSpeed() const { return _maxSpeed; }
    bool reflectionForced() const { return _reflectionForced; }

private:
    float _maxSpeed;
    bool _reflectionForced;
};

}  // namespace Sim

#endif
