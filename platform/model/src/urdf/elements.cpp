#include "urdf/elements.hpp"

#include <string>

#include "urdf/values.hpp"
#include "xml/document.hpp"

namespace Varo::Model::Urdf {

void reportLongName(TextOffset place, Diagnostics& diagnostics)
{
    diagnostics.report(place, codes::nameTooLong, "This name has more than " + std::to_string(longestName) + " bytes.");
}

std::string_view readName(XmlNode node, Diagnostics& diagnostics)
{
    std::string_view const stated = node.attribute("name").value();
    std::string_view name;
    if (!Name::parse(stated, name)) {
        reportLongName(at(node, "name"), diagnostics);
    }
    return name;
}

}  // namespace Varo::Model::Urdf
