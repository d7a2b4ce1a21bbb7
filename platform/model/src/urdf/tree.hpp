#ifndef VARO_MODEL_URDF_TREE_HPP
#define VARO_MODEL_URDF_TREE_HPP

#include <cstddef>
#include <vector>

#include <pugixml.hpp>

#include "urdf/description.hpp"
#include "varo/model/diagnostics.hpp"

namespace Varo::Model::Urdf {

/// Ties links and joints to each other by their names and finds the root. Reports whatever keeps them from being one
/// tree, save what only follows from another such finding.
void connect(Description& description, pugi::xml_node robot, Diagnostics& diagnostics);

/// The joints that hang on each link, in the order of the file.
class ChildJoints {
public:
    explicit ChildJoints(Description const& description);

    std::size_t const* begin(std::size_t link) const { return _joints.data() + _begins[link]; }
    std::size_t const* end(std::size_t link) const { return _joints.data() + _begins[link + 1]; }

private:
    std::vector<std::size_t> _begins;  // by link, with the end of the last one
    std::vector<std::size_t> _joints;
};

}  // namespace Varo::Model::Urdf

#endif
