#include "settings.hpp"

#include "types.hpp"

namespace Python {

namespace {

py::object valueOf(Varo::Model::CameraSettings const& camera)
{
    return packageClass("CameraSettings")(camera.name, camera.horizontalFieldOfView, camera.width, camera.height,
                                          camera.format, camera.nearClip, camera.farClip);
}

py::object valueOf(Varo::Model::ScanSettings const& scan)
{
    return packageClass("ScanSettings")(scan.samples, scan.resolution, scan.minimumAngle, scan.maximumAngle);
}

py::object valueOf(Varo::Model::RangeSettings const& range)
{
    return packageClass("RangeSettings")(range.minimum, range.maximum, range.resolution);
}

py::object valueOf(Varo::Model::NoiseSettings const& noise)
{
    return packageClass("NoiseSettings")(noise.quantity, noise.type, noise.mean, noise.standardDeviation,
                                         noise.biasMean, noise.biasStandardDeviation, noise.driftStandardDeviation,
                                         noise.driftTime, noise.precision);
}

template <class Settings>
py::object valueOf(std::optional<Settings> const& settings)
{
    return settings ? valueOf(*settings) : py::none();
}

}  // namespace

py::object settingsOf(Varo::Model::SensorSettings const* settings)
{
    if (settings == nullptr) {
        return py::none();
    }
    py::list noises;
    for (Varo::Model::NoiseSettings const& noise : settings->noises) {
        noises.append(valueOf(noise));
    }
    return packageClass("SensorSettings")(settings->updateRate, valueOf(settings->camera),
                                          valueOf(settings->horizontalScan), valueOf(settings->verticalScan),
                                          valueOf(settings->range), py::tuple(noises));
}

}  // namespace Python
