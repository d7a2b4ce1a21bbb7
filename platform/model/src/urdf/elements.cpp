#include "urdf/elements.hpp"

#include <string>

#include "urdf/values.hpp"

namespace Varo::Model::Urdf {

void reportLongName(TextOffset place, Diagnostics& diagnostics)
{
    diagnostics.report(place, codes::nameTooLong, "This name has more than " + std::to_string(longestName) + " bytes.");
}

std::string_view readName(pugi::xml_node node, Diagnostics& diagnostics)
{
    std::string_view const stated = node.attribute("name").value();
    std::string_view name;
    if (!Name::parse(stated, name)) {
        reportLongName(at(node, "name"), diagnostics);
    }
    return name;
}

}  // namespace Varo::Model::Urdf
