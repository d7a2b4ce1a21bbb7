#include <string_view>
#include <unordered_map>

#include "varo/model/robot.hpp"

namespace Varo::Model {

std::vector<std::string> angleNames(std::vector<std::string> const& chainNames, ChainTable const& chains,
                                    ActuatorTable const& actuators)
{
    std::unordered_map<std::string_view, std::vector<std::string>> actuatorsOfJoint;
    for (auto const& [name, actuator] : actuators) {
        actuatorsOfJoint[actuator.parentJoint].push_back(actuator.name);
    }
    std::vector<std::string> names;
    for (std::string const& chainName : chainNames) {
        auto const chain = chains.find(chainName);
        if (chain == chains.end()) {
            continue;
        }
        for (std::string const& joint : chain->second.jointNames) {
            names.push_back(joint);
            if (auto const found = actuatorsOfJoint.find(joint); found != actuatorsOfJoint.end()) {
                names.insert(names.end(), found->second.begin(), found->second.end());
            }
        }
    }
    return names;
}

}  // namespace Varo::Model
