#include "urdf/tree.hpp"

#include <algorithm>
#include <string>

#include "urdf/urdf_codes.hpp"
#include "xml/node_offset.hpp"

namespace Varo::Model::Urdf {

namespace {

class Connector {
public:
    Connector(Description& description, Diagnostics& diagnostics) : _description(description), _diagnostics(diagnostics)
    {}

    /// Whether every name could be followed.
    bool connectAll();
    void findRoot(pugi::xml_node robot);
    void reportCycles();

private:
    void index();
    void add(std::unordered_map<std::string_view, std::size_t>& table, std::string_view name, std::size_t place,
             pugi::xml_node node);
    std::size_t linkOf(Joint const& joint, pugi::xml_node element, char const* role);
    void attach(std::size_t joint);
    std::size_t linkAbove(std::size_t link) const;
    void reportCycle(std::size_t link);

    Description& _description;
    Diagnostics& _diagnostics;
    bool _whole = true;
};

void Connector::add(std::unordered_map<std::string_view, std::size_t>& table, std::string_view name, std::size_t place,
                    pugi::xml_node node)
{
    if (name.empty()) {  // reported where it was read
        _whole = false;
    } else if (!table.try_emplace(name, place).second) {
        _diagnostics.report(at(node, "name"), codes::duplicateName,
                            "There is another " + std::string(node.name()) + " " + quoted(name) + " before this one.");
        _whole = false;
    }
}

void Connector::index()
{
    auto& [links, joints, linkByName, jointByName, root] = _description;
    linkByName.reserve(links.size());
    jointByName.reserve(joints.size());
    for (std::size_t i = 0; i < links.size(); ++i) {
        add(linkByName, links[i].name, i, links[i].node);
    }
    for (std::size_t i = 0; i < joints.size(); ++i) {
        add(jointByName, joints[i].config.name, i, joints[i].node);
    }
}

std::size_t Connector::linkOf(Joint const& joint, pugi::xml_node element, char const* role)
{
    pugi::xml_attribute const name = element.attribute("link");
    if (!name) {
        _diagnostics.report(at(element ? element : joint.node), codes::unattachedJoint,
                            "This joint does not say which link is its " + std::string(role) + ".",
                            "Write <" + std::string(role) + " link=\"...\"/>.");
        return none;
    }
    std::size_t const link = find(_description.linkByName, name.value());
    if (link == none) {
        _diagnostics.report(at(element, name), codes::unknownLink, "There is no link " + quoted(name.value()) + ".");
    }
    return link;
}

void Connector::attach(std::size_t index)
{
    Joint& joint = _description.joints[index];
    joint.parentLink = linkOf(joint, joint.parent, "parent");
    joint.childLink = linkOf(joint, joint.child, "child");
    if (joint.parentLink == none || joint.childLink == none) {
        _whole = false;
    }
    if (joint.childLink == none) {
        return;
    }
    Link& child = _description.links[joint.childLink];
    if (child.parentJoint == none) {
        child.parentJoint = index;
        return;
    }
    _diagnostics.report(at(joint.child, "link"), codes::twoParents,
                        "The link " + quoted(child.name) + " is already the child of the joint " +
                            quoted(_description.joints[child.parentJoint].config.name) + ".");
    _whole = false;
}

bool Connector::connectAll()
{
    index();
    for (std::size_t i = 0; i < _description.joints.size(); ++i) {
        attach(i);
    }
    return _whole;
}

void Connector::findRoot(pugi::xml_node robot)
{
    if (_description.links.empty()) {
        _diagnostics.report(at(robot), codes::noLink, "This robot has no link.");
        return;
    }
    for (std::size_t i = 0; i < _description.links.size(); ++i) {
        Link const& link = _description.links[i];
        if (link.parentJoint != none) {
            continue;
        }
        if (_description.root == none) {
            _description.root = i;
        } else {
            _diagnostics.report(at(link.node), codes::severalRoots,
                                "Neither this link nor the link " + quoted(_description.links[_description.root].name) +
                                    " is the child of a joint.",
                                "Let a joint attach it to the robot.");
        }
    }
}

/// Every link has one parent at most, so that going up from it ends at a root, or goes round in a circle.
void Connector::reportCycles()
{
    std::vector<std::size_t> walkOf(_description.links.size(), none);
    for (std::size_t start = 0; start < walkOf.size(); ++start) {
        std::size_t link = start;
        while (link != none && walkOf[link] == none) {
            walkOf[link] = start;
            link = linkAbove(link);
        }
        if (link != none && walkOf[link] == start) {
            reportCycle(link);
        }
    }
}

std::size_t Connector::linkAbove(std::size_t link) const
{
    std::size_t const joint = _description.links[link].parentJoint;
    return joint == none ? none : _description.joints[joint].parentLink;
}

/// At the joint of the cycle that stands last in the text: the one that closes it.
void Connector::reportCycle(std::size_t link)
{
    std::size_t last = 0;
    std::size_t step = link;
    do {
        last = std::max(last, _description.links[step].parentJoint);
        step = linkAbove(step);
    } while (step != link);
    Joint const& joint = _description.joints[last];
    _diagnostics.report(at(joint.node), codes::jointCycle,
                        "This joint closes a cycle: it hangs on the link " +
                            quoted(_description.links[joint.parentLink].name) + ", which itself hangs on this joint.");
}

}  // namespace

void connect(Description& description, pugi::xml_node robot, Diagnostics& diagnostics)
{
    Connector connector(description, diagnostics);
    if (connector.connectAll()) {
        connector.findRoot(robot);
    }
    connector.reportCycles();
}

ChildJoints::ChildJoints(Description const& description)
    : _begins(description.links.size() + 1, 0), _joints(description.joints.size())
{
    for (Joint const& joint : description.joints) {
        ++_begins[joint.parentLink + 1];
    }
    for (std::size_t link = 1; link < _begins.size(); ++link) {
        _begins[link] += _begins[link - 1];
    }
    std::vector<std::size_t> next = _begins;
    for (std::size_t i = 0; i < description.joints.size(); ++i) {
        _joints[next[description.joints[i].parentLink]++] = i;
    }
}

}  // namespace Varo::Model::Urdf
