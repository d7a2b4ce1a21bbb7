#include "urdf/extensions.hpp"

#include <algorithm>
#include <utility>

#include "xml/markup.hpp"

namespace Varo::Model::Urdf {

namespace {

std::optional<Bearer> findLink(std::string_view name, LinkTree& tree)
{
    std::size_t const link = find(tree.linkByName, name);
    return link == none ? std::nullopt
                        : std::optional(Bearer{ExtensionOwner::link, tree.bodyOf(tree.links[link]).name});
}

std::optional<Bearer> findJoint(std::string_view name, LinkTree const& tree)
{
    std::size_t const joint = find(tree.jointByName, name);
    return joint == none ? std::nullopt : std::optional(Bearer{ExtensionOwner::joint, tree.joints[joint].config.name});
}

bool isTopLevel(XmlNode element)
{
    return element.parent().isRoot();
}

}  // namespace

std::optional<Bearer> findBearer(std::string_view name, LinkTree& tree)
{
    std::optional<Bearer> const link = findLink(name, tree);
    return link ? link : findJoint(name, tree);
}

std::string_view Extensions::Kept::markup(std::string_view text) const
{
    if (!attribute) {
        return element.source();
    }
    std::size_t const name = attribute.name().size();
    return text.substr(begin, name + attributeAt(text, begin + name).size());
}

/// What stands in one place follows each other, wherever in the text such places are.
bool Extensions::Site::precedes(Site const& other) const
{
    if (bearer.kind != other.bearer.kind) {
        return bearer.kind < other.bearer.kind;
    }
    int const byName = bearer.name.compare(other.bearer.name);
    int const byPath = byName != 0 ? byName : within.compare(other.within);
    return byPath != 0 ? byPath < 0 : first < other.first;
}

void Extensions::addRecords(LinkTree& tree, SourceText const& source, Records& robot)
{
    dropNested();
    std::vector<Site> const sites = findSites(tree);
    std::vector<Site const*> order;
    order.reserve(sites.size());
    for (Site const& site : sites) {
        order.push_back(&site);
    }
    std::sort(order.begin(), order.end(), [](Site const* a, Site const* b) { return a->precedes(*b); });
    robot.extensions.reserve(_kept.size());
    for (Site const* const site : order) {
        for (std::size_t i = site->first; i < site->end; ++i) {
            robot.extensions.push_back({site->bearer.kind, std::string(site->bearer.name), site->within,
                                        std::string(_kept[i].markup(source.text())), TextOffset(_kept[i].begin)});
        }
    }
}

/// Puts what is kept in the order of the text, without what stands in something else that is kept.
void Extensions::dropNested()
{
    auto const precedes = [](Kept const& a, Kept const& b) { return a.begin < b.begin; };
    if (!std::is_sorted(_kept.begin(), _kept.end(), precedes)) {
        std::sort(_kept.begin(), _kept.end(), precedes);
    }
    auto const isWithin = [](Kept const& outer, Kept const& next) {
        std::size_t const size = outer.attribute ? 1 : outer.element.source().size();
        return next.begin - outer.begin < size;
    };
    _kept.erase(std::unique(_kept.begin(), _kept.end(), isWithin), _kept.end());
}

std::vector<Extensions::Site> Extensions::findSites(LinkTree& tree)
{
    std::vector<Site> sites;
    sites.reserve(_kept.size());
    XmlNode last;  // what the last one stands in: the next one often does, too
    for (std::size_t i = 0; i < _kept.size(); ++i) {
        XmlNode const around = _kept[i].attribute ? _kept[i].element : _kept[i].element.parent();
        if (!(around == last)) {
            findSite(around, tree, sites.emplace_back());
            sites.back().first = i;
            last = around;
        }
        sites.back().end = i + 1;
    }
    return sites;
}

/// The record of the element, if it is one that extensions may stand in.
std::optional<Bearer> Extensions::findOwner(XmlNode element, LinkTree& tree) const
{
    if (auto const sensor = _sensors.find(element.id()); sensor != _sensors.end()) {
        return Bearer{ExtensionOwner::sensor, sensor->second};
    }
    if (element.isRoot()) {
        return Bearer();
    }
    std::string_view const tag = isTopLevel(element) ? element.name() : std::string_view();
    if (tag == "link") {
        return findLink(element.attribute("name").value(), tree);
    }
    return tag == "joint" ? findJoint(element.attribute("name").value(), tree) : std::nullopt;
}

/// What stands in the element belongs there: the way to it from its owner's element inward.
void Extensions::findSite(XmlNode element, LinkTree& tree, Site& site)
{
    if (std::optional<Bearer> const owner = findOwner(element, tree)) {
        site.bearer = *owner;
    } else if (isTopLevel(element) && element.name() == "gazebo") {
        site.bearer = findBearer(element.attribute("reference").value(), tree).value_or(Bearer());
        site.within = element.name();
    } else {
        findSite(element.parent(), tree, site);
        appendStep(element, site.within);
    }
}

/// The element's name and, unless it is the first of that name in its parent, which of them it is.
void Extensions::appendStep(XmlNode element, std::string& path)
{
    path += path.empty() ? "" : "/";
    path += element.name();
    if (std::size_t const rank = rankOf(element); rank > 1) {
        path += "[" + std::to_string(rank) + "]";
    }
}

/// Which of its like-named siblings it is, from 1. Most elements have few before them, which are soon compared.
std::size_t Extensions::rankOf(XmlNode element)
{
    constexpr std::size_t few = 8;
    std::size_t rank = 1;
    std::size_t compared = 0;
    for (XmlNode const sibling : element.parent().children()) {
        if (sibling == element) {
            return rank;
        }
        if (++compared > few) {
            break;
        }
        rank += sibling.name() == element.name() ? 1 : 0;
    }
    return rankAmongMany(element);
}

std::size_t Extensions::rankAmongMany(XmlNode element)
{
    _ranks.resize(std::max(_ranks.size(), _kept.back().element.id() + 1));
    if (_ranks[element.id()] == 0) {
        rankChildren(element.parent());
    }
    return _ranks[element.id()];
}

void Extensions::rankChildren(XmlNode parent)
{
    for (XmlNode const child : parent.children()) {
        if (child.id() >= _ranks.size()) {
            return;  // nothing is kept from there on
        }
        std::uint32_t const name = _names.add(child.name(), static_cast<std::uint32_t>(_names.size()));
        if (name == _counts.size()) {
            _counts.emplace_back();
        }
        Count& count = _counts[name];
        count = {parent.id(), count.parent == parent.id() ? count.soFar + 1 : 1};
        _ranks[child.id()] = count.soFar;
    }
}

}  // namespace Varo::Model::Urdf
