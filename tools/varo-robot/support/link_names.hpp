#ifndef TOOL_SUPPORT_LINK_NAMES_HPP
#define TOOL_SUPPORT_LINK_NAMES_HPP

#include <map>
#include <string>
#include <vector>

#include "varo/model/robot.hpp"

namespace Tool {

/// The names that links bear in a URDF description; in the model a link is called after its joint.
class LinkNames {
public:
    explicit LinkNames(Varo::Model::Robot const& robot);

    /// The name in the URDF of the model's link; empty when it has none.
    std::string urdfNameOf(std::string const& link) const;
    /// The model's links of that URDF name.
    std::vector<std::string> linksOf(std::string const& urdfName) const;

private:
    std::map<std::string, std::string> _urdfNames;  // by the model's name of the link
};

}  // namespace Tool

#endif
