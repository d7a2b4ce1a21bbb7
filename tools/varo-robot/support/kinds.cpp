#include "support/kinds.hpp"

#include <algorithm>
#include <cctype>
#include <type_traits>

#include "support/device_kinds.hpp"
#include "support/element_json.hpp"
#include "varo/model/records.hpp"

namespace Tool {

namespace {

using Take = std::function<void(Json&&)>;

template <class Element>
void visitAll(std::vector<Element const*> const& elements, Take const& take)
{
    ElementJson json;
    for (Element const* element : elements) {
        take(json.of(*element));
    }
}

template <auto list>
void all(Sim::Model const& model, Take const& take)
{
    visitAll((model.*list)(), take);
}

/// Those elements of a list that are of the class.
template <auto list, class Class>
void ofClass(Sim::Model const& model, Take const& take)
{
    auto elements = (model.*list)();
    auto const isOther = [](auto const* element) { return dynamic_cast<Class const*>(element) == nullptr; };
    elements.erase(std::remove_if(elements.begin(), elements.end(), isOther), elements.end());
    visitAll(elements, take);
}

void wheels(Sim::Model const& model, Take const& take)
{
    std::vector<Sim::Link const*> links = model.links();
    auto const isOther = [](Sim::Link const* link) { return link->type() != Sim::Link::Wheel; };
    links.erase(std::remove_if(links.begin(), links.end(), isOther), links.end());
    visitAll(links, take);
}

void groups(Sim::Model const& model, Take const& take)
{
    visitAll(model.jointGroups(), take);
    visitAll(model.actuatorGroups(), take);
}

/// What the model has no elements of, but its records do.
void chains(Sim::Model const& model, Take const& take)
{
    auto const records = Varo::Model::recordsOf(model.robot());
    for (Varo::Model::ChainConfig const& chain : records->chains) {
        take({{"name", chain.name}, {"parent", chain.parentJoint}, {"joints", chain.jointNames}});
    }
}

void postures(Sim::Model const& model, Take const& take)
{
    for (Varo::Model::PostureConfig const& posture : model.postures()) {
        Members angles;
        for (Varo::Model::PostureAngle const& angle : posture.angles) {
            angles.set(angle.name, angle.value);
        }
        take({{"name", posture.name}, {"angles", angles.take()}});
    }
}

void transmissions(Sim::Model const& model, Take const& take)
{
    using Varo::Model::TransmissionSource;
    auto const records = Varo::Model::recordsOf(model.robot());
    for (Varo::Model::TransmissionConfig const& driven : records->transmissions) {
        take({{"name", driven.name},
              {"type", driven.type},
              {"joint", driven.joint},
              {"actuator", driven.actuator},
              {"reduction", driven.reduction},
              {"interfaces", driven.interfaces},
              {"stateInterfaces", driven.stateInterfaces},
              {"source", driven.source == TransmissionSource::ros2Control ? "ros2Control" : "transmission"}});
    }
}

using Columns = std::vector<Column>;

namespace columns {
constexpr Column name = {"NAME", "/name"};
constexpr Column type = {"TYPE", "/type"};
constexpr Column position = {"POSITION", "/globalPosition"};
constexpr Column bytes = {"BYTES", "/bufferSize"};
constexpr Column keys = {"KEYS", "/dcmKeys"};
constexpr Column joint = {"JOINT", "/controlledJoint"};
constexpr Column minimum = {"MIN", "/minValue"};
constexpr Column maximum = {"MAX", "/maxValue"};
}  // namespace columns

template <class Class, class... Others>
constexpr bool isOneOf = (std::is_same_v<Class, Others> || ...);

/// What to show of the devices of a class.
template <class Class>
Columns columnsOf()
{
    using namespace Sim;
    using namespace columns;
    if constexpr (isOneOf<Class, AngleActuator, AngleSpeedActuator, TorqueActuator>) {
        return {name, joint, minimum, maximum, {"MIRROR", "/reflectedSymmetric"}, keys};
    } else if constexpr (isOneOf<Class, CoupledActuator>) {
        return {name, minimum, maximum, {"JOINTS AND RATIOS", "/controlledJointAndRatios"}};
    } else if constexpr (isOneOf<Class, WheelTorqueActuator, WheelVelocityActuator>) {
        return {name, joint, {"TORQUE", "/maxTorque"}, {"VELOCITY", "/maxVelocity"}, keys};
    } else if constexpr (isOneOf<Class, LEDActuator>) {
        return {name, {"COLOR", "/color"}, {"GROUPS", "/groups"}, {"SHORT", "/shortname"}, position, keys};
    } else if constexpr (isOneOf<Class, CameraSensor, CameraDepthSensor, ArrayDepthSensor>) {
        return {name, {"WIDTH", "/width"}, {"HEIGHT", "/height"}, position, bytes};
    } else if constexpr (std::is_base_of_v<Sensor, Class>) {
        return {name, type, position, bytes, keys};
    } else {
        return {name, type, position, keys};
    }
}

/// Adds the kinds of a table of the library; `family` ends the names of their classes.
template <auto list, class DeviceKinds>
void addDevices(std::vector<Kind>& kinds, DeviceKinds const& deviceKinds, std::string const& family)
{
    forEachKind(deviceKinds, [&](auto const& kind) {
        using Class = typename std::decay_t<decltype(kind)>::Class;
        std::string const word = kind.word;
        std::string const className = kind.name + family;
        kinds.push_back({word + "s", {word, className, className + "s"}, columnsOf<Class>(), ofClass<list, Class>});
    });
}

std::vector<Kind> makeKinds()
{
    using namespace columns;
    using Sim::Model;
    Column const joints = {"JOINTS", "/joints"};
    Column const actuators = {"ACTUATORS", "/actuators"};
    Columns const ofLinks = {
        {"NAME", "/name", true}, type, {"JOINT", "/parentJoint"}, {"MASS", "/mass/mass"}, position};

    std::vector<Kind> kinds = {
        {"links", {"link"}, ofLinks, all<&Model::links>},
        {"wheels", {"wheel"}, ofLinks, wheels},
        {"joints", {"joint"}, {name, type, {"MOTOR", "/motor"}, {"LINK", "/childLink", true}}, all<&Model::joints>},
        {"symmetries",
         {"symmetry", "joint-symmetry", "joint-symmetries"},
         {joints, type},
         all<&Model::jointSymmetries>},
        {"groups", {"group"}, {name, joints, actuators}, groups},
        {"joint-groups", {"joint-group"}, {name, joints}, all<&Model::jointGroups>},
        {"actuator-groups", {"actuator-group"}, {name, {"PARENT", "/parent"}, actuators}, all<&Model::actuatorGroups>},
        {"chains", {"chain"}, {name, {"PARENT", "/parent"}, joints}, chains},
        {"transmissions",
         {"transmission"},
         {name,
          {"JOINT", "/joint"},
          {"ACTUATOR", "/actuator"},
          {"REDUCTION", "/reduction"},
          {"INTERFACES", "/interfaces"}},
         transmissions},
        {"postures", {"posture"}, {name, {"ANGLES", "/angles"}}, postures},
        {"actuators", {"actuator"}, columnsOf<Sim::Actuator>(), all<&Model::actuators>},
    };
    addDevices<&Model::actuators>(kinds, Sim::actuatorKinds, "Actuator");
    kinds.push_back({"sensors", {"sensor"}, columnsOf<Sim::Sensor>(), all<&Model::sensors>});
    addDevices<&Model::sensors>(kinds, Sim::sensorKinds, "Sensor");
    return kinds;
}

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

}  // namespace

std::vector<Json> Kind::elements(Sim::Model const& model) const
{
    std::vector<Json> data;
    visit(model, [&data](Json&& element) { data.push_back(std::move(element)); });
    return data;
}

std::vector<Kind> const& kinds()
{
    static std::vector<Kind> const table = makeKinds();
    return table;
}

Kind const* findKind(std::string const& name)
{
    std::string const wanted = plain(name);
    for (Kind const& kind : kinds()) {
        auto const isMeant = [&](std::string const& known) { return plain(known) == wanted; };
        if (isMeant(kind.plural) || std::any_of(kind.otherNames.begin(), kind.otherNames.end(), isMeant)) {
            return &kind;
        }
    }
    return nullptr;
}

}  // namespace Tool
