#include "native/reference_loops.hpp"

#include <algorithm>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

#include "xml/node_offset.hpp"

namespace Varo::Model::Native {

namespace {

/// Things each of which hangs on at most one other.
struct Hanging {
    static constexpr std::size_t nothing = static_cast<std::size_t>(-1);

    std::vector<pugi::xml_node> nodes;
    std::vector<std::size_t> parents;  ///< by index; `nothing` for those that hang on none of them
};

/// One node of every circle, the first in the text. Each thing is visited once.
std::vector<pugi::xml_node> findCircles(Hanging const& hanging)
{
    std::vector<pugi::xml_node> circles;
    std::vector<std::size_t> visitedFrom(hanging.nodes.size(), Hanging::nothing);
    for (std::size_t start = 0; start < hanging.nodes.size(); ++start) {
        std::size_t at = start;
        while (at != Hanging::nothing && visitedFrom[at] == Hanging::nothing) {
            visitedFrom[at] = start;
            at = hanging.parents[at];
        }
        if (at == Hanging::nothing || visitedFrom[at] != start) {
            continue;
        }
        std::size_t first = at;
        for (std::size_t next = hanging.parents[at]; next != at; next = hanging.parents[next]) {
            first = std::min(first, next);
        }
        circles.push_back(hanging.nodes[first]);
    }
    return circles;
}

using Indices = std::unordered_map<std::string_view, std::size_t>;

/// `bearers` tells which of the nodes bears a name.
Hanging hangOnParents(std::vector<pugi::xml_node> nodes, Indices const& bearers)
{
    Hanging hanging;
    for (pugi::xml_node const node : nodes) {
        std::string_view const name = node.attribute("parent").value();
        auto const parent = bearers.find(name);
        hanging.parents.push_back(name.empty() || parent == bearers.end() ? Hanging::nothing : parent->second);
    }
    hanging.nodes = std::move(nodes);
    return hanging;
}

}  // namespace

void checkActuatorLoops(pugi::xml_node root, ElementReader& reader)
{
    std::vector<pugi::xml_node> actuators;
    Indices byName;
    for (pugi::xml_node const actuator : root.children("actuator")) {
        if (actuator.attribute("name")) {
            byName.try_emplace(actuator.attribute("name").value(), actuators.size());
        }
        actuators.push_back(actuator);
    }
    for (pugi::xml_node const actuator : findCircles(hangOnParents(std::move(actuators), byName))) {
        reader.diagnostics().report(
            at(actuator, "parent"), codes::actuatorLoop,
            "The parents of the actuator " + quoted(actuator.attribute("name").value()) + " lead back to it.",
            "Hang one of them on a joint.");
    }
}

void checkChainLoops(pugi::xml_node root, ElementReader& reader)
{
    std::vector<pugi::xml_node> chains;
    Indices byJoint;  // of the joints that chains hang on
    for (pugi::xml_node const chain : root.children("chain")) {
        byJoint.try_emplace(chain.attribute("parent").value(), Hanging::nothing);
        chains.push_back(chain);
    }
    for (std::size_t i = 0; i < chains.size(); ++i) {
        for (pugi::xml_node const joint : chains[i].children("jointRef")) {
            auto const found = byJoint.find(joint.attribute("name").value());
            if (found != byJoint.end() && found->second == Hanging::nothing) {
                found->second = i;
            }
        }
    }
    for (pugi::xml_node const chain : findCircles(hangOnParents(std::move(chains), byJoint))) {
        reader.diagnostics().report(at(chain, "parent"), codes::chainLoop,
                                    "The parents of the chain " + quoted(chain.attribute("name").value()) +
                                        " lead back to it, so that it does not hang on the root.");
    }
}

}  // namespace Varo::Model::Native
