#ifndef SIM_LED_ACTUATOR_HPP
#define SIM_LED_ACTUATOR_HPP

#include <string>
#include <vector>

#include "sim/dcm_actuator.hpp"
#include "varo/export.hpp"

namespace Sim {

class LEDActuatorImpl;

/// A light of the robot, in one of three colours. Lights may be gathered in groups, such as those around an eye.
///
/// Descriptions list lights among the sensors, and like a sensor a light has a frame of its own, posed in the frame of
/// the link that carries it. It belongs to no ActuatorGroup and has no mirror partner.
class VAROROBOTMODEL_API LEDActuator final : public DCMActuator {
public:
    /// What a light shines in. The numbers are binding for every consumer.
    enum Color {
        Red = 0,
        Green = 1,
        Blue = 2,
    };

    /// Takes ownership; without implementation, every getter throws.
    explicit LEDActuator(LEDActuatorImpl* impl = nullptr);
    /// A copy with data of its own, which outlives the model.
    LEDActuator(LEDActuator const& other);
    ~LEDActuator();

    /// 4: one single-precision value.
    int bufferSize() const override;
    /// A name for people; empty when the description gives none.
    std::string const& shortname() const;
    /// The groups of lights to which it belongs, as Model::ledActuators takes them.
    std::vector<std::string> const& groups() const;
    /// Blue when the description names none.
    Color color() const;
};

}  // namespace Sim

#endif
