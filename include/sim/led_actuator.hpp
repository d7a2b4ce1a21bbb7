#ifndef SIM_LED_ACTUATOR_HPP
#define SIM_LED_ACTUATOR_HPP

#include <string>
#include <vector>

#include "sim/dcm_actuator.hpp"

namespace Sim {

class LEDActuatorImpl;

/// A light.
class VAROROBOTMODEL_API LEDActuator final : public DCMActuator {
public:
    enum Color {
        Red = 0,
        Green = 1,
        Blue = 2,
    };

    /// Takes ownership; without implementation, every getter throws.
    explicit LEDActuator(LEDActuatorImpl* impl = nullptr);
    LEDActuator(LEDActuator const& other);
    ~LEDActuator();

    /// 4: one single-precision value.
    int bufferSize() const override;
    /// Empty when the description gives none.
    std::string const& shortname() const;
    /// The groups of lights to which it belongs, as Model::ledActuators takes them.
    std::vector<std::string> const& groups() const;
    Color color() const;
};

}  // namespace Sim

#endif
