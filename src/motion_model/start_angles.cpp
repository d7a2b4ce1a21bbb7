#include "motion_model/start_angles.hpp"

#include <cstddef>
#include <string_view>
#include <unordered_set>

#include "core/build_codes.hpp"
#include "posture/posture_library.hpp"
#include "sim/load_error.hpp"
#include "varo/model/diagnostics.hpp"
#include "varo/model/name_hash.hpp"

namespace Sim {

namespace {

using Varo::Model::Part;
using Varo::Model::PostureAngle;
using Varo::Model::quoted;

constexpr char startPosture[] = "StandInit";

/// What the posture library says is that there is a surplus angle; the posture's own record says which.
[[noreturn]] void refuseSurplusAngles(Varo::Model::Robot const& robot, Varo::Model::Records const& records)
{
    std::unordered_set<std::string_view, Varo::Model::NameHash> known;
    for (std::string const* name : angleNames(records)) {
        known.insert(*name);
    }
    auto diagnostics = diagnosticsOf(robot);
    for (auto const& posture : records.postures) {
        for (PostureAngle const& angle : posture.angles) {
            if (posture.name == startPosture && known.count(angle.name) == 0) {
                diagnostics.escalate(robot.statement(angle, Part::name).offset, codes::modelNotBuilt,
                                     "There is no joint or actuator " + quoted(angle.name) +
                                         " with an angle, so no model can be built from this start posture.");
            }
        }
    }
    throw StartAngleError(
        "vector::_M_range_check: the posture StandInit gives an angle to a name that no chain leads to.",
        diagnostics.findings());
}

}  // namespace

StartAngles readStartAngles(Varo::Model::Robot const& robot, Varo::Model::Records const& records)
{
    std::vector<std::string const*> const names = angleNames(records);
    StartAngles startAngles;
    startAngles.reserve(names.size());
    posture::PostureLibrary library;
    if (!library.loadLibraryFromName(posture::getRobotPostureLibraryName(robot))) {
        for (std::string const* name : names) {
            startAngles.emplace_back(name, 0.0F);
        }
        return startAngles;
    }
    posture::Posture standInit;
    library.getPostureFromId(library.getIdFromName(startPosture), standInit, true);
    auto const& angles = standInit.jointValues();
    if (angles.size() > names.size()) {
        refuseSurplusAngles(robot, records);
    }
    for (std::size_t i = 0; i < angles.size(); ++i) {
        startAngles.emplace_back(names[i], angles[i]);
    }
    return startAngles;
}

}  // namespace Sim
