#include <map>
#include <sstream>
#include <string>

#include "format_writer.hpp"
#include "native/elements.hpp"
#include "native/native_codes.hpp"
#include "table_cells.hpp"
#include "urdf/sensor_settings.hpp"
#include "value_types.hpp"
#include "varo/model/lint.hpp"

namespace Varo::Model::Native {

namespace {

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

std::string defaultOf(AttributeInfo const& attribute)
{
    if (attribute.required) {
        return "required";
    }
    if (attribute.isDefault == nullptr) {
        return "not stated";
    }
    return attribute.defaultText.empty() ? "empty" : code(attribute.defaultText);
}

void writeAttributes(std::ostream& out, ElementInfo const& element)
{
    if (element.attributes.size() == 0) {
        return;
    }
    out << "| attribute | type | unit | default | meaning |\n| --- | --- | --- | --- | --- |\n";
    for (AttributeInfo const& attribute : element.attributes) {
        out << "| " << code(attribute.name) << " | " << attribute.type->name << " | " << attribute.unit << " | "
            << defaultOf(attribute) << " | " << attribute.meaning << " |\n";
    }
    out << '\n';
}

std::string contentOf(ElementInfo const& element)
{
    std::ostringstream out;
    out << sentence(element.meaning) << "\n\n";
    writeChildren(out, element);
    writeAttributes(out, element);
    return out.str();
}

/// All that is to be said of an element and those inside, but for where it stands.
std::string wholeContentOf(ElementInfo const& element)
{
    std::string content = contentOf(element);
    for (ChildInfo const& child : element.children) {
        content += wholeContentOf(*child.element);
    }
    return content;
}

/// One element, and below it those that stand in it; what stands in several places is written at the first of them.
class ElementSections {
public:
    explicit ElementSections(std::ostream& out) : _out(out) {}

    void write(ElementInfo const& element, std::string const& path)
    {
        _out << "#### `" << path << "`\n\n";
        auto const [first, isNew] = _pathOf.try_emplace(wholeContentOf(element), path);
        if (!isNew) {
            _out << "As " << code(first->second) << ".\n\n";
            return;
        }
        _out << contentOf(element);
        for (ChildInfo const& child : element.children) {
            write(*child.element, path + "/" + std::string(child.element->name));
        }
    }

private:
    std::ostream& _out;
    std::map<std::string, std::string> _pathOf;  ///< by the content
};

void writeCodes(std::ostream& out, Range<FindingCode const*> codes)
{
    for (FindingCode const* finding : codes) {
        out << cellsOf(*finding) << '\n';
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

std::string writeRuleReference()
{
    std::ostringstream out;
    out << "| code | severity | meaning | looks at | tolerance |\n| --- | --- | --- | --- | --- |\n";
    for (LintRule const& rule : lintRules()) {
        out << cellsOf(rule.code) << ' ' << rule.subject << " | " << rule.tolerance << " |\n";
    }
    return out.str();
}

std::string writeElementReference()
{
    std::ostringstream out;
    ElementSections(out).write(robotDescriptionElement, std::string(robotDescriptionElement.name));
    writeUsedTypes(out, robotDescriptionElement);
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
