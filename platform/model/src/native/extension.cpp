#include <cstddef>
#include <iterator>
#include <optional>
#include <string>

#include "native/elements.hpp"
#include "schema/children.hpp"
#include "varo/model/source_text.hpp"
#include "xml/document.hpp"
#include "xml/markup.hpp"
#include "xml/parse.hpp"

namespace Varo::Model::Native {

namespace {

/// How many attributes the root element of the text has; none for a text that XML forbids.
std::optional<std::ptrdiff_t> countAttributes(std::string text)
{
    SourceText const source(std::move(text));
    Diagnostics diagnostics(&source);
    XmlDocument document;
    if (!parseXml(source, document, diagnostics) || diagnostics.hasErrors()) {
        return {};
    }
    auto const attributes = document.root().attributes();
    return std::distance(attributes.begin(), attributes.end());
}

bool isElement(std::string_view text)
{
    return markupAt(text, 0) == Markup::startTag && elementAt(text, 0).size() == text.size() && text.back() == '>' &&
           countAttributes(std::string(text));
}

bool isAttribute(std::string_view text)
{
    return attributeAt(text, 0).size() == text.size() && countAttributes("<a " + std::string(text) + "/>") == 1;
}

/// What can be written back into another text without breaking that.
struct MarkupText : Text {
    static constexpr ValueType type{"markup", "one whole XML element, or one attribute with its value"};
    static bool parse(std::string_view text, std::string& value)
    {
        std::string_view const markup = trimmed(text);
        bool const isRight = !markup.empty() && (markup[0] == '<' ? isElement(markup) : isAttribute(markup));
        value = isRight ? std::string(markup) : value;
        return isRight;
    }
};

template <auto member>
constexpr Attribute<ExtensionReading> ownerRow(std::string_view name, NameRule const& rule, std::string_view meaning)
{
    return optional<member>(name, "", "", meaning).with(rule);
}
constexpr Attribute<ExtensionReading> attributes[] = {
    ownerRow<&ExtensionReading::link>("link", names::extensionLink,
                                      "the joint that moves the link, or the root, in which it stands"),
    ownerRow<&ExtensionReading::joint>("joint", names::extensionJoint, "the joint in which it stands"),
    ownerRow<&ExtensionReading::sensor>("sensor", names::extensionSensor, "the sensor in which it stands"),
    optional<&ExtensionReading::within, Text, ExtensionReading>(
        "within", "", "", "the elements between the owner's and it, from the outermost, as visual[2]/geometry"),
};
constexpr Attribute<ExtensionReading> text =
    required<&ExtensionReading::text, MarkupText, ExtensionReading>("", "", "the element or attribute itself");

bool hasManyOwners(ExtensionReading const& extension, XmlNode /*node*/)
{
    return !extension.link.empty() + !extension.joint.empty() + !extension.sensor.empty() > 1;
}
constexpr Rule<ExtensionReading> rules[] = {
    {"",
     hasManyOwners,
     {&codes::conflictingAttributes, "An extension stands in one element, so that it names only one.",
      "Write link, joint, sensor or, for one that stands in the robot, none of them."}},
};

}  // namespace

constexpr Element<ExtensionReading> extensionElement{
    "extension",
    "what a description has for other programs, as it stood in it: its markup as text, with `&lt;` for `<`; without "
    "link, joint and sensor it stands in the robot; carried",
    attributes,
    {},
    rules,
    &text};

}  // namespace Varo::Model::Native
