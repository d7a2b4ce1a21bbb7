// The snippets of docs/coming-from-urdfdom.md, which a test looks for here.
#include <cassert>
#include <exception>
#include <iostream>
#include <string>

#include "sim/frame.hpp"
#include "sim/kinematics.hpp"
#include "sim/model.hpp"
#include "sim/shape.hpp"

namespace {

void load(std::string const& file)
{
    Sim::Model const model(file);  // throws what is wrong with it
    std::cout << model.name() << ": " << model.links().size() << " links from " << model.rootLink()->descriptionName()
              << " on\n";
}

void walk(Sim::Model const& model)
{
    for (Sim::Joint const* joint : model.link("carriage")->childrenJoints()) {
        std::cout << joint->name() << " moves " << joint->childLink()->descriptionName() << '\n';
    }
    Sim::Link const* parent = model.link("carriage")->parentJoint()->parentLink();
    std::cout << "carriage sits on " << parent->descriptionName() << '\n';
}

void place(Sim::Model const& model)
{
    // What urdfdom calls parent_to_joint_origin_transform: the link in the frame of the link before it.
    Sim::Joint const* joint = model.joint("lift");
    auto const inParent = joint->frame()->localPosition() * joint->childLink()->frame()->localPosition();
    // What it calls axis, in the frame of the link that the joint moves.
    auto const axis = joint->childLink()->frame()->localPosition().inverse();
    std::cout << joint->name() << " is " << inParent(2, 3) << " m up, along " << axis(0, 2) << ' ' << axis(1, 2) << ' '
              << axis(2, 2) << ", from " << joint->limits().lower << " to " << joint->limits().upper << " m\n";
}

void shapes(Sim::Model const& model)
{
    for (Sim::Visual const& visual : model.link("carriage")->visuals()) {
        if (visual.geometry.type == Varo::Model::GeometryType::box) {
            std::cout << "a box of " << visual.geometry.size.z << " m, " << visual.material->name << '\n';
        }
    }
}

void move(Sim::Model const& model)
{
    Sim::Kinematics const kinematics(model);
    Sim::Configuration configuration(kinematics);
    configuration.set("lift", 0.25);
    std::cout << "carriage at z = " << kinematics.pose(configuration, kinematics.frame("carriage")).position()[2]
              << " m\n";
}

}  // namespace

int main(int count, char** arguments)
{
    assert(count == 2);
    std::string const file = arguments[count - 1];
    load(file);
    Sim::Model const model(file);
    walk(model);
    place(model);
    shapes(model);
    move(model);
}
