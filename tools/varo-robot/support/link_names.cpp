#include "support/link_names.hpp"

#include "varo/model/records.hpp"

namespace Tool {

LinkNames::LinkNames(Varo::Model::Robot const& robot)
{
    auto const remember = [this](Varo::Model::JointConfig const& body) {
        std::string const& name = body.linkName;
        if (!name.empty()) {
            _statedNames.emplace(body.name + "Link", name);
        }
    };
    auto const records = recordsOf(robot);
    remember(records->root);
    for (Varo::Model::JointConfig const& joint : records->joints) {
        remember(joint);
    }
}

std::string LinkNames::statedNameOf(std::string const& link) const
{
    auto const found = _statedNames.find(link);
    return found == _statedNames.end() ? "" : found->second;
}

std::vector<std::string> LinkNames::linksOf(std::string const& statedName) const
{
    std::vector<std::string> links;
    for (auto const& [link, name] : _statedNames) {
        if (name == statedName) {
            links.push_back(link);
        }
    }
    return links;
}

}  // namespace Tool
