#include "varo/model/placed_findings.hpp"

#include <cstring>
#include <map>
#include <unordered_set>
#include <utility>

#include <pugixml.hpp>

#include "diagnostics.hpp"

namespace Varo::Model {

namespace {

/// Where URDF writes what the native dialect writes into a joint or the root. Bodies have elements of their own.
struct UrdfPart {
    std::string_view part;
    bool ofLink;
    std::string_view urdfPart;
};

constexpr UrdfPart urdfParts[] = {
    {"mass/@value", true, "inertial/mass/@value"},
    {"mass/@inertia", true, "inertial/inertia"},
    {"@maxSpeed", false, "limit/@velocity"},
};

/// An element and the path to a part of it.
struct Target {
    pugi::xml_node element;
    std::string part;
};

/// The part itself, or the nearest thing around it that the text has.
pugi::xpath_node nearest(Target target)
{
    while (!target.part.empty()) {
        if (pugi::xpath_node const found = target.element.select_node(target.part.c_str())) {
            return found;
        }
        std::size_t const step = target.part.rfind('/');
        target.part.erase(step == std::string::npos ? 0 : step);
    }
    return target.element;
}

}  // namespace

class PlacedFindings::Text {
public:
    explicit Text(std::string const& xml) : _diagnostics(xml)
    {
        _document.load_buffer(xml.data(), xml.size(), pugi::parse_default, pugi::encoding_utf8);
        _root = _document.document_element();
        _isUrdf = std::strcmp(_root.name(), "robot") == 0;
        for (pugi::xml_node const element : _root.children()) {
            remember(element.name(), element, "name");
        }
        for (pugi::xml_node const angle : find("posture", "StandInit").children("angle")) {
            remember("angle", angle, "of");
        }
        if (_isUrdf) {
            rememberRootLink();
        }
    }

    Place placeOf(Subject const& subject) const
    {
        pugi::xpath_node const found = nearest(targetOf(subject));
        return found.attribute() ? Place(found.parent(), found.attribute()) : Place(found.node());
    }

    std::string textOf(Subject const& subject) const
    {
        Target const target = targetOf(subject);
        return target.part.empty() ? "" : target.element.select_node(target.part.c_str()).attribute().value();
    }

    Diagnostics& diagnostics() { return _diagnostics; }

private:
    void remember(std::string_view element, pugi::xml_node node, char const* nameAttribute)
    {
        _elements.try_emplace({element, node.attribute(nameAttribute).value()}, node);
    }

    /// It is the child of no joint.
    void rememberRootLink()
    {
        std::unordered_set<std::string_view> children;
        for (pugi::xml_node const joint : _root.children("joint")) {
            children.insert(joint.child("child").attribute("link").value());
        }
        for (pugi::xml_node const link : _root.children("link")) {
            if (children.count(link.attribute("name").value()) == 0) {
                _rootLink = link;
            }
        }
    }

    pugi::xml_node find(std::string_view element, std::string_view name) const
    {
        auto const found = _elements.find({element, name});
        return found == _elements.end() ? _root : found->second;
    }

    Target targetOf(Subject const& subject) const
    {
        if (!_isUrdf) {
            return {find(subject.element, subject.name), std::string(subject.part)};
        }
        pugi::xml_node const joint = find("joint", subject.name);
        for (UrdfPart const& part : urdfParts) {
            if (part.part == subject.part) {
                return {part.ofLink ? linkOf(subject, joint) : joint, std::string(part.urdfPart)};
            }
        }
        return {joint, {}};
    }

    pugi::xml_node linkOf(Subject const& subject, pugi::xml_node joint) const
    {
        return subject.element == "root" ? _rootLink : find("link", joint.child("child").attribute("link").value());
    }

    pugi::xml_document _document;
    pugi::xml_node _root;
    bool _isUrdf = false;
    std::map<std::pair<std::string_view, std::string_view>, pugi::xml_node> _elements;  // by kind and name
    pugi::xml_node _rootLink;
    Diagnostics _diagnostics;
};

PlacedFindings::PlacedFindings(std::string const& xml) : _text(std::make_unique<Text>(xml)) {}

PlacedFindings::~PlacedFindings() = default;

void PlacedFindings::add(Subject const& subject, Severity severity, std::string_view code, std::string message,
                         std::string hint)
{
    _text->diagnostics().report(_text->placeOf(subject), {code, severity, {}}, std::move(message), std::move(hint));
}

std::string PlacedFindings::textOf(Subject const& subject) const
{
    return _text->textOf(subject);
}

Findings PlacedFindings::take()
{
    return _text->diagnostics().take();
}

std::string PlacedFindings::quoted(std::string_view name)
{
    return Model::quoted(name);
}

}  // namespace Varo::Model
