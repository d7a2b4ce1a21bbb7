#ifndef VARO_MODEL_URDF_EXTENSIONS_HPP
#define VARO_MODEL_URDF_EXTENSIONS_HPP

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "robot/link_tree.hpp"
#include "varo/model/name_index.hpp"
#include "varo/model/records.hpp"
#include "varo/model/source_text.hpp"
#include "xml/document.hpp"

namespace Varo::Model::Urdf {

/// The record that an extension belongs to: that of the robot, unless something else is said.
struct Bearer {
    ExtensionOwner kind = ExtensionOwner::robot;
    std::string_view name = {};
};

/// The link or joint of that name, the link where there are both; nothing for neither.
std::optional<Bearer> findBearer(std::string_view name, LinkTree& tree);

/// Collects what a text has for other programs while it is read, and keeps it with the records that it stands in.
///
/// What stands in a `gazebo` element belongs to the link or joint that this refers to. Declarations of namespaces are
/// attributes like others, so that prefixes of what is kept can be looked up where the text has them.
class Extensions {
public:
    /// An element that has no place in the records, with all that it holds, be that added, too, or not.
    void add(XmlNode element) { _kept.push_back({element, {}, at(element).value()}); }
    /// An attribute of that kind.
    void add(XmlNode element, XmlAttribute attribute)
    {
        _kept.push_back({element, attribute, at(element, attribute).value()});
    }
    /// What is kept of the sensor's element stands in the record of that name.
    void addSensor(XmlNode element, std::string name) { _sensors.emplace(element.id(), std::move(name)); }

    /// To be called once, of a connected tree without errors.
    void addRecords(LinkTree& tree, SourceText const& source, Records& robot);

private:
    struct Kept {
        XmlNode element;
        XmlAttribute attribute;  ///< null when the whole element is kept
        std::size_t begin;  ///< where it stands in the text

        std::string_view markup(std::string_view text) const;
    };
    /// An element, and what is kept that stands next to each other in it.
    struct Site {
        bool precedes(Site const& other) const;

        Bearer bearer;
        std::string within;  ///< the elements between that of the bearer and what is kept
        std::size_t first = 0;  ///< those from there to before `end` are in it
        std::size_t end = 0;
    };
    /// How many elements of a name there are among the children of an element, as far as they are counted.
    struct Count {
        std::size_t parent = 0;
        std::uint32_t soFar = 0;
    };

    void dropNested();
    std::vector<Site> findSites(LinkTree& tree);
    void findSite(XmlNode element, LinkTree& tree, Site& site);
    std::optional<Bearer> findOwner(XmlNode element, LinkTree& tree) const;
    void appendStep(XmlNode element, std::string& path);
    std::size_t rankOf(XmlNode element);
    std::size_t rankAmongMany(XmlNode element);
    void rankChildren(XmlNode parent);

    std::vector<Kept> _kept;
    std::unordered_map<std::size_t, std::string> _sensors;  ///< names of their records by their elements
    std::vector<std::uint32_t> _ranks;  ///< by node: which of its like-named siblings it is, from 1; 0: not known yet
    NameIndex _names;  ///< of the elements that have ranks
    std::vector<Count> _counts;  ///< by the numbers of these names
};

}  // namespace Varo::Model::Urdf

#endif
