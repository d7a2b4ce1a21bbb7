#include "classes.hpp"
#include "devices.hpp"
#include "settings.hpp"

namespace Python {

namespace {

using SensorElement = Element<Sim::Sensor>;

/// What Python's help says of a class.
template <class Device>
constexpr char const* helpOf = nullptr;
template <>
constexpr char const* helpOf<Sim::AngleSensor> =
    "The encoder of a joint: measures its angle (rad; m for a sliding joint).";
template <>
constexpr char const* helpOf<Sim::AngleSpeedSensor> = "Measures the speed of a joint (rad/s; m/s for a sliding joint).";
template <>
constexpr char const* helpOf<Sim::TorqueSensor> = "Measures the torque in a joint (N*m; N for a sliding joint).";
template <>
constexpr char const* helpOf<Sim::CoupledSensor> =
    "The encoder of a coupled actuator: measures the angle of the motor (rad).";
template <>
constexpr char const* helpOf<Sim::WheelVelocitySensor> = "Measures the speed of a wheel (rad/s).";
template <>
constexpr char const* helpOf<Sim::CameraSensor> =
    "A camera whose pictures are coloured, looking along the x axis of its frame.";
template <>
constexpr char const* helpOf<Sim::CameraDepthSensor> = "A depth camera: the value of each pixel is a distance (m).";
template <>
constexpr char const* helpOf<Sim::ArrayDepthSensor> =
    "Measures distances (m) along many rays at once, in rows and columns.";
template <>
constexpr char const* helpOf<Sim::SingleDepthSensor> = "A range finder: measures the distance (m) along one ray.";
template <>
constexpr char const* helpOf<Sim::SonarSensor> = "Measures distances (m) by ultrasound.";
template <>
constexpr char const* helpOf<Sim::BumperSensor> = "A switch that says whether it is pressed.";
template <>
constexpr char const* helpOf<Sim::TactileSensor> = "A patch of the robot's skin that feels whether it is touched.";
template <>
constexpr char const* helpOf<Sim::FSRSensor> =
    "A force-sensing resistor: measures the force (N) on a patch of the robot.";
template <>
constexpr char const* helpOf<Sim::InertialSensor> = "Measures how the robot turns and accelerates.";
template <>
constexpr char const* helpOf<Sim::MicrophoneSensor> = "A microphone.";

template <class Device>
void defineKind(py::module_& module)
{
    std::string const name = std::string(std::get<Sim::SensorKind<Device>>(Sim::sensorKinds).name) + "Sensor";
    auto device = declareElement<Element<Device>, Element<ParentOf<Device>>>(module, name.c_str(), helpOf<Device>);
    defineIfThere<Device>(device, "width", PYTHON_GETTER(width), "Pixels, or measuring points, of a row.");
    defineIfThere<Device>(device, "height", PYTHON_GETTER(height), "Rows of pixels, or of measuring points.");
}

void defineKeys(py::module_& module)
{
    auto device = declareElement<Element<Sim::DCMSensor>, SensorElement>(
        module, "DCMSensor", "A sensor whose values the robot's device layer delivers under device keys.");
    auto const add = [&device](char const* property, auto get, char const* documentation) {
        defineIfThere<Sim::DCMSensor>(device, property, get, documentation);
    };
    add("dcm_keys", PYTHON_GETTER(dcmKeys), "The keys under which the values are read.");
    add("dcm_state_keys", PYTHON_GETTER(dcmStateKeys), "The keys under which the device's state is read.");
    add("dcm_command_keys", PYTHON_GETTER(dcmCommandKeys), "The keys under which the device is commanded.");
}

}  // namespace

void defineSensors(py::module_& module)
{
    auto sensor = declareElement<SensorElement>(module, "Sensor",
                                                "A device of the robot that measures. Each is of a class of its kind.");
    defineDevice(sensor, "SensorType");
    sensor.def_property_readonly(
        "settings", [](SensorElement const& self) { return settingsOf(self->settings()); },
        "How it is set, as far as the description says; None when it says nothing.");
    defineKeys(module);
    declareElement<Element<Sim::BaseCamera>, SensorElement>(
        module, "BaseCamera", "A sensor that takes pictures, looking along the x axis of its frame.");
    std::apply([&](auto const&... kind) { (defineKind<typename std::decay_t<decltype(kind)>::Class>(module), ...); },
               Sim::sensorKinds);
}

}  // namespace Python
