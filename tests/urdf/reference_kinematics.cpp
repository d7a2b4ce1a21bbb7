#include "reference_kinematics.hpp"

#include <algorithm>
#include <cmath>
#include <locale>
#include <sstream>
#include <vector>

#include <pugixml.hpp>

namespace UrdfTest {

namespace {

using Pose = std::array<double, 16>;

Pose multiply(Pose const& a, Pose const& b)
{
    Pose c = {};
    for (std::size_t i = 0; i < 64; ++i) {
        c[i / 16 * 4 + i % 4] += a[i / 16 * 4 + i / 4 % 4] * b[i / 4 % 4 * 4 + i % 4];
    }
    return c;
}

std::array<double, 3> threeNumbers(char const* text)
{
    std::istringstream stream(text);
    stream.imbue(std::locale::classic());
    std::array<double, 3> values = {};
    stream >> values[0] >> values[1] >> values[2];
    return values;
}

Pose rotationAbout(std::size_t axis, double angle)
{
    Pose turn = ReferenceLink().pose;
    std::size_t const u = (axis + 1) % 3;
    std::size_t const v = (axis + 2) % 3;
    turn[u * 5] = turn[v * 5] = std::cos(angle);
    turn[u * 4 + v] = -std::sin(angle);
    turn[v * 4 + u] = std::sin(angle);
    return turn;
}

Pose originOf(pugi::xml_node element)
{
    pugi::xml_node const origin = element.child("origin");
    auto const rpy = threeNumbers(origin.attribute("rpy").value());
    Pose pose = multiply(rotationAbout(2, rpy[2]), multiply(rotationAbout(1, rpy[1]), rotationAbout(0, rpy[0])));
    auto const xyz = threeNumbers(origin.attribute("xyz").value());
    for (std::size_t i = 0; i < 3; ++i) {
        pose[i * 4 + 3] = xyz[i];
    }
    return pose;
}

void readInertial(pugi::xml_node inertial, ReferenceLink& link)
{
    pugi::xml_node const inertia = inertial.child("inertia");
    Pose const turn = originOf(inertial);
    Pose own = {};
    char const* const entries[] = {"ixx", "ixy", "ixz", "ixy", "iyy", "iyz", "ixz", "iyz", "izz"};
    for (std::size_t i = 0; i < 9; ++i) {
        own[i / 3 * 4 + i % 3] = threeNumbers(inertia.attribute(entries[i]).value())[0];
    }
    Pose back = turn;
    for (std::size_t i = 0; i < 9; ++i) {
        back[i / 3 * 4 + i % 3] = turn[i % 3 * 4 + i / 3];
    }
    Pose const turned = multiply(multiply(turn, own), back);
    for (std::size_t i = 0; i < 9; ++i) {
        link.inertia[i] = turned[i / 3 * 4 + i % 3];
    }
    link.mass = threeNumbers(inertial.child("mass").attribute("value").value())[0];
    link.centerOfMass = {turn[3], turn[7], turn[11]};
}

}  // namespace

ReferenceRobot computeReference(std::string const& file)
{
    pugi::xml_document document;
    document.load_file(file.c_str());
    ReferenceRobot robot;
    std::multimap<std::string, pugi::xml_node> jointsByParent;
    for (pugi::xml_node link : document.child("robot").children("link")) {
        readInertial(link.child("inertial"), robot.links[link.attribute("name").value()]);
    }
    for (pugi::xml_node joint : document.child("robot").children("joint")) {
        jointsByParent.emplace(joint.child("parent").attribute("link").value(), joint);
        robot.links[joint.child("child").attribute("link").value()].parentJoint = joint.attribute("name").value();
    }
    std::vector<std::string> pending;
    for (auto const& [name, link] : robot.links) {
        if (link.parentJoint.empty()) {
            pending.push_back(name);
        }
    }
    while (!pending.empty()) {
        std::string const parent = pending.back();
        pending.pop_back();
        auto const [first, last] = jointsByParent.equal_range(parent);
        for (auto joint = first; joint != last; ++joint) {
            std::string const child = joint->second.child("child").attribute("link").value();
            Pose& pose = robot.links[child].pose;
            pose = multiply(robot.links[parent].pose, originOf(joint->second));
            robot.size = std::max(robot.size, std::hypot(pose[3], pose[7], pose[11]));
            pending.push_back(child);
        }
    }
    return robot;
}

}  // namespace UrdfTest
