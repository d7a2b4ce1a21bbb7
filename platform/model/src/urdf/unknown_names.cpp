#include "urdf/unknown_names.hpp"

#include <string>
#include <unordered_set>

#include "robot/link_tree.hpp"
#include "schema/element_reader.hpp"
#include "urdf/urdf_codes.hpp"
#include "varo/model/name_hash.hpp"
#include "varo/model/spelling.hpp"
#include "xml/document.hpp"

namespace Varo::Model::Urdf {

namespace {

/// What other formats call the same.
struct Confusion {
    std::string_view element;
    std::string_view written;
    std::string_view meant;
};
constexpr Confusion confusions[] = {
    {"origin", "quat", "rpy"},     {"origin", "quat_xyzw", "rpy"},  {"origin", "pos", "xyz"},
    {"sphere", "size", "radius"},  {"cylinder", "size", "radius"},  {"cylinder", "height", "length"},
    {"capsule", "size", "radius"}, {"capsule", "height", "length"}, {"mesh", "file", "filename"},
    {"mesh", "uri", "filename"},   {"mesh", "url", "filename"},     {"texture", "file", "filename"},
    {"limit", "min", "lower"},     {"limit", "max", "upper"},       {"mimic", "ratio", "multiplier"},
    {"mass", "mass", "value"},
};

/// The row that was meant by a name that none has.
template <class Info>
std::size_t findMeant(Infos<Info> const& rows, std::string_view element, std::string_view written)
{
    std::size_t meant = noRow;
    ClosestWord closest(written, farthestNear);
    for (std::size_t i = 0; i < rows.size(); ++i) {
        std::string_view const known = nameOf(rows[i]);
        meant = isNear(written, known) && closest.offer(known) ? i : meant;
    }
    for (Confusion const& confusion : confusions) {
        bool const isIt = meant == noRow && confusion.element == element && confusion.written == written;
        for (std::size_t i = 0; isIt && i < rows.size(); ++i) {
            meant = nameOf(rows[i]) == confusion.meant ? i : meant;
        }
    }
    return meant;
}

/// The child that was meant by a name that none has; empty for none.
std::string_view findMeantChild(ElementInfo const& element, std::string_view written)
{
    std::size_t const row = findMeant(element.children, element.name, written);
    if (row != noRow) {
        return nameOf(element.children[row]);
    }
    if (&element == &robotElement) {
        for (std::string_view const name : readElsewhere) {
            if (isNear(written, name)) {
                return name;
            }
        }
    }
    return {};
}

bool isPrefixed(std::string_view name)
{
    return name.find(':') != name.npos || name == "xmlns";
}

void addNames(ElementInfo const& element, std::unordered_set<std::string_view, NameHash>& names)
{
    names.insert(element.name);
    for (ChildInfo const& child : element.children) {
        addNames(*child.element, names);
    }
}

/// Whether URDF has elements of that name, wherever they may stand.
bool isDefined(std::string_view element)
{
    static auto const names = [] {
        std::unordered_set<std::string_view, NameHash> all;
        addNames(robotElement, all);
        return all;
    }();
    return names.count(element) > 0;
}

}  // namespace

bool isNear(std::string_view written, std::string_view known)
{
    return ClosestWord(written, known.size() >= 6 ? farthestNear : 1).offer(known);
}

std::size_t UnknownNames::noteAttribute(ElementInfo const& element, XmlNode node, XmlAttribute attribute)
{
    std::string_view const name = attribute.name();
    if (isPrefixed(name)) {
        return noRow;
    }
    auto const [entry, isNew] = _attributes.try_emplace({&element, name});
    UnknownAttribute& unknown = entry->second;
    if (isNew) {
        unknown.meant = findMeant(element.attributes, element.name, name);
    }
    if (unknown.meant == noRow) {
        if (isNew) {
            unknown.foreign = &_foreign.try_emplace({element.name, name}, Kind{at(node, attribute)}).first->second;
        }
        ++unknown.foreign->count;
        return noRow;
    }
    AttributeInfo const& row = element.attributes[unknown.meant];
    _diagnostics.report(at(node, attribute), codes::unknownAttribute,
                        std::string(element.name) + " has no attribute " + quoted(name) +
                            ": it is kept as text, and counts for nothing.",
                        didYouMean(row.name));
    bool const isRefused = row.missing.code != nullptr && row.missing.code->severity == Severity::error;
    return isRefused || node.attribute(row.name) ? noRow : unknown.meant;
}

void UnknownNames::noteChild(ElementInfo const& element, XmlNode child)
{
    std::string_view const name = child.name();
    if (isPrefixed(name)) {
        return;
    }
    auto const [entry, isNew] = _children.try_emplace({&element, name});
    UnknownChild& unknown = entry->second;
    if (isNew) {
        unknown.meant = findMeantChild(element, name);
        unknown.isDefined = isDefined(name);
    }
    if (!unknown.meant.empty()) {
        _diagnostics.report(at(child), codes::unknownElement,
                            std::string(element.name) + " holds no element " + quoted(name) +
                                ": it is kept as text, and counts for nothing.",
                            didYouMean(unknown.meant));
    } else if (unknown.isDefined) {
        _diagnostics.report(at(child), codes::misplacedElement,
                            "URDF has no " + quoted(name) + " in " + std::string(element.name) +
                                ": it is kept as text, and counts for nothing.",
                            "Put it where it belongs, or leave it out.");
    }
}

void UnknownNames::report()
{
    for (auto const& [names, kind] : _foreign) {
        auto const& [element, attribute] = names;
        std::string message =
            "The attribute " + quoted(attribute) + " of " + quoted(element) + " means nothing in URDF";
        message += kind.count > 1 ? ", here and in " + std::to_string(kind.count - 1) + " more places." : ".";
        _diagnostics.report(kind.first, codes::foreignAttribute, std::move(message));
    }
}

}  // namespace Varo::Model::Urdf
