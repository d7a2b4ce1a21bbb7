#include "urdf/tolerant_reader.hpp"

#include <algorithm>
#include <iterator>
#include <string>

#include "native/amendment.hpp"
#include "urdf/numbers.hpp"
#include "urdf/own_namespace.hpp"
#include "urdf/schema.hpp"
#include "urdf/surplus.hpp"
#include "urdf/values.hpp"
#include "xml/document.hpp"

namespace Varo::Model::Urdf {

namespace {

void reportMissing(AttributeInfo const& attribute, XmlNode node, Diagnostics& diagnostics)
{
    diagnostics.report(at(node), *attribute.missing.code, std::string(attribute.missing.message),
                       std::string(attribute.missing.hint));
}

void reportUnknownType(TextOffset place, std::string_view value, Diagnostics& diagnostics)
{
    diagnostics.report(place, codes::unknownJointType, "There is no joint type " + quoted(value) + ".",
                       std::string(jointTypeHint));
}

bool isReadElsewhere(std::string_view name)
{
    return std::find(std::begin(readElsewhere), std::end(readElsewhere), name) != std::end(readElsewhere);
}

/// Numbers that are ones, as many as there should be, but not such as there should be.
void reportOddNumbers(ValueType const& type, TextOffset place, std::string_view value, Diagnostics& diagnostics)
{
    if (&type == &Channels::type) {
        diagnostics.report(place, codes::colorRange,
                           "The colour " + quoted(value) + " is not between 0 and 1; what is beyond is cut.",
                           "The numbers of a colour are from 0 to 1, not to 255.");
    } else {
        diagnostics.report(place, codes::negativeLength,
                           quoted(value) + " has a negative length, of which the magnitude is taken.");
    }
}

void reportWrongNumbers(ValueType const& type, TextOffset place, std::string_view value, Diagnostics& diagnostics)
{
    Rgba numbers = {};  // no list is longer
    std::size_t found = 0;
    bool const areNumbers = parseNumbers(value, numbers.data(), type.count, found);
    if (areNumbers && found == type.count) {
        reportOddNumbers(type, place, value, diagnostics);
    } else if (type.count == 1) {
        reportNotANumber(place, value, diagnostics);
    } else {
        std::string_view const missing = &type == &Channels::type ? missingIsOpaque : missingIsZero;
        reportWrongList(place, value, type.count, missing, diagnostics);
    }
}

}  // namespace

std::size_t TolerantReader::onUnknownAttribute(ElementInfo const& element, XmlNode node, XmlAttribute attribute)
{
    if (declaresOwnNamespace(attribute)) {
        return noRow;
    }
    if (isOwn(attribute.name())) {
        diagnostics().report(
            at(node, attribute), codes::unknownAttribute,
            std::string(element.name) + " has no attribute " + quoted(attribute.name()) + ": it is passed over.");
        return noRow;
    }
    _report.passOver(node, attribute);
    return _unknown.noteAttribute(element, node, attribute);
}

std::size_t TolerantReader::onUnknownChild(ElementInfo const& element, XmlNode child)
{
    if (isOwn(child.name())) {
        takeOwn(element, child);
    } else if (&element != &robotElement || !isReadElsewhere(child.name())) {
        _report.passOver(child);
        _unknown.noteChild(element, child);
    }
    return noRow;
}

bool TolerantReader::isOwn(std::string_view name) const
{
    return !_ownPrefix.empty() && name.substr(0, _ownPrefix.size()) == _ownPrefix;
}

/// What is in our own namespace is for nobody else: it is not kept as text.
void TolerantReader::takeOwn(ElementInfo const& element, XmlNode child)
{
    std::string const known = _ownPrefix + std::string(Native::amendmentName());
    if (&element != &robotElement || child.name() != known) {
        bool const isPlace = &element == &robotElement;
        diagnostics().report(
            at(child), codes::unknownElement,
            std::string(element.name) + " holds no element " + quoted(child.name()) + ": it is passed over.",
            isPlace ? "Did you mean " + quoted(known) + "?" : "Only robot holds " + quoted(known) + ".");
    } else if (_amendment) {
        reportSurplus(child, diagnostics());
    } else {
        _amendment = child;
    }
}

void TolerantReader::onRepeatedChild(ElementInfo const& /*element*/, XmlNode child)
{
    reportSurplus(child, diagnostics());
    _report.passOver(child);
}

/// What stands between elements is prose; in one that holds none, it was meant for a value.
void TolerantReader::onUnexpectedText(ElementInfo const& element, XmlNode text)
{
    if (element.children.size() > 0) {
        return;
    }
    std::string const tag(element.name);
    std::string const value = quoted(trimmed(text.text()));
    bool const isMeant = element.attributes.size() == 1 && !text.parent().attribute(element.attributes[0].name);
    std::string const meant =
        isMeant ? "Write <" + tag + " " + std::string(element.attributes[0].name) + "=" + value + "/>." : std::string();
    diagnostics().report(at(text.parent()), codes::unexpectedText,
                         "The text " + value + " in this " + tag + " is left out: URDF has none there.", meant);
}

void TolerantReader::onMissingAttribute(ElementInfo const& element, AttributeInfo const& attribute, XmlNode node)
{
    bool const isError = attribute.missing.code != nullptr && attribute.missing.code->severity == Severity::error;
    std::string joined;
    if (!isError && !trimmed(textOf(node, joined)).empty()) {
        return;  // which is told, and is probably meant for the attribute
    }
    if (attribute.missing.code != nullptr) {
        reportMissing(attribute, node, diagnostics());
    } else if (attribute.type->count > 0) {
        diagnostics().report(at(node), codes::missingAttribute,
                             "This " + std::string(element.name) + " lacks its attribute " + quoted(attribute.name) +
                                 ", which counts as 0.",
                             "Add it: " + std::string(attribute.meaning) + ".");
    }
}

void TolerantReader::onWrongValue(AttributeInfo const& row, XmlNode node, XmlAttribute attribute,
                                  std::string_view value)
{
    TextOffset const place = at(node, attribute);
    if (row.type->words.size() > 0) {
        reportUnknownType(place, value, diagnostics());
    } else if (row.type->count > 0) {
        reportWrongNumbers(*row.type, place, value, diagnostics());
    } else if (row.type == &Name::type && !value.empty()) {
        reportLongName(place, diagnostics());
    } else if (row.missing.code != nullptr) {
        reportMissing(row, node, diagnostics());
    }
}

}  // namespace Varo::Model::Urdf
