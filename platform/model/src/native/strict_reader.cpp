#include "native/strict_reader.hpp"

#include <algorithm>
#include <string>
#include <utility>

#include "native/native_codes.hpp"
#include "varo/model/spelling.hpp"
#include "xml/document.hpp"

namespace Varo::Model::Native {

namespace {

/// What to write instead of an unknown name, and the row that is meant.
template <class Info>
std::pair<std::string, std::size_t> suggest(Infos<Info> const& rows, std::string_view written)
{
    ClosestWord closest(written);
    std::size_t meant = noRow;
    std::string known;
    for (std::size_t i = 0; i < rows.size(); ++i) {
        meant = closest.offer(nameOf(rows[i])) ? i : meant;
        known += (known.empty() ? "" : ", ") + std::string(nameOf(rows[i]));
    }
    if (meant != noRow) {
        return {"Did you mean " + quoted(closest.word()) + "?", meant};
    }
    return {known.empty() ? "" : "Known here: " + known + ".", meant};
}

/// Cuts off and returns the first word of a list; empty behind the last one.
std::string_view takeWord(std::string_view& list)
{
    constexpr std::string_view blanks = " \t\r\n";
    list.remove_prefix(std::min(list.find_first_not_of(blanks), list.size()));
    std::string_view const word = list.substr(0, list.find_first_of(blanks));
    list.remove_prefix(word.size());
    return word;
}

/// Attributes that tell XML editors where the schema is.
bool isForEditors(std::string_view attribute)
{
    return attribute.substr(0, 6) == "xmlns:" || attribute.substr(0, 4) == "xsi:";
}

}  // namespace

std::size_t StrictReader::onUnknownAttribute(ElementInfo const& element, XmlNode node, XmlAttribute attribute)
{
    bool const isOfAmendment = node == _amendment && std::string_view(attribute.name()) == leftOut;
    if (isOfAmendment || isForEditors(attribute.name()) || diagnostics().countIfFull(codes::unknownAttribute)) {
        return noRow;
    }
    std::string message = std::string(element.name) + " has no attribute " + quoted(attribute.name()) + ".";
    auto [hint, meant] = suggest(element.attributes, attribute.name());
    diagnostics().report(at(node, attribute), codes::unknownAttribute, std::move(message), std::move(hint));
    if (meant == noRow || node.attribute(element.attributes[meant].name)) {
        return noRow;
    }
    loseName(element.attributes[meant]);
    return meant;
}

std::size_t StrictReader::onUnknownChild(ElementInfo const& element, XmlNode child)
{
    _names.loseAny();
    if (diagnostics().countIfFull(codes::unknownElement)) {
        return noRow;
    }
    std::string message = std::string(element.name) + " holds no element " + quoted(child.name()) + ".";
    auto [hint, meant] = suggest(element.children, child.name());
    diagnostics().report(at(child), codes::unknownElement, std::move(message), std::move(hint));
    return meant;
}

void StrictReader::onRepeatedChild(ElementInfo const& element, XmlNode child)
{
    diagnostics().report(at(child), codes::repeatedElement,
                         std::string(element.name) + " may hold only one " + std::string(child.name()) + ".",
                         "Leave one of them out; only the first is read.");
}

/// Where it says something: the white space before that is looked at in the source, which has it as it was written.
void StrictReader::onUnexpectedText(ElementInfo const& element, XmlNode text)
{
    std::string const& source = diagnostics().source()->text();
    diagnostics().report(
        TextOffset(source.find_first_not_of(" \t\r\n", at(text).value())), codes::unexpectedText,
        std::string(element.name) + " holds no text, but here stands " + quoted(trimmed(text.text())) + ".");
}

void StrictReader::onMissingAttribute(ElementInfo const& element, AttributeInfo const& attribute, XmlNode node)
{
    if (node == _amendment) {  // its record has a value
        return;
    }
    diagnostics().report(at(node), codes::missingAttribute,
                         std::string(element.name) + " lacks its attribute " + quoted(attribute.name) + ".",
                         "Add it: " + std::string(attribute.meaning) + ".");
    loseName(attribute);
}

void StrictReader::onMissingChild(ElementInfo const& element, ChildInfo const& child, XmlNode node)
{
    diagnostics().report(at(node), codes::missingElement,
                         std::string(element.name) + " lacks its element " + quoted(child.element->name) + ".",
                         "Add it: " + std::string(child.element->meaning));
}

void StrictReader::onWrongValue(AttributeInfo const& row, XmlNode node, XmlAttribute attribute, std::string_view value)
{
    loseName(row);
    if (diagnostics().countIfFull(codes::wrongValue)) {
        return;
    }
    std::string const subject = row.name.empty() ? "The text" : "The value of " + quoted(row.name);
    std::string hint;
    ClosestWord closest(value);
    for (Word const& word : row.type->words) {
        closest.offer(word.word);
        hint += (hint.empty() ? "Possible are: " : ", ") + std::string(word.word);
    }
    hint += hint.empty() ? "" : ".";
    if (!closest.word().empty()) {
        hint = "Did you mean " + quoted(closest.word()) + "?";
    }
    diagnostics().report(at(node, attribute), codes::wrongValue,
                         subject + ", " + quoted(value) + ", is not " + std::string(row.type->meaning) + ".",
                         std::move(hint));
}

void StrictReader::onName(NameRule const& rule, std::string_view name, XmlNode node, XmlAttribute attribute)
{
    _names.use(rule, name, node, attribute);
}

void StrictReader::loseName(AttributeInfo const& attribute)
{
    if (attribute.names != nullptr) {
        _names.lose(*attribute.names);
    }
}

void StrictReader::checkLeftOut(Infos<ChildInfo> const& children, XmlNode node)
{
    std::string_view list = node.attribute(leftOut).value();
    for (std::string_view word = takeWord(list); !word.empty(); word = takeWord(list)) {
        bool isKnown = false;
        for (ChildInfo const& child : children) {
            isKnown = isKnown || child.element->name == word;
        }
        if (!isKnown) {
            diagnostics().report(at(node, leftOut), codes::wrongValue,
                                 std::string(node.name()) + " holds no element " + quoted(word) + " to be left out.",
                                 suggest(children, word).first);
        }
    }
}

bool isAmended(ChildInfo const& child, XmlNode amendment)
{
    std::string_view list = amendment.attribute(leftOut).value();
    for (std::string_view word = takeWord(list); !word.empty(); word = takeWord(list)) {
        if (word == child.element->name) {
            return true;
        }
    }
    return bool(amendment.child(child.element->name));
}

}  // namespace Varo::Model::Native
