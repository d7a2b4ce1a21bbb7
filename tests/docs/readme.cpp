// The shorter snippets of the README, which a test looks for here.
#include <iostream>

#include "sim/frame.hpp"
#include "sim/kinematics.hpp"
#include "sim/model.hpp"

namespace {

void move(Sim::Model const& model)
{
    Sim::Kinematics const kinematics(model);
    Sim::Configuration configuration(kinematics, "Crouch");  // a posture of the description
    configuration.set("LElbowBend", -0.6);  // rad
    auto const pose = kinematics.pose(configuration, kinematics.frame("LWristTwistLink"));
    std::cout << "The hand is at x = " << pose.position()[0] << " m\n";
}

void loadUrdf()
{
    Sim::Model const model("robots/mobile_arm.urdf");
    auto const* link = model.link("wrist_rollLink");
    auto const pose = Sim::Frame::globalPosition(link->frame());
    std::cout << "The wrist is at x = " << pose(0, 3) << " m\n";
}

}  // namespace

int main()
{
    move(Sim::Model("robots/humanoid.xml"));
    loadUrdf();
}
