#include <algorithm>

#include "actuators/led_actuator_impl.hpp"
#include "core/model_impl.hpp"

namespace Sim {

boost::shared_ptr<LEDActuator> ModelImpl::addLEDActuator(FramePtr const& frame, SharedName const& name,
                                                         DeviceKeys dcmKeys, std::string const& shortname,
                                                         std::vector<std::string> const& groups,
                                                         LEDActuator::Color color)
{
    return addActuator<LEDActuatorImpl>(frame, name, std::move(dcmKeys), shortname, groups, color);
}

std::vector<boost::shared_ptr<LEDActuator>> ModelImpl::ledActuators(std::string const& group) const
{
    std::vector<boost::shared_ptr<LEDActuator>> leds = actuators<LEDActuator>();
    if (group.empty()) {
        return leds;
    }
    auto const isOutside = [&group](boost::shared_ptr<LEDActuator> const& led) {
        return std::find(led->groups().begin(), led->groups().end(), group) == led->groups().end();
    };
    leds.erase(std::remove_if(leds.begin(), leds.end(), isOutside), leds.end());
    return leds;
}

}  // namespace Sim
