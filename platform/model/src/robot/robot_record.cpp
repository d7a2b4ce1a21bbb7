#include "robot/robot_record.hpp"

#include <algorithm>
#include <numeric>
#include <utility>

#include "xml/markup.hpp"
#include "xml/raw_tag.hpp"

namespace Varo::Model {

namespace {

template <class Config>
void list(Table<Config> const& table, std::vector<std::string>& names, std::map<std::string, Config>& byName)
{
    names = table.names();
    byName = table.byName();
}

/// The attribute of that name in the start tag at `tag`; its name is empty when there is none.
RawAttribute findAttribute(std::string_view text, std::size_t tag, std::string_view name)
{
    RawTag attributes(text, tag);
    for (RawAttribute attribute; attributes.next(attribute);) {
        if (attribute.name == name) {
            return attribute;
        }
    }
    return {};
}

/// Cuts off and returns the first step of a path.
std::string_view takeStep(std::string_view& path)
{
    std::size_t const length = std::min(path.find('/'), path.size());
    std::string_view const step = path.substr(0, length);
    path.remove_prefix(std::min(length + 1, path.size()));
    return step;
}

/// Whether a step of a path is for elements of that name.
bool isOneOf(std::string_view step, std::string_view name)
{
    for (std::size_t begin = 0; begin <= step.size();) {
        std::size_t const end = std::min(step.find('|', begin), step.size());
        if (step.substr(begin, end - begin) == name) {
            return true;
        }
        begin = end + 1;
    }
    return false;
}

/// Finds what parts of records are written as, in the text itself.
class PartFinder {
public:
    PartFinder(std::string_view text, std::size_t element) : _text(text), _at(element) {}

    Statement find(PartPlace const& place)
    {
        bool isThere = true;
        for (std::string_view path = place.child; isThere && !path.empty();) {
            isThere = enterChild(takeStep(path), path.empty() ? place.childName : std::string_view());
        }
        if (!isThere || place.attribute.empty()) {
            return {TextOffset(_at), isThere, {}};
        }
        RawAttribute const attribute = findAttribute(_text, _at, place.attribute);
        if (attribute.name.empty()) {
            return {TextOffset(_at), false, {}};
        }
        return {TextOffset(static_cast<std::size_t>(attribute.name.data() - _text.data())), true, attribute.value};
    }

private:
    bool enterChild(std::string_view element, std::string_view name)
    {
        std::size_t const parent = _at;
        forEachChild(_text, parent, [&](std::size_t child) {
            bool const isIt = isOneOf(element, RawTag(_text, child).name()) &&
                              (name.empty() || findAttribute(_text, child, "name").value == name);
            _at = isIt ? child : _at;
            return !isIt;
        });
        return _at != parent;
    }

    std::string_view _text;
    std::size_t _at;
};

}  // namespace

void completeTables(Records& records)
{
    records.joints.sortNames();
    records.chains.sortNames();
    records.actuators.sortNames();
    records.subActuators.sortNames();
    records.sensors.sortNames();
    records.wheels.sortNames();
    records.chainOrder.resize(records.chains.size());
    std::iota(records.chainOrder.begin(), records.chainOrder.end(), 0U);
}

RobotRecord::RobotRecord(Records records, std::shared_ptr<SourceText const> source, Diagnostics diagnostics,
                         Range<PartPlace> parts)
    : _records(std::move(records)), _source(std::move(source)), _diagnostics(std::move(diagnostics)), _parts(parts)
{
    completeTables(_records);
}

std::string RobotRecord::prettyName(int index) const
{
    auto const found = _records.prettyNames.find(index);
    return found == _records.prettyNames.end() ? _records.name : found->second;
}

void RobotRecord::listActuators(std::vector<std::string>& names, ActuatorTable& actuators,
                                SubActuatorTable& subActuators) const
{
    list(_records.actuators, names, actuators);
    subActuators = _records.subActuators.byName();
}

void RobotRecord::listChains(std::vector<std::string>& names, ChainTable& chains) const
{
    list(_records.chains, names, chains);
}

void RobotRecord::listJoints(std::string& robotName, JointConfig& root, JointTable& joints,
                             std::vector<std::string>& names, std::vector<std::string>& reflectionForced) const
{
    robotName = _records.name;
    root = _records.root;
    list(_records.joints, names, joints);
    reflectionForced = _records.reflectionForced;
}

void RobotRecord::listSensors(std::vector<std::string>& names, SensorTable& sensors) const
{
    list(_records.sensors, names, sensors);
}

void RobotRecord::listWheels(std::vector<std::string>& names, WheelTable& wheels) const
{
    list(_records.wheels, names, wheels);
}

Statement RobotRecord::locate(TextOffset record, Part part) const
{
    if (!record.isKnown() || part == Part::whole) {
        return {record, record.isKnown(), {}};
    }
    std::string_view const text = _source->text();
    std::string_view const element = RawTag(text, record.value()).name();
    auto const isMeant = [&](PartPlace const& place) {
        return place.part == part && (place.element.empty() || place.element == element);
    };
    auto const place = std::find_if(_parts.begin(), _parts.end(), isMeant);
    return place == _parts.end() ? Statement{record, false, {}} : PartFinder(text, record.value()).find(*place);
}

}  // namespace Varo::Model
