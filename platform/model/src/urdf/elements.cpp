#include "urdf/elements.hpp"

#include <string>

namespace Varo::Model::Urdf {

namespace {

constexpr std::size_t longestName = 1000;  // bytes

}  // namespace

std::string_view readName(pugi::xml_node node, Diagnostics& diagnostics)
{
    std::string_view const name = node.attribute("name").value();
    if (name.empty()) {
        diagnostics.report(at(node), codes::missingName, "This " + std::string(node.name()) + " has no name.",
                           "Give it an attribute \"name\".");
        return {};
    }
    if (name.size() > longestName) {
        diagnostics.report(at(node, "name"), codes::nameTooLong,
                           "This name has more than " + std::to_string(longestName) + " bytes.");
        return {};
    }
    return name;
}

}  // namespace Varo::Model::Urdf
