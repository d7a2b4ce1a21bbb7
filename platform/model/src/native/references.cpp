#include "native/references.hpp"

#include <string>
#include <string_view>
#include <unordered_set>

#include "native/name_index.hpp"
#include "native/reference_loops.hpp"
#include "xml/node_offset.hpp"

namespace Varo::Model::Native {

namespace {

/// One walk over the elements that hold references. An element that lacks a name or a reference has been reported.
class ReferenceCheck {
public:
    explicit ReferenceCheck(ElementReader& reader)
        : _diagnostics(reader.diagnostics()),
          _robot(reader.robot()),
          _names(reader.names()),
          _rootLink(_robot.root.name + "Link")
    {
        _names.mark(_robot.root.name, NameIndex::root);
        _names.mark(_rootLink, NameIndex::rootLink);
    }

    void check(pugi::xml_node root)
    {
        for (pugi::xml_node const chain : root.children("chain")) {
            checkChain(chain);
        }
        markActuatorsOnChains();
        for (pugi::xml_node const node : root.children()) {
            std::string_view const element = node.name();
            if (element == "joint") {
                checkJoint(node);
            } else if (element == "actuator") {
                checkActuator(node);
            } else if (element == "wheel") {
                checkName(node, "parent", joints | subJoints, "The wheel's parent", "a joint");
            } else if (element == "sensor") {
                checkName(node, "parent", carriers, "The sensor's parent",
                          "a joint, a wheel or the root, on which models therefore put it");
            } else if (element == "posture") {
                checkPosture(node);
            }
        }
    }

private:
    static constexpr unsigned joints = NameIndex::joint;
    static constexpr unsigned subJoints = NameIndex::subJoint;
    static constexpr unsigned carriers = joints | subJoints | NameIndex::wheel | NameIndex::root | NameIndex::rootLink;

    void checkChain(pugi::xml_node node)
    {
        checkName(node, "parent", joints | subJoints | NameIndex::root, "The chain's parent", "a joint or the root");
        for (pugi::xml_node const reference : node.children("jointRef")) {
            std::string_view const name = reference.attribute("name").value();
            if (name.empty()) {
                continue;
            }
            unsigned const before = _names.mark(name, NameIndex::inChain | NameIndex::hasAngle);
            if ((before & joints) == 0) {
                reportDangling(reference, "name", joints, "The chain's joint", "a joint");
            }
            if ((before & NameIndex::inChain) != 0) {
                _diagnostics.report(at(reference, "name"), codes::jointInTwoChains,
                                    "The joint " + quoted(name) + " already stands in a chain.");
            } else if ((before & joints) != 0) {
                ++_jointsInChains;
            }
        }
    }

    void markActuatorsOnChains()
    {
        for (ActuatorConfig const& actuator : _robot.actuators) {
            if ((_names.kinds(actuator.parentJoint) & NameIndex::inChain) != 0) {
                _names.mark(actuator.name, NameIndex::hasAngle);
            }
        }
    }

    void checkJoint(pugi::xml_node node)
    {
        bool const allInChains = _jointsInChains == _robot.joints.size();
        char const* const name = node.attribute("name").value();
        if (!allInChains && (_names.kinds(name) & (joints | NameIndex::inChain)) == joints) {
            _diagnostics.report(at(node), codes::jointInNoChain,
                                "The joint " + quoted(name) + " stands in no chain, so that no model will contain it.",
                                "Add a jointRef to a chain.");
        }
        checkName(node.child("mirror"), "name", joints | subJoints, "The joint's mirror", "a joint");
    }

    void checkActuator(pugi::xml_node node)
    {
        checkName(node, "parent", joints | NameIndex::actuator, "The actuator's parent", "a joint or an actuator");
        checkName(node.child("mirror"), "name", NameIndex::actuator, "The actuator's mirror", "an actuator");
        for (pugi::xml_node const group : node.children("group")) {
            for (pugi::xml_node const follower : group.children("jointRef")) {
                checkName(follower, "name", joints, "The group's joint", "a joint");
            }
        }
    }

    void checkPosture(pugi::xml_node node)
    {
        for (pugi::xml_node const angle : node.children("angle")) {
            char const* const name = angle.attribute("of").value();
            unsigned const kinds = _names.kinds(name);
            if (*name != 0 && (kinds & NameIndex::hasAngle) == 0) {
                bool const isMisspelt = kinds == 0;
                _diagnostics.report(at(angle, "of"), codes::angleOfUnknown,
                                    quoted(name) + " has no angle: it is no joint of a chain and no actuator on one.",
                                    isMisspelt ? _names.suggestion(name, NameIndex::hasAngle) : "");
            }
        }
    }

    void checkName(pugi::xml_node node, char const* attribute, unsigned kinds, char const* subject, char const* wanted)
    {
        char const* const name = node.attribute(attribute).value();
        if (*name != 0 && (_names.kinds(name) & kinds) == 0) {
            reportDangling(node, attribute, kinds, subject, wanted);
        }
    }

    void reportDangling(pugi::xml_node node, char const* attribute, unsigned kinds, char const* subject,
                        char const* wanted)
    {
        char const* const name = node.attribute(attribute).value();
        _diagnostics.report(at(node, attribute), codes::danglingReference,
                            std::string(subject) + ", " + quoted(name) + ", is not the name of " + wanted + ".",
                            _names.suggestion(name, kinds));
    }

    Diagnostics& _diagnostics;
    Records const& _robot;
    NameIndex& _names;
    std::string _rootLink;
    std::size_t _jointsInChains = 0;  ///< of those that the robot has, each counted once
};

/// Postures and the angles of one have no table that would notice the second of a name.
void checkNamesDiffer(pugi::xml_node parent, char const* element, char const* attribute, ElementReader& reader)
{
    std::unordered_set<std::string_view> names;
    for (pugi::xml_node const node : parent.children(element)) {
        std::string_view const name = node.attribute(attribute).value();
        if (!name.empty() && !names.insert(name).second) {
            reader.reportDuplicate(node, attribute);
        }
    }
}

}  // namespace

void checkReferences(pugi::xml_node root, ElementReader& reader)
{
    checkNamesDiffer(root, "posture", "name", reader);
    for (pugi::xml_node const posture : root.children("posture")) {
        checkNamesDiffer(posture, "angle", "of", reader);
    }
    checkActuatorLoops(root, reader);
    if (!reader.definitionsLost()) {
        ReferenceCheck(reader).check(root);
        checkChainLoops(root, reader);
    }
}

}  // namespace Varo::Model::Native
