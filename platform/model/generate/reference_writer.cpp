#include <sstream>
#include <string>

#include "format_writer.hpp"
#include "native/elements.hpp"
#include "native/native_codes.hpp"
#include "urdf/sensor_settings.hpp"
#include "value_types.hpp"

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

void writeCodes(std::ostream& out, Range<FindingCode const*> codes)
{
    constexpr std::string_view severities[] = {"note", "warning", "error"};
    for (FindingCode const* finding : codes) {
        out << "| " << code(finding->name) << " | " << severities[static_cast<int>(finding->severity)] << " | "
            << finding->meaning << " |\n";
    }
}

template <class Record>
void writeSettings(std::ostream& out, std::string const& around, Range<Urdf::Setting<Record>> settings)
{
    for (Urdf::Setting<Record> const& setting : settings) {
        out << "| `" << around << setting.path << "` | " << setting.unit << " | " << setting.type << " | `settings/"
            << setting.place << "` |\n";
    }
}

}  // namespace

std::string writeSensorSettingsReference()
{
    std::ostringstream out;
    out << "| URDF, in the sensor | unit | must be | native dialect |\n| --- | --- | --- | --- |\n";
    writeSettings(out, "", Urdf::sensorSettings);
    writeSettings(out, "noise/", Urdf::noiseSettings);
    return out.str();
}

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

}  // namespace Varo::Model::Native
