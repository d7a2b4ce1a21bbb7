#include <cmath>
#include <cstdint>
#include <limits>
#include <string>
#include <utility>

#include "schema/values.hpp"
#include "urdf/numbers.hpp"
#include "urdf/sensor_settings.hpp"
#include "xml/words.hpp"

/// The settings that are read, and the types that their values have.
namespace Varo::Model::Urdf {

namespace {

struct Any {
    static constexpr std::string_view meaning = "a number";
    static bool parse(std::string_view text, float& value)
    {
        double number = 0.0;
        bool const isRight = parseNumber(text, number) && std::abs(number) <= largestNumber;
        value = isRight ? static_cast<float>(number) : value;
        return isRight;
    }
};

struct Degrees {
    static constexpr std::string_view meaning = Any::meaning;
    static bool parse(std::string_view text, float& value)
    {
        constexpr double degree = 3.14159265358979323846 / 180.0;
        double number = 0.0;
        bool const isRight = parseNumber(text, number) && std::abs(number) <= largestNumber;
        value = isRight ? static_cast<float>(number * degree) : value;
        return isRight;
    }
};

struct Amount {
    static constexpr std::string_view meaning = "a number of at least 0";
    static bool parse(std::string_view text, float& value)
    {
        float number = 0.0F;
        bool const isRight = Any::parse(text, number) && number >= 0.0F;
        value = isRight ? number : value;
        return isRight;
    }
};

struct Bound {
    static constexpr std::string_view meaning = "a number of at least 0 or infinity";
    static bool parse(std::string_view text, float& value)
    {
        double number = 0.0;
        bool const isUnlimited = parseNumber(text, number) && number > largestNumber;
        value = isUnlimited ? std::numeric_limits<float>::infinity() : value;
        return isUnlimited || Amount::parse(text, value);
    }
};

struct Count {
    static constexpr std::string_view meaning = "a whole number from 1 to 100000";
    static bool parse(std::string_view text, std::int32_t& value)
    {
        double number = 0.0;
        bool const isRight =
            parseNumber(text, number) && number >= 1.0 && number <= 100'000.0 && number == std::floor(number);
        value = isRight ? static_cast<std::int32_t>(number) : value;
        return isRight;
    }
};

struct Word {
    static constexpr std::string_view meaning = "a text";
    static bool parse(std::string_view text, std::string& value)
    {
        std::size_t const begin = endOf(text, 0, isXmlSpace);
        std::size_t end = text.size();
        while (end > begin && isXmlSpace(text[end - 1])) {
            --end;
        }
        value = text.substr(begin, end - begin);
        return end > begin;
    }
};

template <auto>
struct MemberOf;
template <class R, class V, V R::*member>
struct MemberOf<member> {
    using Record = R;
    using Value = V;
};

std::string printValue(float value)
{
    return Schema::printNumber(value);
}
std::string printValue(std::int32_t value)
{
    return std::to_string(value);
}
std::string printValue(std::string const& value)
{
    return value;
}

/// A setting that is a member of the record itself.
template <auto member, class Type>
constexpr auto own(std::string_view path, std::string_view place, std::string_view unit = {})
{
    using Record = typename MemberOf<member>::Record;
    return Setting<Record>{path,
                           place,
                           unit,
                           Type::meaning,
                           [](std::string_view text, Record& record) { return Type::parse(text, record.*member); },
                           [](Record const& record) {
                               return record.*member == Record().*member ? std::string() : printValue(record.*member);
                           }};
}

/// A part of the sensor's settings, which is added where there is none.
template <auto part>
auto& partOf(SensorSettings& settings)
{
    return settings.*part ? *(settings.*part) : (settings.*part).emplace();
}

/// A setting in a part of the sensor's, which is there as soon as one setting of it is stated.
template <auto part, auto member, class Type>
constexpr Setting<SensorSettings> of(std::string_view path, std::string_view place, std::string_view unit = {})
{
    return {path, place, unit, Type::meaning, [](std::string_view text, SensorSettings& settings) {
                typename MemberOf<member>::Value value = {};
                bool const isRight = Type::parse(text, value);
                if (isRight) {
                    partOf<part>(settings).*member = std::move(value);
                }
                return isRight;
            }};
}

/// The form of a setting that is written: where it differs from its default, or wherever there is such a part.
template <auto part, auto member, bool always = false>
constexpr Setting<SensorSettings> written(Setting<SensorSettings> setting)
{
    setting.print = [](SensorSettings const& settings) {
        using Record = typename MemberOf<member>::Record;
        bool const isSaid = settings.*part && (always || (*(settings.*part)).*member != Record().*member);
        return isSaid ? printValue((*(settings.*part)).*member) : std::string();
    };
    return setting;
}

template <auto member, class Type>
constexpr auto camera(std::string_view path, std::string_view place, std::string_view unit = {})
{
    return of<&SensorSettings::camera, member, Type>(path, place, unit);
}
template <auto member, class Type>
constexpr auto horizontal(std::string_view path, std::string_view place, std::string_view unit = {})
{
    return of<&SensorSettings::horizontalScan, member, Type>(path, place, unit);
}
template <auto member, class Type>
constexpr auto vertical(std::string_view path, std::string_view place, std::string_view unit = {})
{
    return of<&SensorSettings::verticalScan, member, Type>(path, place, unit);
}
template <auto member, class Type>
constexpr auto range(std::string_view path, std::string_view place)
{
    return of<&SensorSettings::range, member, Type>(path, place, "m");
}

constexpr Setting<SensorSettings> onlyRead(Setting<SensorSettings> setting)
{
    setting.print = nullptr;
    return setting;
}

/// Width and height in one.
bool storeImageSize(std::string_view text, SensorSettings& settings)
{
    std::size_t const gap = endOf(text, endOf(text, 0, isXmlSpace), isOfWord);
    std::int32_t width = 0;
    std::int32_t height = 0;
    bool const isRight = Count::parse(text.substr(0, gap), width) && Count::parse(text.substr(gap), height);
    if (isRight) {
        auto& camera = partOf<&SensorSettings::camera>(settings);
        camera.width = width;
        camera.height = height;
    }
    return isRight;
}

using Camera = CameraSettings;
using Scan = ScanSettings;
using Distance = RangeSettings;

constexpr Setting<SensorSettings> ofSensors[] = {
    own<&SensorSettings::updateRate, Amount>("update_rate", "@updateRate", "Hz"),

    written<&SensorSettings::camera, &Camera::name>(camera<&Camera::name, Word>("camera/name", "camera/@name")),
    camera<&Camera::horizontalFieldOfView, Amount>("camera/horizontal_fov", "camera/@fieldOfView", "rad"),
    written<&SensorSettings::camera, &Camera::horizontalFieldOfView>(
        camera<&Camera::horizontalFieldOfView, Amount>("camera/image/hfov", "camera/@fieldOfView", "rad")),
    written<&SensorSettings::camera, &Camera::width>(
        camera<&Camera::width, Count>("camera/image/width", "camera/@width", "pixels")),
    written<&SensorSettings::camera, &Camera::height>(
        camera<&Camera::height, Count>("camera/image/height", "camera/@height", "pixels")),
    written<&SensorSettings::camera, &Camera::format>(
        camera<&Camera::format, Word>("camera/image/format", "camera/@format")),
    written<&SensorSettings::camera, &Camera::nearClip, true>(
        camera<&Camera::nearClip, Amount>("camera/image/near", "camera/@near", "m")),
    written<&SensorSettings::camera, &Camera::farClip>(
        camera<&Camera::farClip, Bound>("camera/image/far", "camera/@far", "m")),
    camera<&Camera::nearClip, Amount>("camera/clip/near", "camera/@near", "m"),
    camera<&Camera::farClip, Bound>("camera/clip/far", "camera/@far", "m"),

    horizontal<&Scan::samples, Count>("ray/scan/horizontal/samples", "horizontalScan/@samples"),
    horizontal<&Scan::resolution, Amount>("ray/scan/horizontal/resolution", "horizontalScan/@resolution"),
    horizontal<&Scan::minimumAngle, Any>("ray/scan/horizontal/min_angle", "horizontalScan/@min", "rad"),
    horizontal<&Scan::maximumAngle, Any>("ray/scan/horizontal/max_angle", "horizontalScan/@max", "rad"),
    vertical<&Scan::samples, Count>("ray/scan/vertical/samples", "verticalScan/@samples"),
    vertical<&Scan::resolution, Amount>("ray/scan/vertical/resolution", "verticalScan/@resolution"),
    vertical<&Scan::minimumAngle, Any>("ray/scan/vertical/min_angle", "verticalScan/@min", "rad"),
    vertical<&Scan::maximumAngle, Any>("ray/scan/vertical/max_angle", "verticalScan/@max", "rad"),
    written<&SensorSettings::horizontalScan, &Scan::samples, true>(
        horizontal<&Scan::samples, Count>("ray/horizontal/samples", "horizontalScan/@samples")),
    written<&SensorSettings::horizontalScan, &Scan::resolution>(
        horizontal<&Scan::resolution, Amount>("ray/horizontal/resolution", "horizontalScan/@resolution")),
    written<&SensorSettings::horizontalScan, &Scan::minimumAngle>(
        horizontal<&Scan::minimumAngle, Any>("ray/horizontal/min_angle", "horizontalScan/@min", "rad")),
    written<&SensorSettings::horizontalScan, &Scan::maximumAngle>(
        horizontal<&Scan::maximumAngle, Any>("ray/horizontal/max_angle", "horizontalScan/@max", "rad")),
    written<&SensorSettings::verticalScan, &Scan::samples, true>(
        vertical<&Scan::samples, Count>("ray/vertical/samples", "verticalScan/@samples")),
    written<&SensorSettings::verticalScan, &Scan::resolution>(
        vertical<&Scan::resolution, Amount>("ray/vertical/resolution", "verticalScan/@resolution")),
    written<&SensorSettings::verticalScan, &Scan::minimumAngle>(
        vertical<&Scan::minimumAngle, Any>("ray/vertical/min_angle", "verticalScan/@min", "rad")),
    written<&SensorSettings::verticalScan, &Scan::maximumAngle>(
        vertical<&Scan::maximumAngle, Any>("ray/vertical/max_angle", "verticalScan/@max", "rad")),
    written<&SensorSettings::range, &Distance::minimum, true>(
        range<&Distance::minimum, Amount>("ray/range/min", "range/@min")),
    written<&SensorSettings::range, &Distance::maximum>(
        range<&Distance::maximum, Bound>("ray/range/max", "range/@max")),
    written<&SensorSettings::range, &Distance::resolution>(
        range<&Distance::resolution, Amount>("ray/range/resolution", "range/@resolution")),
    range<&Distance::minimum, Amount>("sonar/min", "range/@min"),
    range<&Distance::maximum, Bound>("sonar/max", "range/@max"),

    // The old form, whose angles are in degrees.
    onlyRead(own<&SensorSettings::updateRate, Amount>("updateRate", "@updateRate", "Hz")),
    camera<&Camera::horizontalFieldOfView, Degrees>("hfov", "camera/@fieldOfView", "degrees"),
    {"imageSize", "camera/@width, @height", "pixels", "two whole numbers from 1 to 100000", storeImageSize},
    camera<&Camera::format, Word>("imageFormat", "camera/@format"),
    camera<&Camera::nearClip, Amount>("nearClip", "camera/@near", "m"),
    camera<&Camera::farClip, Bound>("farClip", "camera/@far", "m"),
    horizontal<&Scan::samples, Count>("rayCount", "horizontalScan/@samples"),
    horizontal<&Scan::minimumAngle, Degrees>("minAngle", "horizontalScan/@min", "degrees"),
    horizontal<&Scan::maximumAngle, Degrees>("maxAngle", "horizontalScan/@max", "degrees"),
    vertical<&Scan::samples, Count>("verticalRayCount", "verticalScan/@samples"),
    vertical<&Scan::minimumAngle, Degrees>("verticalMinAngle", "verticalScan/@min", "degrees"),
    vertical<&Scan::maximumAngle, Degrees>("verticalMaxAngle", "verticalScan/@max", "degrees"),
    range<&Distance::minimum, Amount>("minRange", "range/@min"),
    range<&Distance::maximum, Bound>("maxRange", "range/@max"),
    range<&Distance::resolution, Amount>("resRange", "range/@resolution"),
};

using Noise = NoiseSettings;
constexpr Setting<NoiseSettings> ofNoises[] = {
    own<&Noise::type, Word>("type", "noise/@type"),
    own<&Noise::mean, Any>("mean", "noise/@mean"),
    own<&Noise::standardDeviation, Amount>("stddev", "noise/@deviation"),
    own<&Noise::biasMean, Any>("bias_mean", "noise/@biasMean"),
    own<&Noise::biasStandardDeviation, Amount>("bias_stddev", "noise/@biasDeviation"),
    own<&Noise::driftStandardDeviation, Amount>("dynamic_bias_stddev", "noise/@driftDeviation"),
    own<&Noise::driftTime, Amount>("dynamic_bias_correlation_time", "noise/@driftTime", "s"),
    own<&Noise::precision, Amount>("precision", "noise/@precision"),
};

constexpr SensorAlias aliases[] = {
    {"depth_camera", "camera"}, {"rgbd_camera", "camera"}, {"gpu_ray", "ray"}, {"lidar", "ray"}, {"gpu_lidar", "ray"},
};
constexpr std::string_view noisy[] = {
    "camera", "ray", "imu", "force_torque", "magnetometer", "altimeter", "gps", "navsat", "air_pressure", "air_speed",
};

}  // namespace

Range<SensorAlias> const sensorAliases = aliases;
Range<std::string_view> const noisyElements = noisy;
Range<Setting<SensorSettings>> const sensorSettings = ofSensors;
Range<Setting<NoiseSettings>> const noiseSettings = ofNoises;

}  // namespace Varo::Model::Urdf
