#include "classes.hpp"
#include "devices.hpp"
#include "settings.hpp"

namespace Python {

namespace {

constexpr std::tuple helps{
    Help<Sim::AngleSensor>{"The encoder of a joint: measures its angle (rad; m for a sliding joint)."},
    Help<Sim::AngleSpeedSensor>{"Measures the speed of a joint (rad/s; m/s for a sliding joint)."},
    Help<Sim::TorqueSensor>{"Measures the torque in a joint (N*m; N for a sliding joint)."},
    Help<Sim::CoupledSensor>{"The encoder of a coupled actuator: measures the angle of the motor (rad)."},
    Help<Sim::WheelVelocitySensor>{"Measures the speed of a wheel (rad/s)."},
    Help<Sim::CameraSensor>{"A camera whose pictures are coloured, looking along the x axis of its frame."},
    Help<Sim::CameraDepthSensor>{"A depth camera: the value of each pixel is a distance (m)."},
    Help<Sim::ArrayDepthSensor>{"Measures distances (m) along many rays at once, in rows and columns."},
    Help<Sim::SingleDepthSensor>{"A range finder: measures the distance (m) along one ray."},
    Help<Sim::SonarSensor>{"Measures distances (m) by ultrasound."},
    Help<Sim::BumperSensor>{"A switch that says whether it is pressed."},
    Help<Sim::TactileSensor>{"A patch of the robot's skin that feels whether it is touched."},
    Help<Sim::FSRSensor>{"A force-sensing resistor: measures the force (N) on a patch of the robot."},
    Help<Sim::InertialSensor>{"Measures how the robot turns and accelerates."},
    Help<Sim::MicrophoneSensor>{"A microphone."},
};

constexpr std::tuple ofKinds{
    Property{"width", "Pixels, or measuring points, of a row.", PYTHON_GETTER(width)},
    Property{"height", "Rows of pixels, or of measuring points.", PYTHON_GETTER(height)},
};

constexpr std::tuple keys{
    Property{"dcm_keys", "The keys under which the values are read.", &Sim::DCMSensor::dcmKeys},
    Property{"dcm_state_keys", "The keys under which the device's state is read.", &Sim::DCMSensor::dcmStateKeys},
    Property{"dcm_command_keys", "The keys under which the device is commanded.", &Sim::DCMSensor::dcmCommandKeys},
};

}  // namespace

void defineSensors(py::module_& module)
{
    auto sensor = declareFamily<Sim::Sensor>(module, "Sensor",
                                             "A device of the robot that measures. Each is of a class of its kind.");
    sensor.def_property_readonly(
        "settings", [](Element<Sim::Sensor> const& self) { return settingsOf(self->settings()); },
        "How it is set, as far as the description says; None when it says nothing.");
    auto withKeys = declareElement<Sim::DCMSensor>(
        module, "DCMSensor", "A sensor whose values the robot's device layer delivers under device keys.");
    defineProperties(withKeys, keys);
    declareElement<Sim::BaseCamera>(module, "BaseCamera",
                                    "A sensor that takes pictures, looking along the x axis of its frame.");
    declareKinds(module, "Sensor", Sim::sensorKinds, helps, ofKinds);
}

}  // namespace Python
