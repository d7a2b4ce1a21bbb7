#ifndef SIM_ACTUATOR_HPP
#define SIM_ACTUATOR_HPP

#include <string>
#include <tuple>

#include "sim/device_kind.hpp"
#include "varo/export.hpp"

namespace Sim {

class ActuatorImpl;
class AngleActuator;
class AngleSpeedActuator;
class CoupledActuator;
class Frame;
class LEDActuator;
class TorqueActuator;
class WheelTorqueActuator;
class WheelVelocityActuator;

/// A device of the robot that takes commands; its concrete class, which nothing derives from, says which kind.
///
/// Handed out by Model as a borrowed pointer, as is everything that it returns: valid as long as the model, immutable,
/// and safe to ask from several threads. A copy has data of its own and outlives the model; its getters that return
/// elements then answer null. Every getter of this class and of those derived from it throws std::runtime_error on an
/// actuator without implementation.
class VAROROBOTMODEL_API Actuator {
public:
    /// The kinds of actuators.
    enum Type {
        Angle = 0,
        Coupled = 1,
        Torque = 2,
        AngleSpeed = 3,
        WheelTorque = 4,
        WheelVelocity = 5,
        LED = 6,
    };

    Actuator& operator=(Actuator const&) = delete;

    /// Actuators that drive the same joint share one name.
    virtual std::string const& name() const;
    /// The number of bytes that one command occupies.
    virtual int bufferSize() const = 0;
    /// Where the actuator sits; null when its model is gone.
    Frame const* frame() const;
    /// The kind, which the concrete class stands for.
    Type type() const;

protected:
    /// Takes ownership.
    explicit Actuator(ActuatorImpl* impl);
    /// A copy with data of its own.
    Actuator(Actuator const& other);
    ~Actuator();

    ActuatorImpl* _impl;  ///< owned; null in an actuator without implementation

private:
    friend class ModelImpl;
};

/// The row of a class of actuators.
template <class Device>
using ActuatorKind = DeviceKind<Device, Actuator::Type>;

/// All kinds of actuators, one row for each value of Actuator::Type, those of a sort beside each other.
inline constexpr std::tuple actuatorKinds{
    ActuatorKind<AngleActuator>{Actuator::Angle, "Angle", "angle-actuator"},
    ActuatorKind<AngleSpeedActuator>{Actuator::AngleSpeed, "AngleSpeed", "angle-speed-actuator"},
    ActuatorKind<TorqueActuator>{Actuator::Torque, "Torque", "torque-actuator"},
    ActuatorKind<CoupledActuator>{Actuator::Coupled, "Coupled", "coupled-actuator"},
    ActuatorKind<WheelVelocityActuator>{Actuator::WheelVelocity, "WheelVelocity", "wheel-velocity-actuator"},
    ActuatorKind<WheelTorqueActuator>{Actuator::WheelTorque, "WheelTorque", "wheel-torque-actuator"},
    ActuatorKind<LEDActuator>{Actuator::LED, "LED", "led"},
};

}  // namespace Sim

#endif
