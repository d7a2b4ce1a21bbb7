#include "other_formats.hpp"

#include <algorithm>
#include <iterator>
#include <string>
#include <string_view>

#include "finding_codes.hpp"
#include "xml/document.hpp"

namespace Varo::Model {

namespace {

constexpr char whatIsRead[] = "What is read is URDF, and texts whose root element is robotDescription.";

/// A format that its root element says.
struct Format {
    std::string_view root;
    char const* message;
};
constexpr Format formats[] = {
    {"sdf", "This is an SDF file, which describes a world or a robot for simulators."},
    {"mujoco", "This is a MuJoCo file (MJCF), which describes a robot for that simulator."},
};

bool isOneOf(std::string_view name, std::initializer_list<std::string_view> names)
{
    return std::find(names.begin(), names.end(), name) != names.end();
}

/// SRDF says of a robot that URDF describes which of its joints belong together.
bool isSemantic(XmlNode root)
{
    auto const children = root.children();
    return !root.child("link") && std::any_of(children.begin(), children.end(), [](XmlNode child) {
        return isOneOf(child.name(), {"group", "group_state", "end_effector", "virtual_joint", "passive_joint",
                                      "disable_collisions", "enable_collisions", "disable_default_collisions"});
    });
}

bool hasExpression(std::string_view text)
{
    for (std::size_t dollar = text.find('$'); dollar != text.npos; dollar = text.find('$', dollar + 1)) {
        std::string_view const next = text.substr(dollar + 1, 1);
        if (next == "{" || next == "(") {
            return true;
        }
    }
    return false;
}

/// Where the node is for xacro, which alone has a use for such names and expressions; nowhere when it is not.
TextOffset placeForXacro(XmlNode node)
{
    if (node.isText()) {
        return !node.isCharacterData() && hasExpression(node.text()) ? at(node.parent()) : TextOffset();
    }
    if (node.name().substr(0, 6) == "xacro:") {
        return at(node);
    }
    for (XmlAttribute const attribute : node.attributes()) {
        if (hasExpression(attribute.value())) {
            return at(node, attribute);
        }
    }
    return {};
}

/// Colons are rarer than tags, and so are searched for.
bool hasXacroElement(std::string_view text)
{
    constexpr std::string_view start = "<xacro";
    for (std::size_t colon = text.find(':'); colon != text.npos; colon = text.find(':', colon + 1)) {
        if (colon >= start.size() && text.substr(colon - start.size(), start.size()) == start) {
            return true;
        }
    }
    return false;
}

/// Few texts have any of what xacro goes by, comments included, and the others need not be walked through.
bool mayBeXacro(std::string_view text)
{
    return hasExpression(text) || hasXacroElement(text);
}

/// The first place in the element or text that is for xacro; nowhere when there is none.
TextOffset findXacroWithin(XmlNode part)
{
    TextOffset found;
    for (XmlNode const node : part.subtree()) {
        found = found.isKnown() ? found : placeForXacro(node);
    }
    return found;
}

/// The same for the whole text. What xacro goes by often stands only in a comment; therefore only those parts of the
/// robot are searched that may hold some of it, also where it is written with character references.
TextOffset findXacro(XmlNode root)
{
    TextOffset found = placeForXacro(root);
    for (XmlNode const part : root.children()) {
        std::string_view const source = part.source();
        bool const mayHold = part.isText() || mayBeXacro(source) || source.find('&') != source.npos;
        found = !found.isKnown() && mayHold ? findXacroWithin(part) : found;
    }
    return found;
}

}  // namespace

bool reportOtherFormat(XmlNode root, Diagnostics& diagnostics)
{
    std::string_view const name = root.name();
    auto const* const format =
        std::find_if(std::begin(formats), std::end(formats), [name](Format const& each) { return each.root == name; });
    if (format != std::end(formats)) {
        diagnostics.report(at(root), codes::otherFormat, format->message, whatIsRead);
        return true;
    }
    TextOffset const xacro =
        name != "robotDescription" && mayBeXacro(diagnostics.source()->text()) ? findXacro(root) : TextOffset();
    if (xacro.isKnown()) {
        diagnostics.report(xacro, codes::xacroFile, "This is a xacro file, not yet expanded to URDF.",
                           "Expand it first: xacro robot.urdf.xacro > robot.urdf");
    } else if (name == "robot" && isSemantic(root)) {
        diagnostics.report(
            at(root), codes::otherFormat,
            "This is an SRDF file, which adds groups and collision pairs to a robot described elsewhere.",
            "Read the URDF file of the robot; an SRDF file has no links.");
    } else {
        return false;
    }
    return true;
}

}  // namespace Varo::Model
