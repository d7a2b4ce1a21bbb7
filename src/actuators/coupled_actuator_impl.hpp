#ifndef VARO_ACTUATORS_COUPLED_ACTUATOR_IMPL_HPP
#define VARO_ACTUATORS_COUPLED_ACTUATOR_IMPL_HPP

#include <string>
#include <utility>
#include <vector>

#include "actuators/mirrored_actuator_impl.hpp"
#include "sim/coupled_actuator.hpp"
#include "sim/joint.hpp"

namespace Sim {

inline constexpr char coupledActuatorErrorMsg[] =
    "Could not query CoupledActuator as it seems not correctly constructed.";

class CoupledActuatorImpl : public MirroredActuatorImpl<CoupledActuator> {
public:
    using JointsAndRatios = std::vector<std::pair<boost::shared_ptr<Joint const>, float>>;

    CoupledActuatorImpl(boost::shared_ptr<Frame const> const& frame, SharedName const& name, DeviceKeys dcmKeys,
                        float startValue, float minValue, float maxValue, float maxSpeed,
                        JointsAndRatios jointsAndRatios, bool reflectionForced)
        : MirroredActuatorImpl(frame, name, std::move(dcmKeys), startValue, minValue, maxValue),
          _maxSpeed(maxSpeed),
          _controlledJointAndRatios(jointsAndRatios.begin(), jointsAndRatios.end()),
          _reflectionForced(reflectionForced)
    {}

    float maxSpeed() const { return _maxSpeed; }
    bool reflectionForced() const { return _reflectionForced; }
    /// In the order given, without the joints that do not exist.
    JointsAndRatios controlledJointAndRatios() const;

private:
    float _maxSpeed;
    std::vector<std::pair<ElementRef<Joint const>, float>> _controlledJointAndRatios;
    bool _reflectionForced;
};

}  // namespace Sim

#endif
