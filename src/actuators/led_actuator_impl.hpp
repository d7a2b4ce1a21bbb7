#ifndef VARO_ACTUATORS_LED_ACTUATOR_IMPL_HPP
#define VARO_ACTUATORS_LED_ACTUATOR_IMPL_HPP

#include <string>
#include <vector>

#include "actuators/dcm_actuator_impl.hpp"
#include "core/kind_of.hpp"
#include "sim/led_actuator.hpp"

namespace Sim {

// The two blanks are part of the message.
inline constexpr char ledActuatorErrMsg[] = "Could not query LEDActuator as it seems  not correctly constructed.";

class LEDActuatorImpl : public DCMActuatorImpl {
public:
    using Handle = LEDActuator;

    LEDActuatorImpl(boost::shared_ptr<Frame const> const& frame, SharedName const& name, DeviceKeys dcmKeys,
                    std::string const& shortname, std::vector<std::string> const& groups, LEDActuator::Color color)
        : DCMActuatorImpl(frame, name, kindOf<LEDActuator>().type, std::move(dcmKeys)),
          _shortname(shortname),
          _groups(groups),
          _color(color)
    {}

    std::string const& shortname() const { return _shortname; }
    std::vector<std::string> const& groups() const { return _groups; }
    LEDActuator::Color color() const { return _color; }

private:
    std::string _shortname;
    std::vector<std::string> _groups;
    LEDActuator::Color _color;
};

}  // namespace Sim

#endif
