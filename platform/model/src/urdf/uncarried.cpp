#include "urdf/uncarried.hpp"

#include <string>

#include "urdf/urdf_codes.hpp"
#include "xml/node_offset.hpp"

namespace Varo::Model::Urdf {

void Uncarried::add(pugi::xml_node element)
{
    Kind& kind = _kinds[{element.parent().name(), element.name()}];
    if (kind.count == 0) {
        kind.first = element;
    }
    ++kind.count;
}

void Uncarried::report(Diagnostics& diagnostics) const
{
    for (auto const& [names, kind] : _kinds) {
        auto const& [parent, element] = names;
        std::string message = "What " + quoted(element) + " in " + quoted(parent) + " says is not carried over";
        message += kind.count > 1 ? ", here and in " + std::to_string(kind.count - 1) + " more places." : ".";
        diagnostics.report(at(kind.first), codes::notCarried, std::move(message));
    }
}

}  // namespace Varo::Model::Urdf
