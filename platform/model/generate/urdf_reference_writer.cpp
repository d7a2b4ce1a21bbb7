#include <algorithm>
#include <iterator>
#include <map>
#include <sstream>
#include <string>
#include <vector>

#include "finding_codes.hpp"
#include "format_writer.hpp"
#include "table_cells.hpp"
#include "urdf/schema.hpp"
#include "urdf/urdf_codes.hpp"
#include "value_types.hpp"

namespace Varo::Model::Urdf {

namespace {

/// One row of the table: what an element or, where `name` is not empty, its attribute is.
void writeRow(std::ostream& out, std::string const& path, std::string_view name, std::string const& typeToDefault,
              std::string_view meaning)
{
    out << "| " << code(path) << " | " << code(name) << " | " << typeToDefault << " | " << meaning << " |\n";
}

void writeValue(std::ostream& out, std::string const& path, AttributeInfo const& value)
{
    std::string const defaultText = value.required ? "required" : code(value.defaultText);
    writeRow(out, path, value.name.empty() ? "(text)" : value.name,
             std::string(value.type->name) + " | " + std::string(value.unit) + " | " + defaultText, value.meaning);
}

/// Elements by their paths, each written once.
class TableWriter {
public:
    explicit TableWriter(std::ostream& out) : _out(out) {}

    void write(ElementInfo const& element, std::string const& path)
    {
        auto const [known, isNew] = _paths.try_emplace(&element, path);
        if (!isNew) {
            writeRow(_out, path, {}, " | | ", "as " + code(known->second));
            return;
        }
        writeRow(_out, path, {}, " | | ", element.meaning);
        for (AttributeInfo const& attribute : element.attributes) {
            writeValue(_out, path, attribute);
        }
        if (element.text != nullptr) {
            writeValue(_out, path, *element.text);
        }
        for (ChildInfo const& child : element.children) {
            write(*child.element, path + "/" + std::string(child.element->name));
        }
    }

private:
    std::ostream& _out;
    std::map<ElementInfo const*, std::string> _paths;
};

}  // namespace

std::string writeElementReference()
{
    std::ostringstream out;
    out << "| element | attribute | type | unit | default | meaning, and what becomes of it |\n"
           "| --- | --- | --- | --- | --- | --- |\n";
    TableWriter(out).write(robotElement, std::string(robotElement.name));
    out << '\n';
    Native::writeUsedTypes(out, robotElement);
    return out.str();
}

std::string writeFindingReference()
{
    std::vector<FindingCode const*> listed(std::begin(Model::codes::ofLinkTrees), std::end(Model::codes::ofLinkTrees));
    listed.insert(listed.end(), {&Model::codes::ambiguousName, &Model::codes::ambiguousLinkName});
    listed.insert(listed.end(), std::begin(codes::ofDialect), std::end(codes::ofDialect));
    std::stable_sort(listed.begin(), listed.end(),
                     [](auto const* a, auto const* b) { return a->severity > b->severity; });
    std::ostringstream out;
    out << "| code | severity | meaning |\n| --- | --- | --- |\n";
    for (FindingCode const* finding : listed) {
        out << cellsOf(*finding) << '\n';
    }
    return out.str();
}

}  // namespace Varo::Model::Urdf
