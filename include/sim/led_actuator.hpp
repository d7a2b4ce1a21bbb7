#ifndef SIM_LED_ACTUATOR_HPP
#define SIM_LED_ACTUATOR_HPP

#include <string>
#include <vector>

#include "sim/dcm_actuator.hpp"
#include "varo/export.hpp"

namespace Sim {

class LEDActuatorImpl;

/// A light.
class VAROROBOTMODEL_API LEDActuator final : public DCMActuator {
public:
    /// What a light shines in.
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
    /// Empty when the description gives none.
    std::string const& shortname() const;
    /// The groups of lights to which it belongs, as Model::ledActuators takes them.
    std::vector<std::string> const& groups() const;
    /// Blue when the description names none.
    Color color() const;
};

}  // namespace Sim

#endif
