#include <sstream>
#include <string>

#include "format_writer.hpp"
#include "native/elements.hpp"
#include "native/native_codes.hpp"
#include "value_types.hpp"
#include "varo/model/lint.hpp"

namespace Varo::Model::Native {

namespace {

std::string code(std::string_view text)
{
    return text.empty() ? "" : "`" + std::string(text) + "`";
}

std::string sentence(std::string_view meaning)
{
    std::string text(meaning);
    text.front() = static_cast<char>(text.front() - 'a' + 'A');
    return text + ".";
}

std::string_view occurrenceText(Occurrence occurrence)
{
    switch (occurrence) {
    case Occurrence::optional: return "at most one";
    case Occurrence::once: return "exactly one";
    case Occurrence::any: break;
    }
    return "any number of";
}

void writeChildren(std::ostream& out, ElementInfo const& element)
{
    std::string list;
    for (ChildInfo const& child : element.children) {
        list += (list.empty() ? "" : ", ") + std::string(occurrenceText(child.occurrence)) + " " +
                code(child.element->name);
    }
    if (!list.empty()) {
        out << "Holds, in any order: " << list << ".\n\n";
    }
    if (element.text != nullptr) {
        out << "Holds a text: " << element.text->meaning << " (" << code(element.text->type->name) << ").\n\n";
    }
}

void writeAttributes(std::ostream& out, ElementInfo const& element)
{
    if (element.attributes.size() == 0) {
        return;
    }
    out << "| attribute | type | unit | default | meaning |\n| --- | --- | --- | --- | --- |\n";
    for (AttributeInfo const& attribute : element.attributes) {
        std::string const defaultText = attribute.defaultText.empty() ? "empty" : code(attribute.defaultText);
        out << "| " << code(attribute.name) << " | " << attribute.type->name << " | " << attribute.unit << " | "
            << (attribute.required ? "required" : defaultText) << " | " << attribute.meaning << " |\n";
    }
    out << '\n';
}

/// One element, and below it those that stand in it.
void writeElement(std::ostream& out, ElementInfo const& element, std::string const& path)
{
    out << "#### `" << path << "`\n\n" << sentence(element.meaning) << "\n\n";
    writeChildren(out, element);
    writeAttributes(out, element);
    for (ChildInfo const& child : element.children) {
        writeElement(out, *child.element, path + "/" + std::string(child.element->name));
    }
}

/// The first cells of a row.
std::string cellsOf(FindingCode const& finding)
{
    constexpr std::string_view severities[] = {"note", "warning", "error"};
    return "| " + code(finding.name) + " | " + std::string(severities[static_cast<int>(finding.severity)]) + " | " +
           std::string(finding.meaning) + " |";
}

void writeCodes(std::ostream& out, Range<FindingCode const*> codes)
{
    for (FindingCode const* finding : codes) {
        out << cellsOf(*finding) << '\n';
    }
}

}  // namespace

std::string writeElementReference()
{
    std::ostringstream out;
    writeElement(out, robotDescriptionElement, std::string(robotDescriptionElement.name));
    out << "| type | a value is |\n| --- | --- |\n";
    for (ValueType const* type : usedTypes()) {
        out << "| " << type->name << " | " << type->meaning;
        for (Word const& word : type->words) {
            out << (&word == type->words.begin() ? ": " : ", ") << code(word.word);
        }
        out << " |\n";
    }
    return out.str();
}

std::string writeFindingReference()
{
    std::ostringstream out;
    out << "| code | severity | meaning |\n| --- | --- | --- |\n";
    writeCodes(out, Model::codes::ofTexts);
    writeCodes(out, codes::ofDialect);
    return out.str();
}

std::string writeRuleReference()
{
    std::ostringstream out;
    out << "| code | severity | meaning | looks at | tolerance |\n| --- | --- | --- | --- | --- |\n";
    for (LintRule const& rule : lintRules()) {
        out << cellsOf(rule.code) << ' ' << rule.subject << " | " << rule.tolerance << " |\n";
    }
    return out.str();
}

}  // namespace Varo::Model::Native
