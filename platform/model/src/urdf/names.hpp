#ifndef VARO_MODEL_URDF_NAMES_HPP
#define VARO_MODEL_URDF_NAMES_HPP

#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_map>

#include <pugixml.hpp>

#include "varo/model/diagnostics.hpp"

namespace Varo::Model::Urdf {

/// The element's name; empty, and reported, when it has none or one that is too long.
std::string_view readName(pugi::xml_node node, Diagnostics& diagnostics);

/// Names that must differ in the records, although URDF allows them to be alike.
class UniqueNames {
public:
    /// The name, or the first of name_2, name_3, ... that is free; it is taken from now on. A name that had to be
    /// changed is reported at `node`, as that of what `owner` says.
    std::string claim(std::string name, std::string_view owner, pugi::xml_node node, Diagnostics& diagnostics);

private:
    std::unordered_map<std::string, std::size_t> _taken;  // with the number last appended to the name
};

}  // namespace Varo::Model::Urdf

#endif
