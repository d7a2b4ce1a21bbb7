#include "urdf/extensions.hpp"

#include <algorithm>
#include <string_view>
#include <tuple>
#include <utility>

#include "varo/model/name_hash.hpp"
#include "xml/document.hpp"
#include "xml/markup.hpp"

namespace Varo::Model::Urdf {

namespace {

bool setLink(std::string_view name, LinkTree& tree, ExtensionConfig& extension)
{
    std::size_t const link = find(tree.linkByName, name);
    if (link != none) {
        extension.owner = ExtensionOwner::link;
        extension.ownerName = tree.bodyOf(tree.links[link]).name;
    }
    return link != none;
}

bool setJoint(std::string_view name, LinkTree& tree, ExtensionConfig& extension)
{
    std::size_t const joint = find(tree.jointByName, name);
    if (joint != none) {
        extension.owner = ExtensionOwner::joint;
        extension.ownerName = tree.joints[joint].config.name;
    }
    return joint != none;
}

bool isTopLevel(XmlNode element)
{
    return element.parent().isRoot();
}

/// What stands in one place follows each other, wherever in the text such places are.
auto keyOf(ExtensionConfig const& extension)
{
    return std::tuple(extension.owner, std::string_view(extension.ownerName), std::string_view(extension.within),
                      extension.textOffset.value());
}

}  // namespace

bool findBearer(std::string_view name, LinkTree& tree, ExtensionConfig& extension)
{
    return setLink(name, tree, extension) || setJoint(name, tree, extension);
}

void Extensions::addRecords(LinkTree& tree, SourceText const& source, Records& robot)
{
    robot.extensions.reserve(_kept.size());
    for (Kept const& kept : _kept) {
        ExtensionConfig extension;
        findPlace(kept, tree, extension);
        extension.textOffset = at(kept.element, kept.attribute);
        std::size_t const offset = extension.textOffset.value();
        extension.text = kept.attribute ? attributeAt(source.text(), offset) : elementAt(source.text(), offset);
        robot.extensions.push_back(std::move(extension));
    }
    std::sort(robot.extensions.begin(), robot.extensions.end(),
              [](auto const& a, auto const& b) { return a.textOffset.value() < b.textOffset.value(); });
    auto const isWithin = [](ExtensionConfig const& kept, ExtensionConfig const& next) {
        return next.textOffset.value() - kept.textOffset.value() < kept.text.size();
    };
    auto& all = robot.extensions;
    all.erase(std::unique(all.begin(), all.end(), isWithin), all.end());
    std::sort(all.begin(), all.end(), [](auto const& a, auto const& b) { return keyOf(a) < keyOf(b); });
}

/// Whether the element is one that extensions may stand in.
bool Extensions::findOwner(XmlNode element, LinkTree& tree, ExtensionConfig& extension) const
{
    if (auto const sensor = _sensors.find(element.id()); sensor != _sensors.end()) {
        extension.owner = ExtensionOwner::sensor;
        extension.ownerName = sensor->second;
        return true;
    }
    if (!isTopLevel(element)) {
        return element.isRoot();  // the robot itself
    }
    std::string_view const tag = element.name();
    std::string_view const name = element.attribute("name").value();
    return (tag == "link" && setLink(name, tree, extension)) || (tag == "joint" && setJoint(name, tree, extension));
}

/// The way from what is kept outward to its owner.
void Extensions::findPlace(Kept const& kept, LinkTree& tree, ExtensionConfig& extension)
{
    XmlNode around = kept.attribute ? kept.element : kept.element.parent();
    while (!findOwner(around, tree, extension)) {
        bool const isGazebo = isTopLevel(around) && around.name() == "gazebo";
        std::string const step = isGazebo ? "gazebo" : stepTo(around);
        extension.within = extension.within.empty() ? step : step + "/" + extension.within;
        if (isGazebo) {
            findBearer(around.attribute("reference").value(), tree, extension);
            return;
        }
        around = around.parent();
    }
}

/// The element's name and, unless it is the first of that name in its parent, which of them it is.
std::string Extensions::stepTo(XmlNode element)
{
    if (_ranks.find(element.id()) == _ranks.end()) {
        std::unordered_map<std::string_view, std::size_t, NameHash> counts;
        for (XmlNode const sibling : element.parent().children()) {
            _ranks.emplace(sibling.id(), ++counts[sibling.name()]);
        }
    }
    std::size_t const rank = _ranks[element.id()];
    return std::string(element.name()) + (rank > 1 ? "[" + std::to_string(rank) + "]" : std::string());
}

}  // namespace Varo::Model::Urdf
