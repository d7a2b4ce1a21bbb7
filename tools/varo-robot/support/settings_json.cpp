#include "support/settings_json.hpp"

#include <string>

namespace Tool {

namespace {

using namespace Varo::Model;

/// Of what is 0 or empty when it is not stated.
template <class Value>
Json ifStated(Value const& value)
{
    return value == Value() ? Json(nullptr) : Json(value);
}

Json jsonOf(CameraSettings const& camera)
{
    return {
        {"name", ifStated(camera.name)},     {"horizontalFieldOfView", ifStated(camera.horizontalFieldOfView)},
        {"width", ifStated(camera.width)},   {"height", ifStated(camera.height)},
        {"format", ifStated(camera.format)}, {"nearClip", camera.nearClip},
        {"farClip", camera.farClip},
    };
}

Json jsonOf(ScanSettings const& scan)
{
    return {
        {"samples", scan.samples},
        {"resolution", scan.resolution},
        {"minimumAngle", scan.minimumAngle},
        {"maximumAngle", scan.maximumAngle},
    };
}

Json jsonOf(RangeSettings const& range)
{
    return {{"minimum", range.minimum}, {"maximum", range.maximum}, {"resolution", ifStated(range.resolution)}};
}

Json jsonOf(NoiseSettings const& noise)
{
    return {
        {"quantity", noise.quantity},
        {"type", noise.type},
        {"mean", noise.mean},
        {"standardDeviation", noise.standardDeviation},
        {"biasMean", noise.biasMean},
        {"biasStandardDeviation", noise.biasStandardDeviation},
        {"driftStandardDeviation", noise.driftStandardDeviation},
        {"driftTime", ifStated(noise.driftTime)},
        {"precision", ifStated(noise.precision)},
    };
}

template <class Part>
Json jsonOf(std::optional<Part> const& part)
{
    return part ? jsonOf(*part) : Json(nullptr);
}

}  // namespace

Json settingsJson(SensorSettings const* settings)
{
    if (settings == nullptr) {
        return nullptr;
    }
    Json noises = Json::array();
    for (NoiseSettings const& noise : settings->noises) {
        noises.push_back(jsonOf(noise));
    }
    return {
        {"updateRate", ifStated(settings->updateRate)},
        {"camera", jsonOf(settings->camera)},
        {"horizontalScan", jsonOf(settings->horizontalScan)},
        {"verticalScan", jsonOf(settings->verticalScan)},
        {"range", jsonOf(settings->range)},
        {"noises", std::move(noises)},
    };
}

}  // namespace Tool
