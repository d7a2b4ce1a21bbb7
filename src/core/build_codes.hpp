#ifndef VARO_CORE_BUILD_CODES_HPP
#define VARO_CORE_BUILD_CODES_HPP

#include "varo/model/diagnostics.hpp"
#include "varo/model/robot.hpp"

namespace Sim {

/// The kinds of findings that building a model adds to those of the description's reader.
namespace codes {

inline constexpr Varo::Model::FindingCode modelNotBuilt{
    "model-not-built", Varo::Model::Severity::error,
    "The description reads well, but lacks what the elements of a model need."};
inline constexpr Varo::Model::FindingCode modelIncomplete{"model-incomplete", Varo::Model::Severity::warning,
                                                          "The model leaves out something that the description has."};
inline constexpr Varo::Model::FindingCode sensorWithoutClass{"sensor-without-class", Varo::Model::Severity::note,
                                                             "The model has no class for sensors of this kind."};

}  // namespace codes

/// A sink that begins with what the reader had to say.
inline Varo::Model::Diagnostics diagnosticsOf(Varo::Model::Robot const& robot)
{
    Varo::Model::Diagnostics const* const reading = robot.diagnostics();
    return reading == nullptr ? Varo::Model::Diagnostics(robot.source()) : *reading;
}

}  // namespace Sim

#endif
