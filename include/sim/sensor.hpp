#ifndef SIM_SENSOR_HPP
#define SIM_SENSOR_HPP

#include <string>

#include "varo/export.hpp"

namespace Sim {

class Frame;
class SensorImpl;

/// A measuring device of the robot; its concrete class, which nothing derives from, says which kind.
///
/// Handed out by Model as a borrowed pointer, as is everything that it returns: valid as long as the model, immutable,
/// and safe to ask from several threads. Every getter of this class and of those derived from it throws
/// std::runtime_error on a sensor that no model made.
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

    /// Sensors that measure the same joint share one name.
    virtual std::string const& name() const;
    /// The number of bytes that one reading occupies.
    virtual int bufferSize() const = 0;
    /// Where the sensor sits; null only when its model is gone.
    Frame const* frame() const;
    /// The kind, which the concrete class stands for.
    Type type() const;

protected:
    Sensor();
    ~Sensor();

    SensorImpl* _impl;  ///< null until a model makes the sensor; owned by the concrete class, which knows its kind

private:
    friend class ModelImpl;
};

}  // namespace Sim

#endif
