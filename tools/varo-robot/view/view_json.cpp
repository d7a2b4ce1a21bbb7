#include "view/view_json.hpp"

#include <cmath>
#include <map>
#include <optional>
#include <sstream>
#include <stdexcept>

#include "sim/actuator.hpp"
#include "sim/frame.hpp"
#include "sim/joint.hpp"
#include "sim/link.hpp"
#include "sim/sensor.hpp"
#include "support/chain_colours.hpp"
#include "support/finding_text.hpp"
#include "support/json_parts.hpp"
#include "support/link_chains.hpp"
#include "support/robot_json.hpp"
#include "view/finding_links.hpp"

namespace Tool {

namespace {

/// The places of the links in the model, by which the page knows them.
class LinkPlaces {
public:
    explicit LinkPlaces(Sim::Model const& model)
    {
        for (Sim::Link const* const link : model.links()) {
            _places.emplace(link, _places.size());
        }
    }

    Json of(Sim::Link const* link) const
    {
        auto const found = _places.find(link);
        return found == _places.end() ? Json(nullptr) : Json(found->second);
    }

private:
    std::map<Sim::Link const*, std::size_t> _places;
};

Json valuesOf(Sim::Configuration const& configuration)
{
    Json values = Json::array();
    for (double const value : configuration.values()) {
        values.push_back(static_cast<float>(value));
    }
    return values;
}

Json variablesOf(Sim::Kinematics const& kinematics)
{
    auto const orNull = [](double limit) {
        return std::isfinite(limit) ? Json(static_cast<float>(limit)) : Json(nullptr);
    };
    Json variables = Json::array();
    for (Sim::JointVariable const& variable : kinematics.variables()) {
        variables.push_back({{"name", variable.name},
                             {"min", orNull(variable.min)},
                             {"max", orNull(variable.max)},
                             {"slides", variable.slides}});
    }
    return variables;
}

/// Empty for a joint that no variable moves.
std::optional<std::size_t> variableOf(Sim::Joint const& joint, Sim::Kinematics const& kinematics)
{
    try {
        return kinematics.variableOf(joint.name());
    } catch (std::invalid_argument const&) {
        return std::nullopt;
    }
}

char const* motionOf(Sim::Joint const& joint)
{
    if (!joint.moves()) {
        return "none";
    }
    return joint.type() == Sim::Joint::Type::prismatic ? "slides" : "turns";
}

/// What moves each joint: two configurations tell ratio and offset.
Json drivesOf(Sim::Model const& model, Sim::Kinematics const& kinematics)
{
    Sim::Configuration const zeros(kinematics);
    Sim::Configuration ones(kinematics);
    ones.setValues(std::vector<double>(ones.size(), 1.0));
    Json drives = Json::array();
    for (Sim::Joint const* const joint : model.joints()) {
        auto const variable = variableOf(*joint, kinematics);
        double const offset = zeros.at(joint->name());
        double const ratio = variable ? ones.at(joint->name()) - offset : 1.0;
        drives.push_back({{"motion", motionOf(*joint)},
                          {"variable", variable ? Json(*variable) : Json(nullptr)},
                          {"ratio", static_cast<float>(ratio)},
                          {"offset", static_cast<float>(offset)}});
    }
    return drives;
}

Json posturesOf(Sim::Model const& model, Sim::Kinematics const& kinematics)
{
    Json postures = Json::array();
    for (Varo::Model::PostureConfig const& posture : model.postures()) {
        Json data = {{"name", posture.name}, {"values", nullptr}, {"reason", ""}};
        try {
            data["values"] = valuesOf(Sim::Configuration(kinematics, posture.name));
        } catch (std::invalid_argument const& error) {
            data["reason"] = error.what();
        }
        postures.push_back(std::move(data));
    }
    return postures;
}

Json chainsOf(LinkChains const& chains)
{
    Json data = Json::array();
    for (std::string const& name : chains.names()) {
        data.push_back({{"name", name}, {"hue", static_cast<float>(hueOfChain(data.size()))}});
    }
    return data;
}

Json linkChains(Sim::Model const& model, LinkChains const& chains)
{
    Json data = Json::array();
    for (Sim::Link const* const link : model.links()) {
        auto const chain = chains.chainOf(*link);
        data.push_back(chain ? Json(*chain) : Json(nullptr));
    }
    return data;
}

/// The links that devices are on, and their poses there.
template <class Device>
Json placesOf(std::vector<Device const*> const& devices, ViewContents const& contents, LinkPlaces const& places)
{
    LinkCarriers const carriers(contents.model);
    Sim::Configuration const zeros(contents.kinematics);
    Json data = Json::array();
    for (Device const* const device : devices) {
        Sim::Link const* const link = carriers.of(device->frame());
        if (link == nullptr) {
            data.push_back(nullptr);
            continue;
        }
        Sim::Pose const pose = contents.kinematics.pose(zeros, *device->frame(), *link->frame());
        data.push_back({{"link", places.of(link)}, {"pose", matrixOf(pose.toTransform())}});
    }
    return data;
}

Json findingsOf(ViewContents const& contents, LinkPlaces const& places)
{
    FindingLinks const links(contents.model);
    Json data = Json::array();
    for (Varo::Model::Finding const& finding : contents.findings) {
        bool const hasPlace = finding.line != 0;
        data.push_back({{"severity", nameOf(finding.severity)},
                        {"code", finding.code},
                        {"line", hasPlace ? Json(finding.line) : Json(nullptr)},
                        {"column", hasPlace ? Json(finding.column) : Json(nullptr)},
                        {"message", finding.message},
                        {"hint", finding.hint},
                        {"link", places.of(links.of(finding.path))}});
    }
    return data;
}

}  // namespace

std::string viewJson(ViewContents const& contents)
{
    Sim::Model const& model = contents.model;
    LinkPlaces const places(model);
    LinkChains const chains(model);
    std::ostringstream text;
    {
        JsonStream object(text, '{');
        object.add("file", contents.file);
        object.next("dump");
        printRobot(text, model);
        object.add("variables", variablesOf(contents.kinematics));
        object.add("drives", drivesOf(model, contents.kinematics));
        object.add("degrees", contents.degrees);
        object.add("start", valuesOf(contents.start));
        object.add("postures", posturesOf(model, contents.kinematics));
        object.add("chains", chainsOf(chains));
        object.add("linkChains", linkChains(model, chains));
        object.add("sensorPlaces", placesOf(model.sensors(), contents, places));
        object.add("actuatorPlaces", placesOf(model.actuators(), contents, places));
        object.add("findings", findingsOf(contents, places));
        object.add("meshes", contents.meshes);
        object.add("textures", contents.textures);
    }
    return text.str();
}

}  // namespace Tool
