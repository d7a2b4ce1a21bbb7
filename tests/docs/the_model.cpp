// The snippets of docs/the-model.md, docs/moving-the-robot.md and docs/meshes.md, which a test looks for here.
#include <iostream>
#include <vector>

#include "sim/kinematics.hpp"
#include "sim/model.hpp"
#include "varo/math/rpy.hpp"
#include "varo/model/mesh_search.hpp"

namespace {

void ask()
{
    Sim::Model const model("robots/humanoid.xml");
    float total = 0.0F;
    for (Sim::Link const* link : model.links()) {
        Sim::MassData const& mass = *link->mass();  // zeros for what the description leaves out
        std::cout << link->name() << ": " << mass.mass() << " kg, centre at z = " << mass.CoM().z << " m\n";
        total += mass.mass();
    }
    std::cout << "in all " << total << " kg\n";

    for (Sim::Joint const* joint : model.link("PelvisLink")->childrenJoints()) {
        std::cout << joint->name() << " moves " << joint->childLink()->name() << " from " << joint->limits().lower
                  << " to " << joint->limits().upper << " rad\n";
    }

    Sim::Frame const* frame = model.link("LWristTwistLink")->frame();
    Varo::Math::Transform const inParent = frame->localPosition();
    Varo::Math::Transform const inRoot = Sim::Frame::globalPosition(frame);
    std::cout << "in " << frame->parentFrame()->name() << " at x = " << inParent(0, 3)
              << ", in the root at x = " << inRoot(0, 3) << " m\n";

    for (Sim::Sensor const* sensor : model.sensors()) {
        std::cout << sensor->name() << " is on " << sensor->frame()->parentFrame()->name() << '\n';
    }
    Sim::CameraSensor const* camera = model.cameraSensor("FaceCamera");
    std::cout << camera->name() << ": " << camera->width() << " by " << camera->height() << " pixels\n";
    if (Sim::AngleActuator const* motor = model.angleActuator("LElbowBend")) {
        std::cout << motor->name() << " is commanded under " << motor->dcmKeys().front() << '\n';
    }

    for (Sim::JointGroup const* group : model.jointGroups()) {
        std::cout << group->name() << " has " << group->joints().size() << " joints\n";
    }
    if (Sim::JointSymmetry const* symmetry = model.jointSymmetry("LElbowBend")) {
        std::cout << "LElbowBend mirrors " << symmetry->symmetricJoint(model.joint("LElbowBend"))->name() << '\n';
    }

    auto const records = Varo::Model::recordsOf(model.robot());
    for (Varo::Model::TransmissionConfig const& driven : records->transmissions) {
        std::cout << driven.actuator << " drives " << driven.joint << '\n';
    }
    for (Varo::Model::PostureConfig const& posture : model.postures()) {
        std::cout << posture.name << " states " << posture.angles.size() << " joints\n";
    }
    Varo::Model::Place const place = model.place(*model.joint("LElbowBend"));
    std::cout << "LElbowBend is stated in line " << place.line << ", column " << place.column << '\n';
}

void move()
{
    Sim::Model const model("robots/humanoid.xml");
    Sim::Kinematics const kinematics(model);  // once

    Sim::Configuration configuration(kinematics, "Crouch");  // all joints as in this posture
    configuration.set("LElbowBend", -0.6);  // rad
    Sim::Pose const wrist = kinematics.pose(configuration, kinematics.frame("LWristTwistLink"));
    std::vector<Sim::Pose> const all = kinematics.linkPoses(configuration);  // in the order of model.links()
    Sim::MassProperties const body = kinematics.massProperties(configuration);

    Sim::Vector3 const at = wrist.position();
    Varo::Math::Rpy const turned = Varo::Math::rpyOf(wrist.toTransform());
    std::cout << "at " << at[0] << ' ' << at[1] << ' ' << at[2] << " m, turned by " << turned.yaw << " rad about z\n";

    std::vector<Sim::Pose> poses(kinematics.linkCount());
    kinematics.linkPoses(configuration, poses.data(), poses.size());

    std::cout << "The wrist is at x = " << wrist.position()[0] << " m, one of " << all.size() << " links of "
              << body.mass << " kg\n";
}

void search()
{
    Varo::Model::MeshFolders folders = Varo::Model::meshFoldersFromEnvironment();
    folders.description = "robots";  // the folder of the description
    folders.packages["arm_meshes"] = "/data/arm";  // and what the environment does not know
    Varo::Model::MeshSearch const search(folders);
    Varo::Model::MeshFile const file = search.find("package://arm_meshes/base.stl");
    std::cout << (file.path.empty() ? file.reason : file.path) << '\n';
}

}  // namespace

int main()
{
    ask();
    move();
    search();
}
