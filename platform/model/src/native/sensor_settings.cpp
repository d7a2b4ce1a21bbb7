#include <string>

#include "native/elements.hpp"
#include "schema/children.hpp"
#include "xml/document.hpp"

namespace Varo::Model::Native {

namespace {

/// A number below which nothing makes sense.
struct Amount : Number {
    static constexpr ValueType type{"amount", "a finite decimal number of at least 0"};
    static bool parse(std::string_view text, float& value)
    {
        float number = 0.0F;
        bool const isRight = parseNumber(text, number) && number >= 0.0F;
        value = isRight ? number : value;
        return isRight;
    }
};

/// The same, or the word `unlimited`.
struct Bound : UpperLimit {
    static constexpr ValueType type{"bound", "a finite decimal number of at least 0 or the word unlimited"};
    static bool parse(std::string_view text, float& value)
    {
        float number = 0.0F;
        bool const isRight = UpperLimit::parse(text, number) && number >= 0.0F;
        value = isRight ? number : value;
        return isRight;
    }
};

struct Count : Integer {
    static constexpr ValueType type{"count", "a whole number from 0 to 2147483647"};
    static bool parse(std::string_view text, std::int32_t& value)
    {
        std::int32_t number = 0;
        bool const isRight = parseInteger(text, number) && number >= 0;
        value = isRight ? number : value;
        return isRight;
    }
};

/// A child that is a part which need not be there.
template <auto member, auto const& element>
constexpr Child<SensorSettings> part()
{
    using Part = RecordOfElement<element>;
    return {{&element, Occurrence::optional},
            [](ElementReader& reader, XmlNode node, SensorSettings& settings) {
                Part part;
                reader.read(element, node, part);
                settings.*member = std::move(part);
            },
            [](ElementWriter& writer, SensorSettings const& settings) {
                if (settings.*member) {
                    writer.write(element, *(settings.*member));
                }
            }};
}

constexpr Attribute<CameraSettings> cameraAttributes[] = {
    optional<&CameraSettings::name>("name", "", "", "what the camera within the sensor is called"),
    optional<&CameraSettings::horizontalFieldOfView, Amount>("fieldOfView", "0", "rad",
                                                             "horizontal field of view; 0 when not stated"),
    optional<&CameraSettings::width, Count>("width", "0", "pixels", "width of its pictures; 0 when not stated"),
    optional<&CameraSettings::height, Count>("height", "0", "pixels", "height of its pictures; 0 when not stated"),
    optional<&CameraSettings::format>("format", "", "", "format of its pictures, such as R8G8B8"),
    optional<&CameraSettings::nearClip, Amount>("near", "0", "m", "nothing nearer is seen"),
    optional<&CameraSettings::farClip, Bound>("far", "unlimited", "m", "nothing farther is seen"),
};
constexpr Rule<CameraSettings> cameraRules[] = {inOrder<&CameraSettings::nearClip, &CameraSettings::farClip>("near")};
constexpr Element<CameraSettings> cameraElement{
    "camera", "how a camera takes its pictures", cameraAttributes, {}, cameraRules};

constexpr Attribute<ScanSettings> scanAttributes[] = {
    optional<&ScanSettings::samples, Count>("samples", "1", "", "rays of one sweep"),
    optional<&ScanSettings::resolution, Amount>("resolution", "1", "", "values given per ray"),
    optional<&ScanSettings::minimumAngle>("min", "0", "rad", "where the sweep begins"),
    optional<&ScanSettings::maximumAngle>("max", "0", "rad", "where the sweep ends"),
};
constexpr Rule<ScanSettings> scanRules[] = {inOrder<&ScanSettings::minimumAngle, &ScanSettings::maximumAngle>("min")};
constexpr Element<ScanSettings> horizontalScanElement{
    "horizontalScan", "how a scanner sweeps about the z axis of its frame", scanAttributes, {}, scanRules};
constexpr Element<ScanSettings> verticalScanElement{
    "verticalScan", "how a scanner sweeps up from the x-y plane of its frame", scanAttributes, {}, scanRules};

constexpr Attribute<RangeSettings> rangeAttributes[] = {
    optional<&RangeSettings::minimum, Amount>("min", "0", "m", "smallest distance that is measured"),
    optional<&RangeSettings::maximum, Bound>("max", "unlimited", "m", "greatest distance that is measured"),
    optional<&RangeSettings::resolution, Amount>("resolution", "0", "m",
                                                 "the steps in which distances come; 0 when not stated"),
};
constexpr Rule<RangeSettings> rangeRules[] = {inOrder<&RangeSettings::minimum, &RangeSettings::maximum>("min")};
constexpr Element<RangeSettings> rangeElement{
    "range", "which distances a sensor measures", rangeAttributes, {}, rangeRules};

template <auto member, class Type>
constexpr auto noise(std::string_view name, std::string_view meaning, std::string_view unit = "as the values")
{
    return optional<member, Type>(name, "0", unit, meaning);
}
constexpr Attribute<NoiseSettings> noiseAttributes[] = {
    optional<&NoiseSettings::quantity>("quantity", "", "",
                                       "what has the error, such as linear_acceleration/x; empty for all values"),
    optional<&NoiseSettings::type>("type", "", "", "how the error is distributed, such as gaussian"),
    noise<&NoiseSettings::mean, Number>("mean", "mean of the error"),
    noise<&NoiseSettings::standardDeviation, Amount>("deviation", "standard deviation of the error of each value"),
    noise<&NoiseSettings::biasMean, Number>("biasMean", "mean of the error that stays the same for a run"),
    noise<&NoiseSettings::biasStandardDeviation, Amount>("biasDeviation",
                                                         "standard deviation of that error, from run to run"),
    noise<&NoiseSettings::driftStandardDeviation, Amount>(
        "driftDeviation", "standard deviation of the error that changes slowly within a run"),
    noise<&NoiseSettings::driftTime, Amount>("driftTime", "in which that error changes; 0 when not stated", "s"),
    noise<&NoiseSettings::precision, Amount>("precision", "the steps in which values come; 0 when not stated"),
};
constexpr Element<NoiseSettings> noiseElement{"noise", "the random error of a sensor's values", noiseAttributes};

constexpr Attribute<SensorSettings> attributes[] = {
    optional<&SensorSettings::updateRate, Amount>("updateRate", "0", "Hz", "readings in a second; 0 when not stated"),
};
constexpr Child<SensorSettings> children[] = {
    part<&SensorSettings::camera, cameraElement>(),
    part<&SensorSettings::horizontalScan, horizontalScanElement>(),
    part<&SensorSettings::verticalScan, verticalScanElement>(),
    part<&SensorSettings::range, rangeElement>(),
    childrenOf<&SensorSettings::noises, noiseElement>(),
};

}  // namespace

constexpr Element<SensorSettings> sensorSettingsElement{
    "settings", "how the sensor is set; carried, and answered by its element in a model", attributes, children};

}  // namespace Varo::Model::Native
