#ifndef TOOL_SUPPORT_LINK_NAMES_HPP
#define TOOL_SUPPORT_LINK_NAMES_HPP

#include <map>
#include <string>

#include "sim/model.hpp"

namespace Tool {

/// What people call the links of a model: as the description does where it names them; models call a link after its
/// joint.
class LinkNames {
public:
    explicit LinkNames(Sim::Model const& model);

    /// Of the link that the model calls so; the same name where there is no such link.
    std::string of(std::string const& link) const;

private:
    std::map<std::string, std::string> _names;  // by the model's name, where the two differ
};

}  // namespace Tool

#endif
