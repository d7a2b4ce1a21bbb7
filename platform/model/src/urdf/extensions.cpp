#include "urdf/extensions.hpp"

#include <algorithm>
#include <string_view>
#include <tuple>

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
    dropNested();
    auto& all = robot.extensions;
    all.reserve(_kept.size());
    ExtensionConfig site;
    XmlNode last;  // what the last one stands in: the next one often does, too
    for (Kept const& kept : _kept) {
        XmlNode const around = kept.attribute ? kept.element : kept.element.parent();
        if (!(around == last)) {
            site = siteIn(around, tree);
            last = around;
        }
        ExtensionConfig& extension = all.emplace_back(site);
        extension.textOffset = at(kept.element, kept.attribute);
        std::size_t const offset = extension.textOffset.value();
        extension.text = kept.attribute ? attributeAt(source.text(), offset) : kept.element.source();
    }
    std::sort(all.begin(), all.end(), [](auto const& a, auto const& b) { return keyOf(a) < keyOf(b); });
}

/// Puts what is kept in the order of the text, without what stands in something else that is kept.
void Extensions::dropNested()
{
    auto const placeOf = [](Kept const& kept) { return at(kept.element, kept.attribute).value(); };
    std::sort(_kept.begin(), _kept.end(), [&](Kept const& a, Kept const& b) { return placeOf(a) < placeOf(b); });
    auto const isWithin = [&](Kept const& outer, Kept const& next) {
        std::size_t const size = outer.attribute ? 1 : outer.element.source().size();
        return placeOf(next) - placeOf(outer) < size;
    };
    _kept.erase(std::unique(_kept.begin(), _kept.end(), isWithin), _kept.end());
}

/// Whether the element is one that extensions may stand in.
bool Extensions::findOwner(XmlNode element, LinkTree& tree, ExtensionConfig& site) const
{
    if (auto const sensor = _sensors.find(element.id()); sensor != _sensors.end()) {
        site.owner = ExtensionOwner::sensor;
        site.ownerName = sensor->second;
        return true;
    }
    if (!isTopLevel(element)) {
        return element.isRoot();  // the robot itself
    }
    std::string_view const tag = element.name();
    std::string_view const name = element.attribute("name").value();
    return (tag == "link" && setLink(name, tree, site)) || (tag == "joint" && setJoint(name, tree, site));
}

/// What stands in the element belongs there: the way from the element outward to its owner.
ExtensionConfig Extensions::siteIn(XmlNode element, LinkTree& tree)
{
    ExtensionConfig site;
    for (XmlNode around = element; !findOwner(around, tree, site); around = around.parent()) {
        bool const isGazebo = isTopLevel(around) && around.name() == "gazebo";
        std::string const step = isGazebo ? "gazebo" : stepTo(around);
        site.within = site.within.empty() ? step : step + "/" + site.within;
        if (isGazebo) {
            findBearer(around.attribute("reference").value(), tree, site);
            break;
        }
    }
    return site;
}

/// Which of its like-named siblings it is, from 1.
std::size_t Extensions::rankOf(XmlNode element)
{
    if (element.id() >= _ranks.size() || _ranks[element.id()] == 0) {
        std::unordered_map<std::string_view, std::uint32_t, NameHash> counts;
        std::size_t last = 0;
        for (XmlNode const sibling : element.parent().children()) {
            last = sibling.id();
        }
        _ranks.resize(std::max(_ranks.size(), last + 1));
        for (XmlNode const sibling : element.parent().children()) {
            _ranks[sibling.id()] = ++counts[sibling.name()];
        }
    }
    return _ranks[element.id()];
}

/// The element's name and, unless it is the first of that name in its parent, which of them it is.
std::string Extensions::stepTo(XmlNode element)
{
    std::size_t const rank = rankOf(element);
    return std::string(element.name()) + (rank > 1 ? "[" + std::to_string(rank) + "]" : std::string());
}

}  // namespace Varo::Model::Urdf
