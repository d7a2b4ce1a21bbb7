#ifndef VARO_ACTUATORS_MIRRORED_ACTUATOR_IMPL_HPP
#define VARO_ACTUATORS_MIRRORED_ACTUATOR_IMPL_HPP

#include <string>
#include <vector>

#include <boost/shared_ptr.hpp>

#include "actuators/dcm_actuator_impl.hpp"
#include "core/kind_of.hpp"

namespace Sim {

/// An actuator with a range of values that may have a mirror partner of its own kind (Device is its public class).
template <class Device>
class MirroredActuatorImpl : public DCMActuatorImpl {
public:
    using Handle = Device;

    MirroredActuatorImpl(boost::shared_ptr<Frame const> const& frame, SharedName const& name, DeviceKeys dcmKeys,
                         float startValue, float minValue, float maxValue)
        : DCMActuatorImpl(frame, name, kindOf<Device>().type, std::move(dcmKeys)),
          _startValue(startValue),
          _minValue(minValue),
          _maxValue(maxValue)
    {}

    float startValue() const { return _startValue; }
    float minValue() const { return _minValue; }
    float maxValue() const { return _maxValue; }

    boost::shared_ptr<Device const> reflectedSymmetric() const { return locked(_reflectedSymmetric); }
    void setReflectedSymmetric(boost::shared_ptr<Device const> const& partner) { _reflectedSymmetric = partner; }
    bool reflectedSymmetricReversed() const { return _reflectedSymmetricReversed; }
    void setReflectedSymmetricReversed(bool reversed) { _reflectedSymmetricReversed = reversed; }

private:
    float _startValue;
    float _minValue;
    float _maxValue;
    ElementRef<Device const> _reflectedSymmetric;
    bool _reflectedSymmetricReversed = false;
};

}  // namespace Sim

#endif
