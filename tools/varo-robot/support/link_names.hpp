#ifndef TOOL_SUPPORT_LINK_NAMES_HPP
#define TOOL_SUPPORT_LINK_NAMES_HPP

#include <map>
#include <string>
#include <vector>

#include "varo/model/robot.hpp"

namespace Tool {

/// The names that a description gives its links where its dialect names them; in the model a link is called after its
/// joint.
class LinkNames {
public:
    explicit LinkNames(Varo::Model::Robot const& robot);

    /// The name that the description gives the model's link; empty when it gives none.
    std::string statedNameOf(std::string const& link) const;
    /// The model's links to which the description gives that name.
    std::vector<std::string> linksOf(std::string const& statedName) const;

private:
    std::map<std::string, std::string> _statedNames;  // by the model's name of the link
};

}  // namespace Tool

#endif
