#include "urdf/names.hpp"

#include "urdf/urdf_codes.hpp"
#include "xml/node_offset.hpp"

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

std::string UniqueNames::claim(std::string name, std::string_view owner, pugi::xml_node node, Diagnostics& diagnostics)
{
    auto const [entry, isFree] = _taken.try_emplace(name, 1);
    if (isFree) {
        return name;
    }
    std::string free;
    do {
        free = name + "_" + std::to_string(++entry->second);
    } while (_taken.find(free) != _taken.end());
    diagnostics.report(
        at(node), codes::renamed,
        "The name " + quoted(name) + " is taken; " + std::string(owner) + " is called " + quoted(free) + " instead.");
    _taken.emplace(free, 1);
    return free;
}

}  // namespace Varo::Model::Urdf
