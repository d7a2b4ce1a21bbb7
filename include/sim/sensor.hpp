#ifndef SIM_SENSOR_HPP
#define SIM_SENSOR_HPP

#include <string>
#include <tuple>

#include "sim/device_kind.hpp"
#include "varo/export.hpp"
#include "varo/model/sensor_settings.hpp"

namespace Sim {

class AngleSensor;
class AngleSpeedSensor;
class ArrayDepthSensor;
class BumperSensor;
class CameraDepthSensor;
class CameraSensor;
class CoupledSensor;
class FSRSensor;
class Frame;
class InertialSensor;
class MicrophoneSensor;
class SensorImpl;
class SingleDepthSensor;
class SonarSensor;
class TactileSensor;
class TorqueSensor;
class WheelVelocitySensor;

/// A device of the robot that measures: an encoder in a joint, a force sensor under a foot, a camera in the head.
///
/// A model holds what a program has to know to read the device, never a reading: what it is called, where it sits, how
/// many bytes a reading has and, for a DCMSensor, under which keys the device layer delivers it. What is measured, and
/// in which unit, the concrete class says, from which nothing derives; type() says the same as a number.
///
/// A sensor that the description places has a frame of its own, posed in the frame of the link that carries it. One
/// that comes with an actuator (AngleSensor, AngleSpeedSensor, TorqueSensor, CoupledSensor) has the actuator's name and
/// frame; several sensors may therefore have one name, and the look-ups of Model by kind tell them apart.
///
/// An element of a Model, which says how long it lives and who may ask it at once. That holds for all sensors.
class VAROROBOTMODEL_API Sensor {
public:
    /// The kinds of sensors. The numbers are binding for every consumer, the gap at 11 included.
    enum Type {
        Angle = 0,
        Coupled = 1,
        Sonar = 2,
        Camera = 3,
        FSR = 4,
        Inertial = 5,
        Bumper = 6,
        Torque = 7,
        AngleSpeed = 8,
        WheelVelocity = 9,
        Tactile = 10,
        SingleDepth = 12,
        ArrayDepth = 13,
        CameraDepth = 14,
        Microphone = 15,
    };

    Sensor(Sensor const&) = delete;
    Sensor& operator=(Sensor const&) = delete;

    /// As in the description, but for InertialSensor; that of the actuator for a sensor that comes with one.
    virtual std::string const& name() const;
    /// The number of bytes that one reading occupies.
    virtual int bufferSize() const = 0;
    /// Where the sensor sits; null only when its model is gone.
    Frame const* frame() const;
    /// The kind, which the concrete class stands for.
    Type type() const;
    /// How the sensor is set, as far as the description says: its rate (Hz), what its camera, scan and range are like
    /// (m, rad, pixels) and the noise of its values. Null when the description states nothing of that, as for every
    /// sensor that comes with an actuator. Belongs to the sensor.
    Varo::Model::SensorSettings const* settings() const;

protected:
    Sensor();
    ~Sensor();

    SensorImpl* _impl;  ///< null until a model makes the sensor; owned by the concrete class, which knows its kind

private:
    friend class ModelImpl;
};

/// The row of a class of sensors.
template <class Device>
using SensorKind = DeviceKind<Device, Sensor::Type>;

/// All kinds of sensors, one row for each value of Sensor::Type, those of a sort beside each other.
inline constexpr std::tuple sensorKinds{
    SensorKind<AngleSensor>{Sensor::Angle, "Angle", "angle-sensor"},
    SensorKind<AngleSpeedSensor>{Sensor::AngleSpeed, "AngleSpeed", "angle-speed-sensor"},
    SensorKind<TorqueSensor>{Sensor::Torque, "Torque", "torque-sensor"},
    SensorKind<CoupledSensor>{Sensor::Coupled, "Coupled", "coupled-sensor"},
    SensorKind<WheelVelocitySensor>{Sensor::WheelVelocity, "WheelVelocity", "wheel-velocity-sensor"},
    SensorKind<CameraSensor>{Sensor::Camera, "Camera", "camera"},
    SensorKind<CameraDepthSensor>{Sensor::CameraDepth, "CameraDepth", "depth-camera"},
    SensorKind<ArrayDepthSensor>{Sensor::ArrayDepth, "ArrayDepth", "array-depth-sensor"},
    SensorKind<SingleDepthSensor>{Sensor::SingleDepth, "SingleDepth", "single-depth-sensor"},
    SensorKind<SonarSensor>{Sensor::Sonar, "Sonar", "sonar"},
    SensorKind<BumperSensor>{Sensor::Bumper, "Bumper", "bumper"},
    SensorKind<TactileSensor>{Sensor::Tactile, "Tactile", "tactile-sensor"},
    SensorKind<FSRSensor>{Sensor::FSR, "FSR", "fsr"},
    SensorKind<InertialSensor>{Sensor::Inertial, "Inertial", "inertial-sensor"},
    SensorKind<MicrophoneSensor>{Sensor::Microphone, "Microphone", "microphone"},
};

}  // namespace Sim

#endif
