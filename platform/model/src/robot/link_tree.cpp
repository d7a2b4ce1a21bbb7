#include "robot/link_tree.hpp"

#include <algorithm>
#include <string>

#include "robot/link_tree_codes.hpp"

namespace Varo::Model {

namespace {

class Connector {
public:
    Connector(LinkTree& tree, Diagnostics& diagnostics) : _tree(tree), _diagnostics(diagnostics) {}

    /// Whether every name could be followed.
    bool connectAll();
    void findRoot();
    void reportCycles();

private:
    void index();
    void add(std::unordered_map<std::string_view, std::size_t>& table, char const* kind, std::string_view name,
             std::size_t index, TextOffset place);
    std::size_t linkOf(Reference const& link);
    void attach(std::size_t joint);
    void reportCycle(Cycle const& links);

    LinkTree& _tree;
    Diagnostics& _diagnostics;
    bool _whole = true;
};

void Connector::add(std::unordered_map<std::string_view, std::size_t>& table, char const* kind, std::string_view name,
                    std::size_t index, TextOffset place)
{
    if (name.empty()) {
        _whole = false;
    } else if (!table.try_emplace(name, index).second) {
        _diagnostics.report(place, codes::duplicateName,
                            "There is another " + std::string(kind) + " " + quoted(name) + " before this one.");
        _whole = false;
    }
}

void Connector::index()
{
    _tree.linkByName.reserve(_tree.links.size());
    _tree.jointByName.reserve(_tree.joints.size());
    for (std::size_t i = 0; i < _tree.links.size(); ++i) {
        add(_tree.linkByName, "link", _tree.links[i].name, i, _tree.links[i].nameOffset);
    }
    for (std::size_t i = 0; i < _tree.joints.size(); ++i) {
        add(_tree.jointByName, "joint", _tree.joints[i].config.name, i, _tree.joints[i].nameOffset);
    }
}

std::size_t Connector::linkOf(Reference const& link)
{
    std::size_t const found = find(_tree.linkByName, link.name);
    if (found == none && link.offset.isKnown()) {
        _diagnostics.report(link.offset, codes::unknownLink, "There is no link " + quoted(link.name) + ".");
    }
    return found;
}

void Connector::attach(std::size_t index)
{
    Joint& joint = _tree.joints[index];
    joint.parentLink = linkOf(joint.parent);
    joint.childLink = linkOf(joint.child);
    if (joint.parentLink == none || joint.childLink == none) {
        _whole = false;
    }
    if (joint.childLink == none) {
        return;
    }
    Link& child = _tree.links[joint.childLink];
    if (child.parentJoint == none) {
        child.parentJoint = index;
        return;
    }
    _diagnostics.report(joint.child.offset, codes::twoParents,
                        "The link " + quoted(child.name) + " is already the child of the joint " +
                            quoted(_tree.joints[child.parentJoint].config.name) + ".");
    _whole = false;
}

bool Connector::connectAll()
{
    index();
    for (std::size_t i = 0; i < _tree.joints.size(); ++i) {
        attach(i);
    }
    return _whole;
}

void Connector::findRoot()
{
    if (_tree.links.empty()) {
        _diagnostics.report(_tree.textOffset, codes::noLink, "This robot has no link.");
        return;
    }
    for (std::size_t i = 0; i < _tree.links.size(); ++i) {
        Link const& link = _tree.links[i];
        if (link.parentJoint != none) {
            continue;
        }
        if (_tree.rootLink == none) {
            _tree.rootLink = i;
        } else {
            _diagnostics.report(link.textOffset, codes::severalRoots,
                                "Neither this link nor the link " + quoted(_tree.links[_tree.rootLink].name) +
                                    " is the child of a joint.",
                                "Let a joint attach it to the robot.");
        }
    }
}

void Connector::reportCycles()
{
    std::vector<std::size_t> parents;
    parents.reserve(_tree.links.size());
    for (Link const& link : _tree.links) {
        parents.push_back(link.parentJoint == none ? none : _tree.joints[link.parentJoint].parentLink);
    }
    for (Cycle const& links : findCycles(parents)) {
        reportCycle(links);
    }
}

/// At the joint that stands last in the text: the one that closes the cycle.
void Connector::reportCycle(Cycle const& links)
{
    std::size_t last = 0;
    for (std::size_t const link : links) {
        last = std::max(last, _tree.links[link].parentJoint);
    }
    Joint const& joint = _tree.joints[last];
    _diagnostics.report(joint.config.textOffset, codes::jointCycle,
                        "This joint closes a cycle: its parent link " + quoted(_tree.links[joint.parentLink].name) +
                            " is itself moved by this joint.");
}

}  // namespace

void connect(LinkTree& tree, Diagnostics& diagnostics)
{
    Connector connector(tree, diagnostics);
    if (connector.connectAll()) {
        connector.findRoot();
    }
    connector.reportCycles();
}

}  // namespace Varo::Model
