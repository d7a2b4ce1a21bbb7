#include "support/kinds.hpp"

#include <algorithm>
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
    ElementJson json;
    std::vector<Json> data;
    data.reserve(elements.size());
    for (Element const* element : elements) {
        data.push_back(json.of(*element));
    }
    return data;
}

template <auto list>
std::vector<Json> all(Sim::Model const& model)
{
    return dataOf((model.*list)());
}

/// Those elements of a list whose type is the given one.
template <auto list, auto type>
std::vector<Json> ofType(Sim::Model const& model)
{
    auto elements = (model.*list)();
    auto const isOther = [](auto const* element) { return element->type() != type; };
    elements.erase(std::remove_if(elements.begin(), elements.end(), isOther), elements.end());
    return dataOf(elements);
}

std::vector<Json> groups(Sim::Model const& model)
{
    std::vector<Json> data = dataOf(model.jointGroups());
    for (Json& group : dataOf(model.actuatorGroups())) {
        data.push_back(std::move(group));
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
        {"wheel", "wheels", links, ofType<&Model::links, Sim::Link::Wheel>},
        {"joint", "joints", {name, {"FROM", "/parentLink"}, {"TO", "/childLink"}, position}, all<&Model::joints>},
        {"symmetry", "symmetries", {{"JOINTS", "/joints"}, type}, all<&Model::jointSymmetries>},
        {"group", "groups", {name, {"JOINTS", "/joints"}, {"ACTUATORS", "/actuators"}}, groups},
        {"joint-group", "joint-groups", {name, {"JOINTS", "/joints"}}, all<&Model::jointGroups>},
        {"actuator-group",
         "actuator-groups",
         {name, {"PARENT", "/parent"}, {"ACTUATORS", "/actuators"}},
         all<&Model::actuatorGroups>},
        {"actuator", "actuators", {name, type, position, keys}, all<&Model::actuators>},
        {"angle-actuator", "angle-actuators", motors, ofType<&Model::actuators, Actuator::Angle>},
        {"angle-speed-actuator", "angle-speed-actuators", motors, ofType<&Model::actuators, Actuator::AngleSpeed>},
        {"torque-actuator", "torque-actuators", motors, ofType<&Model::actuators, Actuator::Torque>},
        {"coupled-actuator",
         "coupled-actuators",
         {name, {"MIN", "/minValue"}, {"MAX", "/maxValue"}, {"JOINTS AND RATIOS", "/controlledJointAndRatios"}},
         ofType<&Model::actuators, Actuator::Coupled>},
        {"wheel-velocity-actuator", "wheel-velocity-actuators", wheelMotors,
         ofType<&Model::actuators, Actuator::WheelVelocity>},
        {"wheel-torque-actuator", "wheel-torque-actuators", wheelMotors,
         ofType<&Model::actuators, Actuator::WheelTorque>},
        {"led", "leds", leds, ofType<&Model::actuators, Actuator::LED>},
        {"sensor", "sensors", sensors, all<&Model::sensors>},
        {"angle-sensor", "angle-sensors", sensors, ofType<&Model::sensors, Sensor::Angle>},
        {"angle-speed-sensor", "angle-speed-sensors", sensors, ofType<&Model::sensors, Sensor::AngleSpeed>},
        {"torque-sensor", "torque-sensors", sensors, ofType<&Model::sensors, Sensor::Torque>},
        {"coupled-sensor", "coupled-sensors", sensors, ofType<&Model::sensors, Sensor::Coupled>},
        {"wheel-velocity-sensor", "wheel-velocity-sensors", sensors, ofType<&Model::sensors, Sensor::WheelVelocity>},
        {"camera", "cameras", pictured, ofType<&Model::sensors, Sensor::Camera>},
        {"depth-camera", "depth-cameras", pictured, ofType<&Model::sensors, Sensor::CameraDepth>},
        {"array-depth-sensor", "array-depth-sensors", pictured, ofType<&Model::sensors, Sensor::ArrayDepth>},
        {"single-depth-sensor", "single-depth-sensors", sensors, ofType<&Model::sensors, Sensor::SingleDepth>},
        {"sonar", "sonars", sensors, ofType<&Model::sensors, Sensor::Sonar>},
        {"bumper", "bumpers", sensors, ofType<&Model::sensors, Sensor::Bumper>},
        {"tactile-sensor", "tactile-sensors", sensors, ofType<&Model::sensors, Sensor::Tactile>},
        {"fsr", "fsrs", sensors, ofType<&Model::sensors, Sensor::FSR>},
        {"inertial-sensor", "inertial-sensors", sensors, ofType<&Model::sensors, Sensor::Inertial>},
        {"microphone", "microphones", sensors, ofType<&Model::sensors, Sensor::Microphone>},
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
