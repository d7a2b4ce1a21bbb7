#include "urdf/sensor_settings.hpp"

#include <algorithm>
#include <string>
#include <unordered_set>
#include <utility>

#include "urdf/numbers.hpp"
#include "varo/model/name_hash.hpp"
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

/// So are those elements; the origin of the old form, a text, is not.
bool saysWhere(XmlNode element)
{
    std::string_view const name = element.name();
    return name == "parent" || name == "pose" || (name == "origin" && element.text().empty());
}

template <class Record>
Setting<Record> const* findSetting(Range<Setting<Record>> settings, std::string_view path)
{
    auto const* const found =
        std::find_if(settings.begin(), settings.end(), [&](auto const& setting) { return setting.path == path; });
    return found == settings.end() ? nullptr : found;
}

/// Whether settings stand in elements of that path.
bool holdsSettings(std::string_view path)
{
    return std::any_of(sensorSettings.begin(), sensorSettings.end(), [&](auto const& setting) {
        return setting.path.size() > path.size() && setting.path.substr(0, path.size()) == path &&
               setting.path[path.size()] == '/';
    });
}

bool holdsNoise(XmlNode element, std::size_t depth)
{
    auto const children = element.children();
    return std::any_of(children.begin(), children.end(), [depth](XmlNode child) {
        return std::string_view(child.name()) == "noise" || (depth > 1 && holdsNoise(child, depth - 1));
    });
}

class SettingsReader {
public:
    explicit SettingsReader(Report const& report) : _report(report) {}

    std::shared_ptr<SensorSettings const> read(XmlNode sensor);

private:
    void readPart(XmlNode element, std::string const& path);
    void readAttributes(XmlNode element, std::string const& path);
    void readChild(XmlNode child, std::string const& path);
    void readElement(XmlNode element, std::string const& path);
    bool isFirst(XmlNode element, std::string const& path);
    void readNoise(XmlNode noise, std::string const& quantity, std::string const& type);
    void readRangeCount();
    void checkOrder(XmlNode sensor);
    template <class Record>
    bool store(Setting<Record> const& setting, std::string_view text, TextOffset place, Record& record);

    Report const& _report;
    SensorSettings _settings;
    bool _isAnyStated = false;
    std::unordered_set<std::string, NameHash> _seen;  ///< paths that may be stated once
    XmlNode _rangeCount;
    bool _hasManyCameras = false;
};

std::shared_ptr<SensorSettings const> SettingsReader::read(XmlNode sensor)
{
    _hasManyCameras = sensor.attribute("type").value() == "multicamera";
    readPart(sensor, "");
    readRangeCount();
    checkOrder(sensor);
    return _isAnyStated ? std::make_shared<SensorSettings const>(std::move(_settings)) : nullptr;
}

/// An element that holds settings; `path` is empty for the sensor's own, and ends with a slash for others.
void SettingsReader::readPart(XmlNode element, std::string const& path)
{
    readAttributes(element, path);
    for (XmlNode const child : element.children()) {
        if (child.isElement()) {
            readChild(child, path);
        }
    }
}

void SettingsReader::readAttributes(XmlNode element, std::string const& path)
{
    for (XmlAttribute const attribute : element.attributes()) {
        if (path.empty() && saysWhich(attribute.name())) {
            continue;
        }
        std::string const name = path + std::string(attribute.name());
        auto const* const setting = findSetting(sensorSettings, name);
        bool const isStored =
            setting != nullptr && store(*setting, attribute.value(), at(element, attribute), _settings);
        if (isStored) {
            _seen.insert(name);
        } else {
            _report.passOver(element, attribute);
        }
    }
}

void SettingsReader::readChild(XmlNode child, std::string const& path)
{
    std::string_view name = child.name();
    if (path.empty() && saysWhere(child)) {
        if (!isFirst(child, std::string(name))) {
            _report.passOver(child);
        }
        return;
    }
    if (path.empty() && name == "rangeCount" && !_rangeCount) {
        _rangeCount = child;
        return;
    }
    auto const* const alias = std::find_if(sensorAliases.begin(), sensorAliases.end(), [&](SensorAlias const& known) {
        return path.empty() && known.name == name;
    });
    readElement(child, path + std::string(alias == sensorAliases.end() ? name : alias->meant));
}

void SettingsReader::readElement(XmlNode element, std::string const& path)
{
    std::size_t const depth = static_cast<std::size_t>(std::count(path.begin(), path.end(), '/')) + 1;
    std::string const around = path.substr(0, path.find('/'));
    bool const isNoisy = std::find(noisyElements.begin(), noisyElements.end(), around) != noisyElements.end();
    if (isNoisy && depth > 1 && path.substr(path.rfind('/')) == "/noise") {
        std::size_t const begin = around.size() + 1;
        std::size_t const end = path.rfind('/');
        readNoise(element, end > begin ? path.substr(begin, end - begin) : "", "");
        return;
    }
    auto const* const setting = findSetting(sensorSettings, path);
    bool const isPart =
        holdsSettings(path) || (isNoisy && depth <= deepestNoise && holdsNoise(element, deepestNoise + 1 - depth));
    bool const isRead = (setting != nullptr || isPart) && isFirst(element, path);
    if (isRead && isPart) {
        readPart(element, path + "/");
    } else if (!isRead || !store(*setting, element.text(), at(element), _settings)) {
        _report.passOver(element);
    }
}

/// Reports an element that may stand once and stands again.
bool SettingsReader::isFirst(XmlNode element, std::string const& path)
{
    bool const isNew = _seen.insert(path).second;
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
        auto const* const setting = findSetting(noiseSettings, name);
        bool const isStored = setting != nullptr && store(*setting, text, place, stated);
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
    if (_seen.count("rayCount") == 0) {
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
