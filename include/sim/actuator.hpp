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

/// A device of the robot that takes commands: the motor of a joint or a wheel, one that closes a hand, a light.
///
/// A model holds what a program has to know to command the device, never a command: what it is called, where it sits,
/// within which limits it works and, for a DCMActuator, under which keys the device layer takes its commands. What is
/// commanded, and in which unit, the concrete class says, from which nothing derives; type() says the same as a number.
///
/// A motor has the name of its joint, wheel or coupling. Several actuators that drive one joint share its name and
/// one frame; the look-ups of Model by kind tell them apart.
///
/// An element of a Model, which says how long it lives and who may ask it at once. That holds for all actuators, but
/// those of the concrete classes can be copied: a copy has data of its own and may outlive the model. Once the model is
/// gone, the getters of a copy that return other elements answer null, or nothing.
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

    /// That of the joint, wheel or coupling that it drives, or of the light.
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
