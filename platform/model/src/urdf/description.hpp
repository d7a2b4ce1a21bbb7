#ifndef VARO_MODEL_URDF_DESCRIPTION_HPP
#define VARO_MODEL_URDF_DESCRIPTION_HPP

#include <cstddef>
#include <string_view>
#include <unordered_map>
#include <vector>

#include <pugixml.hpp>

#include "urdf/pose.hpp"
#include "varo/model/configs.hpp"

/// A URDF text as it is written, before it becomes records: links and joints, in the order of the file.
namespace Varo::Model::Urdf {

/// An index that points to nothing.
constexpr std::size_t none = static_cast<std::size_t>(-1);

struct Link {
    pugi::xml_node node;
    std::string_view name;
    std::size_t parentJoint = none;  ///< the joint that moves it; none for the root
};

struct Joint {
    pugi::xml_node node;
    pugi::xml_node parent;  ///< the element that names the parent link
    pugi::xml_node child;
    pugi::xml_node mimic;  ///< null unless the joint mimics another
    JointConfig config;  ///< complete but for what depends on other joints: placement and body
    Pose origin;  ///< of the child link in the frame of the parent link, at zero position
    Matrix axis = Pose().rotation;  ///< takes z to the axis of motion
    std::size_t parentLink = none;
    std::size_t childLink = none;

    bool isFixed() const { return config.jointType == fixed; }
};

struct Description {
    std::vector<Link> links;
    std::vector<Joint> joints;
    std::unordered_map<std::string_view, std::size_t> linkByName;
    std::unordered_map<std::string_view, std::size_t> jointByName;
    std::size_t root = none;  ///< the link that no joint moves
};

/// What the table has under the name, or none.
inline std::size_t find(std::unordered_map<std::string_view, std::size_t> const& table, std::string_view name)
{
    auto const found = table.find(name);
    return found == table.end() ? none : found->second;
}

}  // namespace Varo::Model::Urdf

#endif
