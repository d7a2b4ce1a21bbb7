#ifndef VARO_MODEL_URDF_EXTENSIONS_HPP
#define VARO_MODEL_URDF_EXTENSIONS_HPP

#include <cstddef>
#include <cstdint>
#include <string>
#include <unordered_map>
#include <vector>

#include "robot/link_tree.hpp"
#include "varo/model/records.hpp"
#include "varo/model/source_text.hpp"
#include "xml/document.hpp"

namespace Varo::Model::Urdf {

/// Collects what a text has for other programs while it is read, and keeps it with the records that it stands in.
///
/// What stands in a `gazebo` element belongs to the link or joint that this refers to. Declarations of namespaces are
/// attributes like others, so that prefixes of what is kept can be looked up where the text has them.
class Extensions {
public:
    /// An element that has no place in the records, with all that it holds, be that added, too, or not.
    void add(XmlNode element) { _kept.push_back({element, {}}); }
    /// An attribute of that kind.
    void add(XmlNode element, XmlAttribute attribute) { _kept.push_back({element, attribute}); }
    /// What is kept of the sensor's element stands in the record of that name.
    void addSensor(XmlNode element, std::string name) { _sensors.emplace(element.id(), std::move(name)); }

    /// To be called once, of a connected tree without errors.
    void addRecords(LinkTree& tree, SourceText const& source, Records& robot);

private:
    struct Kept {
        XmlNode element;
        XmlAttribute attribute;  ///< null when the whole element is kept
    };

    void dropNested();
    ExtensionConfig siteIn(XmlNode element, LinkTree& tree);
    bool findOwner(XmlNode element, LinkTree& tree, ExtensionConfig& site) const;
    std::string stepTo(XmlNode element);
    std::size_t rankOf(XmlNode element);

    std::vector<Kept> _kept;
    std::unordered_map<std::size_t, std::string> _sensors;  ///< names of their records by their elements
    std::vector<std::uint32_t> _ranks;  ///< by node: which of its like-named siblings it is, from 1; 0: unknown
};

/// The link or joint of that name, the link where there are both, as what an extension stands in; false for neither.
bool findBearer(std::string_view name, LinkTree& tree, ExtensionConfig& extension);

}  // namespace Varo::Model::Urdf

#endif
