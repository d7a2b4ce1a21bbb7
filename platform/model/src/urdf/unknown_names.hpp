#ifndef VARO_MODEL_URDF_UNKNOWN_NAMES_HPP
#define VARO_MODEL_URDF_UNKNOWN_NAMES_HPP

#include <cstddef>
#include <functional>
#include <map>
#include <string_view>
#include <unordered_map>
#include <utility>

#include "urdf/schema.hpp"
#include "varo/model/diagnostics.hpp"
#include "varo/model/name_hash.hpp"
#include "xml/document.hpp"

namespace Varo::Model::Urdf {

/// Elements of the robot that others than the tables read.
inline constexpr std::string_view readElsewhere[] = {"gazebo", "ros2_control", "sensor"};

/// The most letters that are wrong in a name that another was probably meant by.
inline constexpr std::size_t farthestNear = 2;

/// Whether one was probably meant by the other: one letter may be wrong, and two in a long name.
bool isNear(std::string_view written, std::string_view known);

/// Tells names that were meant for URDF, and misspelt or misplaced, from those that are for other programs.
///
/// Names with a prefix are always for others, and so is all that stands in an element that is.
class UnknownNames {
public:
    explicit UnknownNames(Diagnostics& diagnostics) : _diagnostics(diagnostics) {}

    /// An attribute that the element does not define; answers the row that was meant, if nothing more need be said of
    /// its absence, and noRow otherwise.
    std::size_t noteAttribute(ElementInfo const& element, XmlNode node, XmlAttribute attribute);
    /// A child that it does not define.
    void noteChild(ElementInfo const& element, XmlNode child);

    /// Notes on the attributes that nobody meant for URDF, each kind once. To be called once, in the end.
    void report();

private:
    struct Kind {
        TextOffset first;
        std::size_t count = 0;
    };
    struct UnknownAttribute {
        std::size_t meant;  ///< the row, or noRow
        Kind* foreign = nullptr;  ///< null where a row was meant
    };
    struct UnknownChild {
        std::string_view meant;  ///< empty for none
        bool isDefined = false;  ///< whether URDF has it elsewhere
    };

    /// A name in the elements of a table.
    using Name = std::pair<ElementInfo const*, std::string_view>;
    struct HashOfName {
        std::size_t operator()(Name const& name) const
        {
            return NameHash()(name.second) ^ std::hash<ElementInfo const*>()(name.first);
        }
    };

    Diagnostics& _diagnostics;
    // Comparing words takes time, and texts write the same ones over and over.
    std::unordered_map<Name, UnknownAttribute, HashOfName> _attributes;
    std::unordered_map<Name, UnknownChild, HashOfName> _children;
    std::map<std::pair<std::string_view, std::string_view>, Kind> _foreign;  // by names of element and attribute
};

}  // namespace Varo::Model::Urdf

#endif
