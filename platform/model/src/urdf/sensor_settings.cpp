#include "urdf/sensor_settings.hpp"

#include <algorithm>
#include <cstddef>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "schema/element_reader.hpp"
#include "urdf/numbers.hpp"
#include "xml/document.hpp"

namespace Varo::Model::Urdf {

namespace {

/// As deep as an axis of a quantity in such an element.
constexpr std::size_t deepestNoise = 3;

/// Those attributes of a sensor are read elsewhere.
bool saysWhich(std::string_view attribute)
{
    return attribute == "name" || attribute == "type";
}

/// So are those elements, but for the origin of the old form, a text.
constexpr std::string_view placeElements[] = {"parent", "pose", "origin"};

/// What stands for no step.
constexpr std::size_t noStep = static_cast<std::size_t>(-1);

/// A step of the paths in the table of settings: an element, or an attribute.
struct Step {
    std::string_view name;
    Setting<SensorSettings> const* setting = nullptr;  ///< null where the paths go on
    std::size_t firstInside = noStep;
    std::size_t next = noStep;  ///< in the same element
};

/// The table as a tree of elements, so that what stands in one is looked for among few.
class Steps {
public:
    static constexpr std::size_t sensor = 0;  ///< the sensor's own element

    Steps()
    {
        for (Setting<SensorSettings> const& setting : sensorSettings) {
            _steps[add(setting.path)].setting = &setting;
        }
        for (std::string_view const place : placeElements) {
            add(place);
        }
    }

    std::size_t size() const { return _steps.size(); }
    Setting<SensorSettings> const* setting(std::size_t step) const
    {
        return step == noStep ? nullptr : _steps[step].setting;
    }
    bool holdsSteps(std::size_t step) const { return step != noStep && _steps[step].firstInside != noStep; }
    /// Whether it says where the sensor is.
    bool isPlace(std::size_t step) const { return step != noStep && setting(step) == nullptr && !holdsSteps(step); }

    /// The step of that name in an element; of an element that is none there is none either.
    std::size_t find(std::size_t around, std::string_view name) const
    {
        std::size_t step = around == noStep ? noStep : _steps[around].firstInside;
        while (step != noStep && !Schema::isSame(_steps[step].name, name)) {
            step = _steps[step].next;
        }
        return step;
    }

private:
    /// The step at the path; steps that are missing are added.
    std::size_t add(std::string_view path)
    {
        std::size_t step = sensor;
        while (!path.empty()) {
            std::string_view const name = path.substr(0, path.find('/'));
            path.remove_prefix(std::min(name.size() + 1, path.size()));
            step = addInside(step, name);
        }
        return step;
    }

    std::size_t addInside(std::size_t around, std::string_view name)
    {
        std::size_t* link = &_steps[around].firstInside;
        while (*link != noStep && _steps[*link].name != name) {
            link = &_steps[*link].next;
        }
        std::size_t const step = std::min(*link, _steps.size());
        if (*link == noStep) {
            *link = step;
            _steps.push_back({name});
        }
        return step;
    }

    std::vector<Step> _steps = std::vector<Step>(1);
};

Steps const& steps()
{
    static Steps const ofTable;
    return ofTable;
}

bool holdsNoise(XmlNode element, std::size_t depth)
{
    auto const children = element.children();
    return std::any_of(children.begin(), children.end(), [depth](XmlNode child) {
        return std::string_view(child.name()) == "noise" || (depth > 1 && holdsNoise(child, depth - 1));
    });
}

/// An element of a sensor, or the sensor's own, while it is read.
struct Level {
    std::size_t step = Steps::sensor;
    std::size_t depth = 0;  ///< of elements around it within the sensor's
    bool isNoisy = false;  ///< whether a noise may stand in it
};

/// What has the error that a `noise` states: the elements around it, without the outermost.
std::string quantityOf(XmlNode noise, std::size_t depth)
{
    std::string quantity;
    XmlNode around = noise.parent();
    for (; depth > 2; --depth, around = around.parent()) {
        quantity = std::string(around.name()) + (quantity.empty() ? "" : "/") + quantity;
    }
    return quantity;
}

class SettingsReader {
public:
    explicit SettingsReader(Report const& report) : _report(report) {}

    std::shared_ptr<SensorSettings const> read(XmlNode sensor);

private:
    void readPart(XmlNode element, Level const& level);
    void readAttributes(XmlNode element, Level const& level);
    void readChild(XmlNode child, Level const& around);
    void readElement(XmlNode element, Level const& level);
    bool isFirst(XmlNode element, std::size_t step);
    void readNoise(XmlNode noise, std::string const& quantity, std::string const& type);
    void readRangeCount();
    void checkOrder(XmlNode sensor);
    template <class Record>
    bool store(Setting<Record> const& setting, std::string_view text, TextOffset place, Record& record);

    Report const& _report;
    SensorSettings _settings;
    bool _isAnyStated = false;
    // What may be stated once, and is.
    std::vector<bool> _seen = std::vector<bool>(steps().size());
    std::set<std::pair<std::size_t, std::string_view>> _seenParts;  ///< by parent and name: what is no step
    XmlNode _rangeCount;
    bool _hasManyCameras = false;
};

std::shared_ptr<SensorSettings const> SettingsReader::read(XmlNode sensor)
{
    _hasManyCameras = sensor.attribute("type").value() == "multicamera";
    readPart(sensor, {});
    readRangeCount();
    checkOrder(sensor);
    return _isAnyStated ? std::make_shared<SensorSettings const>(std::move(_settings)) : nullptr;
}

/// An element that holds settings.
void SettingsReader::readPart(XmlNode element, Level const& level)
{
    readAttributes(element, level);
    for (XmlNode const child : element.children()) {
        if (child.isElement()) {
            readChild(child, level);
        }
    }
}

void SettingsReader::readAttributes(XmlNode element, Level const& level)
{
    for (XmlAttribute const attribute : element.attributes()) {
        if (level.depth == 0 && saysWhich(attribute.name())) {
            continue;
        }
        std::size_t const step = steps().find(level.step, attribute.name());
        auto const* const setting = steps().setting(step);
        if (setting != nullptr && store(*setting, attribute.value(), at(element, attribute), _settings)) {
            _seen[step] = true;
        } else {
            _report.passOver(element, attribute);
        }
    }
}

void SettingsReader::readChild(XmlNode child, Level const& around)
{
    std::string_view const stated = child.name();
    if (around.depth > 0) {
        readElement(child, {steps().find(around.step, stated), around.depth + 1, around.isNoisy});
        return;
    }
    auto const* const alias = std::find_if(sensorAliases.begin(), sensorAliases.end(),
                                           [stated](SensorAlias const& known) { return known.name == stated; });
    std::string_view const name = alias == sensorAliases.end() ? stated : alias->meant;
    std::size_t const step = steps().find(around.step, name);
    if (steps().isPlace(step) && (name != "origin" || child.text().empty())) {
        if (!isFirst(child, step)) {
            _report.passOver(child);
        }
    } else if (name == "rangeCount" && !_rangeCount) {
        _rangeCount = child;
    } else {
        bool const isNoisy = std::find(noisyElements.begin(), noisyElements.end(), name) != noisyElements.end();
        readElement(child, {step, 1, isNoisy});
    }
}

void SettingsReader::readElement(XmlNode element, Level const& level)
{
    if (level.isNoisy && level.depth > 1 && element.name() == "noise") {
        readNoise(element, quantityOf(element, level.depth), "");
        return;
    }
    auto const* const setting = steps().setting(level.step);
    bool const isPart = steps().holdsSteps(level.step) || (level.isNoisy && level.depth <= deepestNoise &&
                                                           holdsNoise(element, deepestNoise + 1 - level.depth));
    bool const isRead = (setting != nullptr || isPart) && isFirst(element, level.step);
    if (isRead && isPart) {
        readPart(element, level);
    } else if (!isRead || !store(*setting, element.text(), at(element), _settings)) {
        _report.passOver(element);
    }
}

/// Reports an element that may stand once and stands again.
bool SettingsReader::isFirst(XmlNode element, std::size_t step)
{
    bool const isNew =
        step == noStep ? _seenParts.insert({element.parent().id(), element.name()}).second : !_seen[step];
    if (step != noStep) {
        _seen[step] = true;
    }
    if (!isNew && !_hasManyCameras) {
        _report.diagnostics.report(at(element), codes::surplusElement,
                                   "This is a further " + quoted(element.name()) + "; the first one counts.");
    }
    return isNew;
}

/// The noise of an inertial unit may state that of two quantities, with one type for both.
void SettingsReader::readNoise(XmlNode noise, std::string const& quantity, std::string const& type)
{
    NoiseSettings stated;
    stated.quantity = quantity;
    stated.type = type;
    bool saysMore = false;
    auto const take = [&](std::string_view name, std::string_view text, TextOffset place) {
        auto const* const setting = std::find_if(noiseSettings.begin(), noiseSettings.end(),
                                                 [name](auto const& known) { return known.path == name; });
        bool const isStored = setting != noiseSettings.end() && store(*setting, text, place, stated);
        saysMore = saysMore || (isStored && name != "type");
        return isStored;
    };
    for (XmlAttribute const attribute : noise.attributes()) {
        if (!take(attribute.name(), attribute.value(), at(noise, attribute))) {
            _report.passOver(noise, attribute);
        }
    }
    std::vector<XmlNode> parts;
    for (XmlNode const child : noise.children()) {
        std::string_view const name = child.name();
        bool const isPart = quantity.empty() && (name == "accel" || name == "rate");
        if (isPart) {
            parts.push_back(child);
        } else if (child.isElement() && !take(name, child.text(), at(child))) {
            _report.passOver(child);
        }
    }
    for (XmlNode const part : parts) {
        readNoise(part, std::string(part.name()), stated.type);
    }
    if (parts.empty() || saysMore) {
        _settings.noises.push_back(std::move(stated));
    }
}

/// The old form states how many values a sweep gives, and not how many each ray does.
void SettingsReader::readRangeCount()
{
    double count = 0.0;
    if (!_rangeCount) {
        return;
    }
    if (!parseNumber(_rangeCount.text(), count) || !(count >= 1.0 && count <= 100'000.0)) {
        _report.diagnostics.report(at(_rangeCount), codes::badSetting,
                                   quoted(_rangeCount.text()) + " is not a count; it is left out.");
        _report.passOver(_rangeCount);
        return;
    }
    ScanSettings scan = _settings.horizontalScan.value_or(ScanSettings());
    if (!_seen[steps().find(Steps::sensor, "rayCount")]) {
        scan.samples = static_cast<std::int32_t>(count);
    }
    scan.resolution = static_cast<float>(count / scan.samples);
    _settings.horizontalScan = scan;
    _isAnyStated = true;
}

void SettingsReader::checkOrder(XmlNode sensor)
{
    auto const check = [&](float least, float greatest, char const* what) {
        if (least > greatest) {
            _report.diagnostics.report(at(sensor), codes::badSetting,
                                       "The least " + std::string(what) + " of this sensor is above the greatest.");
        }
    };
    if (_settings.camera) {
        check(_settings.camera->nearClip, _settings.camera->farClip, "distance");
    }
    if (_settings.range) {
        check(_settings.range->minimum, _settings.range->maximum, "distance");
    }
    for (auto const* scan : {&_settings.horizontalScan, &_settings.verticalScan}) {
        if (*scan) {
            check((*scan)->minimumAngle, (*scan)->maximumAngle, "angle");
        }
    }
}

template <class Record>
bool SettingsReader::store(Setting<Record> const& setting, std::string_view text, TextOffset place, Record& record)
{
    bool const isStored = setting.store(text, record);
    if (!isStored) {
        _report.diagnostics.report(
            place, codes::badSetting,
            quoted(text) + " is not " + std::string(setting.type) + "; this setting counts as not stated.");
    }
    _isAnyStated = _isAnyStated || isStored;
    return isStored;
}

}  // namespace

std::shared_ptr<SensorSettings const> readSensorSettings(XmlNode sensor, Report const& report)
{
    return SettingsReader(report).read(sensor);
}

}  // namespace Varo::Model::Urdf
