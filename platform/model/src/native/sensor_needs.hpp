#ifndef VARO_MODEL_NATIVE_SENSOR_NEEDS_HPP
#define VARO_MODEL_NATIVE_SENSOR_NEEDS_HPP

#include "varo/model/configs.hpp"
#include "varo/model/diagnostics.hpp"
#include "xml/document.hpp"

namespace Varo::Model::Native {

/// Reports what models cannot make of a sensor's texts and keys; `node` is its element.
void checkNeeds(SensorConfig const& sensor, XmlNode node, Diagnostics& diagnostics);

}  // namespace Varo::Model::Native

#endif
