#include "support/kinds.hpp"

#include <cctype>

#include "sim/actuator.hpp"
#include "sim/link.hpp"
#include "sim/sensor.hpp"
#include "support/element_json.hpp"

namespace Tool {

namespace {

template <class Element>
std::vector<Json> dataOf(std::vector<Element const*> const& elements)
{
    std::vector<Json> data;
    data.reserve(elements.size());
    for (Element const* element : elements) {
        data.push_back(toJson(*element));
    }
    return data;
}

template <auto list>
std::vector<Json> all(Sim::Model const& model)
{
    return dataOf((model.*list)());
}

std::vector<Json> wheels(Sim::Model const& model)
{
    std::vector<Json> data;
    for (Sim::Link const* link : model.links()) {
        if (link->type() == Sim::Link::Wheel) {
            data.push_back(toJson(*link));
        }
    }
    return data;
}

std::vector<Json> groups(Sim::Model const& model)
{
    std::vector<Json> data = dataOf(model.jointGroups());
    for (Json& group : dataOf(model.actuatorGroups())) {
        data.push_back(std::move(group));
    }
    return data;
}

template <Sim::Actuator::Type type>
std::vector<Json> actuatorsOf(Sim::Model const& model)
{
    std::vector<Json> data;
    for (Sim::Actuator const* actuator : model.actuators()) {
        if (actuator->type() == type) {
            data.push_back(toJson(*actuator));
        }
    }
    return data;
}

template <Sim::Sensor::Type type>
std::vector<Json> sensorsOf(Sim::Model const& model)
{
    std::vector<Json> data;
    for (Sim::Sensor const* sensor : model.sensors()) {
        if (sensor->type() == type) {
            data.push_back(toJson(*sensor));
        }
    }
    return data;
}

}  // namespace

std::vector<Kind> const& kinds()
{
    using Sim::Actuator;
    using Sim::Model;
    using Sim::Sensor;

    using Columns = std::vector<Column>;
    Column const name = {"NAME", "/name"};
    Column const type = {"TYPE", "/type"};
    Column const position = {"POSITION", "/globalPosition"};
    Column const keys = {"KEYS", "/dcmKeys"};
    Columns const links = {name, type, {"JOINT", "/parentJoint"}, {"MASS", "/mass/mass"}, position};
    Columns const motors = {name,
                            {"JOINT", "/controlledJoint"},
                            {"MIN", "/minValue"},
                            {"MAX", "/maxValue"},
                            {"MIRROR", "/reflectedSymmetric"},
                            keys};
    Columns const wheelMotors = {
        name, {"JOINT", "/controlledJoint"}, {"TORQUE", "/maxTorque"}, {"VELOCITY", "/maxVelocity"}, keys};
    Columns const leds = {name, {"COLOR", "/color"}, {"GROUPS", "/groups"}, {"SHORT", "/shortname"}, position, keys};
    Columns const sensors = {name, type, position, {"BYTES", "/bufferSize"}, keys};
    Columns const pictured = {name, {"WIDTH", "/width"}, {"HEIGHT", "/height"}, position, {"BYTES", "/bufferSize"}};

    static std::vector<Kind> const table = {
        {"link", "links", links, all<&Model::links>},
        {"wheel", "wheels", links, wheels},
        {"joint", "joints", {name, {"FROM", "/parentLink"}, {"TO", "/childLink"}, position}, all<&Model::joints>},
        {"symmetry", "symmetries", {{"JOINTS", "/joints"}, type}, all<&Model::jointSymmetries>},
        {"group", "groups", {name, {"JOINTS", "/joints"}, {"ACTUATORS", "/actuators"}}, groups},
        {"joint-group", "joint-groups", {name, {"JOINTS", "/joints"}}, all<&Model::jointGroups>},
        {"actuator-group",
         "actuator-groups",
         {name, {"PARENT", "/parent"}, {"ACTUATORS", "/actuators"}},
         all<&Model::actuatorGroups>},
        {"actuator", "actuators", {name, type, position, keys}, all<&Model::actuators>},
        {"angle-actuator", "angle-actuators", motors, actuatorsOf<Actuator::Angle>},
        {"angle-speed-actuator", "angle-speed-actuators", motors, actuatorsOf<Actuator::AngleSpeed>},
        {"torque-actuator", "torque-actuators", motors, actuatorsOf<Actuator::Torque>},
        {"coupled-actuator",
         "coupled-actuators",
         {name, {"MIN", "/minValue"}, {"MAX", "/maxValue"}, {"JOINTS AND RATIOS", "/controlledJointAndRatios"}},
         actuatorsOf<Actuator::Coupled>},
        {"wheel-velocity-actuator", "wheel-velocity-actuators", wheelMotors, actuatorsOf<Actuator::WheelVelocity>},
        {"wheel-torque-actuator", "wheel-torque-actuators", wheelMotors, actuatorsOf<Actuator::WheelTorque>},
        {"led", "leds", leds, actuatorsOf<Actuator::LED>},
        {"sensor", "sensors", sensors, all<&Model::sensors>},
        {"angle-sensor", "angle-sensors", sensors, sensorsOf<Sensor::Angle>},
        {"angle-speed-sensor", "angle-speed-sensors", sensors, sensorsOf<Sensor::AngleSpeed>},
        {"torque-sensor", "torque-sensors", sensors, sensorsOf<Sensor::Torque>},
        {"coupled-sensor", "coupled-sensors", sensors, sensorsOf<Sensor::Coupled>},
        {"wheel-velocity-sensor", "wheel-velocity-sensors", sensors, sensorsOf<Sensor::WheelVelocity>},
        {"camera", "cameras", pictured, sensorsOf<Sensor::Camera>},
        {"depth-camera", "depth-cameras", pictured, sensorsOf<Sensor::CameraDepth>},
        {"array-depth-sensor", "array-depth-sensors", pictured, sensorsOf<Sensor::ArrayDepth>},
        {"single-depth-sensor", "single-depth-sensors", sensors, sensorsOf<Sensor::SingleDepth>},
        {"sonar", "sonars", sensors, sensorsOf<Sensor::Sonar>},
        {"bumper", "bumpers", sensors, sensorsOf<Sensor::Bumper>},
        {"tactile-sensor", "tactile-sensors", sensors, sensorsOf<Sensor::Tactile>},
        {"fsr", "fsrs", sensors, sensorsOf<Sensor::FSR>},
        {"inertial-sensor", "inertial-sensors", sensors, sensorsOf<Sensor::Inertial>},
        {"microphone", "microphones", sensors, sensorsOf<Sensor::Microphone>},
    };
    return table;
}

namespace {

std::string plain(std::string const& name)
{
    std::string text;
    for (char const c : name) {
        if (std::isalpha(static_cast<unsigned char>(c)) != 0) {
            text += static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
        }
    }
    return text;
}

/// What the library calls some kinds, beside the names in the table.
struct Alias {
    char const* alias;
    char const* kind;
};
constexpr Alias aliases[] = {
    {"ledactuator", "led"},
    {"camerasensor", "camera"},
    {"cameradepthsensor", "depthcamera"},
    {"sonarsensor", "sonar"},
    {"bumpersensor", "bumper"},
    {"fsrsensor", "fsr"},
    {"microphonesensor", "microphone"},
    {"jointsymmetry", "symmetry"},
    {"jointsymmetries", "symmetry"},
};

/// The name of a kind that goes by another one, with or without a plural s.
std::string unaliased(std::string const& name)
{
    for (auto const& [alias, kind] : aliases) {
        if (name == alias || name == alias + std::string("s")) {
            return kind;
        }
    }
    return name;
}

}  // namespace

Kind const* findKind(std::string const& name)
{
    std::string const wanted = unaliased(plain(name));
    for (Kind const& kind : kinds()) {
        if (wanted == plain(kind.singular) || wanted == plain(kind.plural)) {
            return &kind;
        }
    }
    return nullptr;
}

}  // namespace Tool
