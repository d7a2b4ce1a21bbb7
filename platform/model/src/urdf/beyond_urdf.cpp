#include "urdf/beyond_urdf.hpp"

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include "urdf/urdf_codes.hpp"

namespace Varo::Model::Urdf {

namespace {

using Offsets = std::vector<TextOffset>;

template <auto list>
Offsets offsetsOf(Records const& records)
{
    Offsets offsets;
    for (auto const& record : records.*list) {
        offsets.push_back(record.textOffset);
    }
    return offsets;
}

/// These records do not know their places: they are told of at the robot's body.
Offsets offsetsOfNames(Records const& records)
{
    return Offsets(records.prettyNames.size(), records.root.textOffset);
}

/// What stands in lists of its own in the native dialect.
struct Kind {
    std::string_view element;
    FindingCode const& code;
    std::string_view name;
    Offsets (*offsets)(Records const& records);
};
constexpr Kind kinds[] = {
    {"prettyName", codes::beyondPrettyName, "name for people", offsetsOfNames},
    {"chain", codes::beyondChain, "chain", offsetsOf<&Records::chains>},
    {"actuator", codes::beyondActuator, "coupled actuator", offsetsOf<&Records::actuators>},
    {"wheel", codes::beyondWheel, "wheel", offsetsOf<&Records::wheels>},
    {"posture", codes::beyondPosture, "posture", offsetsOf<&Records::postures>},
    {"transmission", codes::beyondTransmission, "transmission", offsetsOf<&Records::transmissions>},
    {"extension", codes::beyondExtension, "extension", offsetsOf<&Records::extensions>},
};

FindingCode const& codeOfPart(std::string_view element)
{
    return element == "sensor" ? codes::beyondSensor : element == "joint" ? codes::beyondJoint : codes::beyondRoot;
}

}  // namespace

void noteBeyondUrdf(Native::Amendment const& amendment, Records const& records, Diagnostics& diagnostics)
{
    for (Native::Amendment::Part const& part : amendment.parts) {
        diagnostics.report(part.textOffset, codeOfPart(part.element),
                           "URDF cannot say all of this " + std::string(part.element) +
                               "; kept beside it, for our own reader: " + part.said + ".");
    }
    for (Kind const& kind : kinds) {
        auto const& lists = amendment.lists;
        if (std::find(lists.begin(), lists.end(), kind.element) == lists.end()) {
            continue;
        }
        for (TextOffset const offset : kind.offsets(records)) {
            diagnostics.report(offset, kind.code,
                               "URDF cannot say this " + std::string(kind.name) + ": it is kept for our own reader.");
        }
    }
}

}  // namespace Varo::Model::Urdf
