#ifndef VARO_MODEL_URDF_UNCARRIED_HPP
#define VARO_MODEL_URDF_UNCARRIED_HPP

#include <cstddef>
#include <map>
#include <string_view>
#include <utility>

#include <pugixml.hpp>

#include "varo/model/diagnostics.hpp"

namespace Varo::Model::Urdf {

/// What the reader passes over, one note per kind of element: files have the same few by the hundred.
class Uncarried {
public:
    void add(pugi::xml_node element);
    /// At the first element of each kind.
    void report(Diagnostics& diagnostics) const;

private:
    struct Kind {
        pugi::xml_node first;
        std::size_t count = 0;
    };

    std::map<std::pair<std::string_view, std::string_view>, Kind> _kinds;  // by names of parent and element
};

}  // namespace Varo::Model::Urdf

#endif
