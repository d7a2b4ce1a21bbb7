#include "native/chain_places.hpp"

#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "native/native_codes.hpp"
#include "varo/model/name_hash.hpp"
#include "xml/document.hpp"

namespace Varo::Model::Native {

namespace {

/// How many places each name brings with it, by the actuators that are attached to it, and those that are attached to
/// them.
class Attached {
public:
    explicit Attached(Table<ActuatorConfig> const& actuators)
    {
        for (ActuatorConfig const& actuator : actuators) {
            ++_of[actuator.parentJoint].open;
        }
        std::vector<ActuatorConfig const*> complete;
        for (ActuatorConfig const& actuator : actuators) {
            if (_of.count(actuator.name) == 0) {  // nothing is attached to it
                complete.push_back(&actuator);
            }
        }
        while (!complete.empty()) {
            ActuatorConfig const& actuator = *complete.back();
            complete.pop_back();
            Entry& parent = _of[actuator.parentJoint];
            parent.places += placesOf(actuator);
            if (--parent.open == 0) {
                if (ActuatorConfig const* next = actuators.find(actuator.parentJoint)) {
                    complete.push_back(next);
                }
            }
        }
    }

    std::uint64_t to(std::string_view name) const
    {
        auto const found = _of.find(name);
        return found == _of.end() ? 0 : found->second.places;
    }

private:
    struct Entry {
        std::uint64_t places = 0;
        std::size_t open = 0;  ///< attached actuators that are not summed up yet; for ever, in a cycle
    };

    std::uint64_t placesOf(ActuatorConfig const& actuator) const
    {
        std::uint64_t places = 1 + to(actuator.name);
        for (auto const& group : actuator.jointGroups) {
            places += group.size();
        }
        return places;
    }

    std::unordered_map<std::string_view, Entry, NameHash> _of;
};

}  // namespace

void checkChainPlaces(Records const& robot, XmlNode root, Diagnostics& diagnostics)
{
    std::uint64_t const most =
        mostChainPlaces + chainPlacesOfRecord * (robot.joints.size() + robot.chains.size() + robot.actuators.size() +
                                                 robot.subActuators.size());
    Attached const attached(robot.actuators);
    std::uint64_t places = 0;
    for (ChainConfig const& chain : robot.chains) {
        for (std::string const& joint : chain.jointNames) {
            places += 1 + attached.to(joint);
        }
    }
    if (places > most) {
        diagnostics.report(at(root), codes::tooManyChainPlaces,
                           "The chains list " + std::to_string(places) +
                               " places of joints and what is attached to them, and may list " + std::to_string(most) +
                               ".",
                           "List each joint in one chain only.");
    }
}

}  // namespace Varo::Model::Native
