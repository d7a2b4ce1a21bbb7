#include "flat_robot.hpp"

#include <charconv>
#include <cmath>
#include <cstddef>

#include <pugixml.hpp>

namespace Bench {

namespace {

template <std::size_t count>
std::array<double, count> numbersOf(pugi::xml_attribute attribute)
{
    std::array<double, count> numbers = {};
    std::string_view text = attribute.value();
    for (double& number : numbers) {
        while (!text.empty() && text.front() == ' ') {
            text.remove_prefix(1);
        }
        auto const end = std::from_chars(text.data(), text.data() + text.size(), number).ptr;
        text.remove_prefix(static_cast<std::size_t>(end - text.data()));
    }
    return numbers;
}

double numberOf(pugi::xml_attribute attribute)
{
    return numbersOf<1>(attribute)[0];
}

FlatFrame frameOf(pugi::xml_node origin)
{
    auto const [roll, pitch, yaw] = numbersOf<3>(origin.attribute("rpy"));
    double const sr = std::sin(roll);
    double const cr = std::cos(roll);
    double const sp = std::sin(pitch);
    double const cp = std::cos(pitch);
    double const sy = std::sin(yaw);
    double const cy = std::cos(yaw);
    FlatFrame frame;
    frame.position = numbersOf<3>(origin.attribute("xyz"));
    frame.rotation = {{{cy * cp, cy * sp * sr - sy * cr, cy * sp * cr + sy * sr},
                       {sy * cp, sy * sp * sr + cy * cr, sy * sp * cr - cy * sr},
                       {-sp, cp * sr, cp * cr}}};
    return frame;
}

FlatLink readLink(pugi::xml_node node)
{
    FlatLink link;
    link.name = node.attribute("name").value();
    pugi::xml_node const inertial = node.child("inertial");
    link.mass = numberOf(inertial.child("mass").attribute("value"));
    link.centerOfMass = numbersOf<3>(inertial.child("origin").attribute("xyz"));
    std::size_t entry = 0;
    for (pugi::xml_attribute const attribute : inertial.child("inertia").attributes()) {
        link.inertia[entry] = numberOf(attribute);
        entry = (entry + 1) % link.inertia.size();
    }
    pugi::xml_node const visual = node.child("visual");
    pugi::xml_node const solid = visual.child("geometry").first_child();
    link.visual = frameOf(visual.child("origin"));
    link.mesh = solid.attribute("filename").value();
    link.size = numbersOf<3>(solid.attribute("size"));
    return link;
}

FlatJoint readJoint(pugi::xml_node node)
{
    FlatJoint joint;
    joint.name = node.attribute("name").value();
    joint.origin = frameOf(node.child("origin"));
    joint.axis = numbersOf<3>(node.child("axis").attribute("xyz"));
    pugi::xml_node const limit = node.child("limit");
    joint.limits = {numberOf(limit.attribute("lower")), numberOf(limit.attribute("upper")),
                    numberOf(limit.attribute("effort")), numberOf(limit.attribute("velocity"))};
    return joint;
}

template <class Element>
bool indexNames(std::vector<Element> const& elements, std::unordered_map<std::string_view, int>& index)
{
    index.reserve(elements.size());
    for (Element const& element : elements) {
        index.emplace(element.name, static_cast<int>(&element - elements.data()));
    }
    return index.size() == elements.size();
}

int find(std::unordered_map<std::string_view, int> const& index, pugi::xml_attribute name)
{
    auto const found = index.find(name.value());
    return found == index.end() ? -1 : found->second;
}

/// False when a joint lacks a link, or shares its child.
bool attachJoints(FlatRobot& robot, std::vector<pugi::xml_node> const& nodes)
{
    for (std::size_t i = 0; i < nodes.size(); ++i) {
        FlatJoint& joint = robot.joints[i];
        joint.parent = find(robot.linkByName, nodes[i].child("parent").attribute("link"));
        joint.child = find(robot.linkByName, nodes[i].child("child").attribute("link"));
        if (joint.parent < 0 || joint.child < 0 ||
            robot.links[static_cast<std::size_t>(joint.child)].parentJoint >= 0) {
            return false;
        }
        robot.links[static_cast<std::size_t>(joint.child)].parentJoint = static_cast<int>(i);
    }
    return true;
}

/// Walks along lists of the joints of each link, which begin at `first` and go on at `next`.
void orderOutward(FlatRobot& robot)
{
    std::vector<int> first(robot.links.size(), -1);
    std::vector<int> next(robot.joints.size(), -1);
    for (std::size_t i = robot.joints.size(); i-- > 0;) {
        int& head = first[static_cast<std::size_t>(robot.joints[i].parent)];
        next[i] = head;
        head = static_cast<int>(i);
    }
    auto const addJointsOf = [&](std::size_t link) {
        for (int joint = first[link]; joint >= 0; joint = next[static_cast<std::size_t>(joint)]) {
            robot.outward.push_back(joint);
        }
    };
    robot.outward.reserve(robot.joints.size());
    for (std::size_t link = 0; link < robot.links.size(); ++link) {
        if (robot.links[link].parentJoint < 0) {
            addJointsOf(link);
        }
    }
    for (std::size_t i = 0; i < robot.outward.size(); ++i) {
        addJointsOf(static_cast<std::size_t>(robot.joints[static_cast<std::size_t>(robot.outward[i])].child));
    }
}

}  // namespace

std::optional<FlatRobot> readFlat(std::string const& urdf)
{
    pugi::xml_document document;
    if (!document.load_buffer(urdf.data(), urdf.size())) {
        return {};
    }
    std::optional<FlatRobot> robot(std::in_place);
    std::vector<pugi::xml_node> nodes;
    for (pugi::xml_node const node : document.document_element().children()) {
        if (std::string_view(node.name()) == "link") {
            robot->links.push_back(readLink(node));
        } else if (std::string_view(node.name()) == "joint") {
            robot->joints.push_back(readJoint(node));
            nodes.push_back(node);
        }
    }
    bool const isWhole = indexNames(robot->links, robot->linkByName) && indexNames(robot->joints, robot->jointByName) &&
                         attachJoints(*robot, nodes);
    if (!isWhole) {
        return {};
    }
    orderOutward(*robot);
    return robot;
}

}  // namespace Bench
