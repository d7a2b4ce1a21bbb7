#include "native/amendment.hpp"

#include <algorithm>
#include <set>
#include <utility>

#include "native/elements.hpp"
#include "native/strict_reader.hpp"
#include "robot/mimics.hpp"
#include "schema/element_writer.hpp"
#include "xml/document.hpp"

namespace Varo::Model::Native {

namespace {

constexpr std::size_t depth = 1;

/// What is to be written of one element.
struct Difference {
    std::vector<std::pair<std::string_view, std::string>> attributes;
    std::string without;  ///< names of children
    std::string children;  ///< lines
    std::vector<std::string_view> names;  ///< of all that differs

    std::string said() const
    {
        std::string list;
        for (std::string_view const name : names) {
            list += (list.empty() ? "" : ", ") + std::string(name);
        }
        return list;
    }
};

template <class Record>
std::string textOf(Child<Record> const& row, Record const& record, Records const& robot, std::size_t atDepth)
{
    ElementWriter writer(robot, {}, atDepth);
    row.write(writer, record);
    return writer.takeText();
}

class AmendmentWriter final : public ElementWriter {
public:
    AmendmentWriter(Records const& wanted, Records given, std::string_view prefix)
        : ElementWriter(wanted, prefix, depth), _given(std::move(given))
    {}

    Amendment run();

private:
    template <class Record>
    Difference compare(Element<Record> const& element, Record const& wanted, Record const& given,
                       std::size_t atDepth) const;
    template <class Record>
    void amend(Element<Record> const& element, Record const& wanted, Record const& given);
    void writeDifference(std::string_view element, Difference const& difference);
    void amendJoints();
    void amendSensors();

    Records _given;
    Amendment _amendment;
};

template <class Record>
Difference AmendmentWriter::compare(Element<Record> const& element, Record const& wanted, Record const& given,
                                    std::size_t atDepth) const
{
    Difference difference;
    for (Attribute<Record> const& row : element.attributeRows) {
        std::string value = row.print(wanted);
        if (value != row.print(given)) {
            difference.attributes.emplace_back(row.name, std::move(value));
            difference.names.push_back(row.name);
        }
    }
    for (Child<Record> const& row : element.childRows) {
        if (row.clear == nullptr || (row.areSame != nullptr && row.areSame(wanted, given))) {
            continue;
        }
        std::string const lines = textOf(row, wanted, robot(), atDepth);
        if (lines != textOf(row, given, _given, atDepth)) {
            difference.names.push_back(row.element->name);
            difference.children += lines;
            difference.without += lines.empty() ? " " + std::string(row.element->name) : "";
        }
    }
    return difference;
}

void AmendmentWriter::writeDifference(std::string_view element, Difference const& difference)
{
    openTag(element);
    for (auto const& [name, value] : difference.attributes) {
        writeAttribute(name, value);
    }
    if (!difference.without.empty()) {
        writeAttribute(leftOut, std::string_view(difference.without).substr(1));
    }
    appendLines(difference.children);
}

/// The first attribute of these elements is the name that says which one is meant.
template <class Record>
void AmendmentWriter::amend(Element<Record> const& element, Record const& wanted, Record const& given)
{
    Difference difference = compare(element, wanted, given, depth + 2);
    if (difference.names.empty()) {
        return;
    }
    _amendment.parts.push_back({element.name, wanted.textOffset, difference.said()});
    if (wanted.name == given.name) {
        difference.attributes.emplace(difference.attributes.begin(), element.attributeRows[0].name, wanted.name);
    }
    writeDifference(element.name, difference);
    closeTag(element.name);
}

void AmendmentWriter::amendJoints()
{
    std::set<std::string_view> const forced(robot().reflectionForced.begin(), robot().reflectionForced.end());
    for (JointConfig const& wanted : robot().joints) {
        JointReading const joint{wanted, forced.count(wanted.name) > 0};
        if (JointConfig const* const given = _given.joints.find(wanted.name)) {
            amend(jointElement, joint, {*given, false});
        }
    }
}

void AmendmentWriter::amendSensors()
{
    for (SensorConfig const& wanted : robot().sensors) {
        if (SensorConfig const* const given = _given.sensors.find(wanted.name)) {
            amend(sensorElement, wanted, *given);
        }
    }
}

Amendment AmendmentWriter::run()
{
    Difference const whole = compare(amendmentElement, robot(), _given, depth + 1);
    for (std::string_view const name : whole.names) {
        auto const& rows = amendmentElement.childRows;
        if (std::any_of(rows.begin(), rows.end(), [name](auto const& row) { return row.element->name == name; })) {
            _amendment.lists.push_back(name);
        }
    }
    if (robot().statesMirrors) {
        declareComplete(_given);
    }
    writeDifference(amendmentElement.name, whole);
    amend(rootElement, robot().root, _given.root);
    amendJoints();
    amendSensors();
    closeTag(amendmentElement.name);
    if (!whole.names.empty() || !_amendment.parts.empty()) {
        _amendment.text = takeText();
    }
    return std::move(_amendment);
}

}  // namespace

Amendment amendmentOf(Records const& wanted, Records given, std::string_view prefix)
{
    return AmendmentWriter(wanted, std::move(given), prefix).run();
}

std::string_view amendmentName()
{
    return amendmentElement.name;
}

void readAmendment(XmlNode node, Diagnostics& diagnostics, Records& robot)
{
    robot.joints.sortNames();
    robot.sensors.sortNames();
    StrictReader reader(diagnostics, robot);
    reader.amend(amendmentElement, node, robot);
    reader.names().addAll(robot);
    reader.names().checkReferences(robot);
    auto const joints = node.children("joint");
    if (std::any_of(joints.begin(), joints.end(), [](XmlNode joint) { return bool(joint.child("mimic")); })) {
        checkMimics(robot, diagnostics);
    }
}

}  // namespace Varo::Model::Native
