#include "diagnostics.hpp"

#include <algorithm>
#include <cstring>
#include <utility>

#include "utf8.hpp"

namespace Varo::Model {

namespace {

constexpr std::size_t longestQuote = 64;  // bytes
constexpr int deepestPath = 16;  // steps; beyond it the innermost are shown

/// Where the tag of an element begins; nodes know where their name is, one character further. Texts begin
/// behind their white space.
std::size_t startOf(pugi::xml_node node)
{
    auto const offset = static_cast<std::size_t>(std::max<std::ptrdiff_t>(node.offset_debug(), 0));
    if (node.type() == pugi::node_element) {
        return offset > 0 ? offset - 1 : 0;
    }
    return offset + std::strspn(node.value(), " \t\r\n");
}

/// Names stay where they were when the text is parsed, so their distance in memory is that in the text.
std::size_t startOf(pugi::xml_node node, pugi::xml_attribute attribute)
{
    if (!attribute) {
        return startOf(node);
    }
    return static_cast<std::size_t>(node.offset_debug() + (attribute.name() - node.name()));
}

/// The element's name as far as paths show it, at a cost that no element can drive up.
std::string_view nameOf(pugi::xml_node element)
{
    int looked = 0;
    for (pugi::xml_attribute const attribute : element.attributes()) {
        if (std::strcmp(attribute.name(), "name") == 0) {
            return {attribute.value(), strnlen(attribute.value(), 2 * longestQuote)};
        }
        if (++looked == 16) {
            break;
        }
    }
    return {};
}

std::string pathOf(pugi::xml_node node)
{
    std::vector<pugi::xml_node> elements;
    for (; node && node.type() != pugi::node_document; node = node.parent()) {
        if (node.type() != pugi::node_element) {
            continue;
        }
        if (elements.size() == deepestPath) {
            elements.emplace_back();
            break;
        }
        elements.push_back(node);
    }
    std::string path;
    for (auto element = elements.rbegin(); element != elements.rend(); ++element) {
        // There is but one root element, and its name is the robot's.
        bool const isRoot = element->parent().type() == pugi::node_document;
        path += '/';
        std::string_view const name(element->name(), strnlen(element->name(), 2 * longestQuote));
        path += *element ? pathStep(name, isRoot ? "" : nameOf(*element)) : "...";
    }
    return path;
}

}  // namespace

Place::Place(pugi::xml_node node) : _offset(startOf(node)), _path(pathOf(node)) {}

Place::Place(pugi::xml_node node, pugi::xml_attribute attribute)
    : _offset(startOf(node, attribute)), _path(pathOf(node))
{}

Place::Place(pugi::xml_node node, char const* attribute) : Place(node, node.attribute(attribute)) {}

Place::Place(std::size_t offset, std::string path) : _offset(offset), _path(std::move(path)) {}

void Diagnostics::report(Place const& place, FindingCode const& code, std::string message, std::string hint)
{
    if (countIfFull(code)) {
        return;
    }
    _hasErrors = _hasErrors || code.severity == Severity::error;
    Finding finding;
    finding.severity = code.severity;
    finding.code = code.name;
    finding.path = place.path();
    finding.message = std::move(message);
    finding.hint = std::move(hint);
    _records.push_back({std::min(place.offset(), _text.size()), std::move(finding)});
}

bool Diagnostics::countIfFull(FindingCode const& code)
{
    if (_records.size() < maximumFindings) {
        return false;
    }
    ++_dropped;
    _gravestDropped = std::max(_gravestDropped, code.severity);
    _hasErrors = _hasErrors || code.severity == Severity::error;
    return true;
}

Findings Diagnostics::take()
{
    std::stable_sort(_records.begin(), _records.end(),
                     [](Record const& a, Record const& b) { return a.offset < b.offset; });
    fillLinesAndColumns();
    Findings findings;
    findings.reserve(_records.size() + 1);
    for (Record& record : _records) {
        findings.push_back(std::move(record.finding));
    }
    if (_dropped > 0) {
        Finding last = overflowFinding();
        last.line = findings.back().line;
        last.column = findings.back().column;
        findings.push_back(std::move(last));
    }
    *this = Diagnostics(_text);
    return findings;
}

/// One walk through the text, from each place to the next.
void Diagnostics::fillLinesAndColumns()
{
    std::string_view const byteOrderMark = "\xEF\xBB\xBF";
    std::size_t position = _text.substr(0, byteOrderMark.size()) == byteOrderMark ? byteOrderMark.size() : 0;
    int line = 1;
    std::size_t column = 1;
    for (Record& record : _records) {
        std::size_t const offset = std::max(record.offset, position);
        std::string_view const before = _text.substr(0, offset);
        for (auto newline = before.find('\n', position); newline != before.npos;
             newline = before.find('\n', position)) {
            ++line;
            column = 1;
            position = newline + 1;
        }
        column += countCharacters(_text.substr(position, offset - position));
        position = offset;
        record.finding.line = line;
        record.finding.column = static_cast<int>(column);
    }
}

Finding Diagnostics::overflowFinding() const
{
    Finding finding;
    finding.severity = _gravestDropped;
    finding.code = codes::tooManyFindings.name;
    finding.message = "There are " + std::to_string(_dropped) + " more findings, which are not listed.";
    finding.hint = "Mend the listed ones first.";
    return finding;
}

std::string quoted(std::string_view text)
{
    std::string result = "\"";
    while (!text.empty() && result.size() < longestQuote) {
        Utf8Character const character = decodeUtf8(text);
        bool const printable = character.length > 0 && character.codePoint >= 0x20 && character.codePoint != 0x7F &&
                               isXmlCharacter(character.codePoint);
        std::size_t const length = std::max<std::size_t>(character.length, 1);
        result += printable ? text.substr(0, length) : "?";
        text.remove_prefix(length);
    }
    result += text.empty() ? "\"" : "...\"";
    return result;
}

std::string pathStep(std::string_view element, std::string_view name)
{
    std::string const quotedElement = quoted(element);
    std::string step = quotedElement.substr(1, quotedElement.size() - 2);
    if (!name.empty()) {
        step += "[@name=" + quoted(name) + "]";
    }
    return step;
}

}  // namespace Varo::Model
