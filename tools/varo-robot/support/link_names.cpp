#include "support/link_names.hpp"

namespace Tool {

namespace {

/// The attribute of a body under which the URDF reader keeps the link's name.
constexpr char attributeName[] = "urdfLink";

}  // namespace

LinkNames::LinkNames(Varo::Model::Robot const& robot)
{
    std::string robotName;
    Varo::Model::JointConfig root;
    Varo::Model::JointTable joints;
    std::vector<std::string> names;
    std::vector<std::string> reflectionForced;
    robot.listJoints(robotName, root, joints, names, reflectionForced);
    auto const remember = [this](Varo::Model::JointConfig const& body) {
        auto const found = body.attributes.find(attributeName);
        if (found != body.attributes.end()) {
            _urdfNames.emplace(body.name + "Link", found->second);
        }
    };
    remember(root);
    for (auto const& [name, joint] : joints) {
        remember(joint);
    }
}

std::string LinkNames::urdfNameOf(std::string const& link) const
{
    auto const found = _urdfNames.find(link);
    return found == _urdfNames.end() ? "" : found->second;
}

std::vector<std::string> LinkNames::linksOf(std::string const& urdfName) const
{
    std::vector<std::string> links;
    for (auto const& [link, name] : _urdfNames) {
        if (name == urdfName) {
            links.push_back(link);
        }
    }
    return links;
}

}  // namespace Tool
