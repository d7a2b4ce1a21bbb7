#include <functional>
#include <sstream>
#include <string>
#include <thread>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "sim/actuator.hpp"
#include "sim/frame.hpp"
#include "sim/joint.hpp"
#include "sim/joint_symmetry.hpp"
#include "sim/kinematics.hpp"
#include "sim/link.hpp"
#include "sim/model.hpp"
#include "sim/motion_model.hpp"
#include "sim/sensor.hpp"
#include "varo/model/model_utils.hpp"

// What several threads do at once must come out as when one does it alone; ThreadSanitizer sees what luck hides.
namespace {

std::string const humanoid = std::string(VARO_SOURCE_DIR) + "/robots/humanoid.xml";

/// The action's result in each of several threads that run it at once.
std::vector<std::string> inThreads(std::function<std::string()> const& action)
{
    std::vector<std::string> results(8);
    std::vector<std::thread> threads;
    for (std::string& result : results) {
        threads.emplace_back([&result, &action] { result = action(); });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    return results;
}

/// All elements with their names and poses, and what the look-ups by name find.
std::string contentsOf(Sim::Model const& model)
{
    std::ostringstream out;
    out << model.name() << model.prettyName(0) << model.rootLink()->name() << '\n';
    auto const print = [&](auto const& elements) {
        for (auto const* const element : elements) {
            out << element->name() << testing::PrintToString(Sim::Frame::globalPosition(element->frame()).rows());
        }
    };
    print(model.links());
    print(model.joints());
    print(model.sensors());
    print(model.actuators());
    for (Sim::Link const* const link : model.links()) {
        out << (model.link(link->name()) == link) << (model.link(link->descriptionName()) == link);
    }
    for (Sim::Joint const* const joint : model.joints()) {
        out << (model.joint(joint->name()) == joint) << (model.jointSymmetry(joint->name()) != nullptr)
            << model.actuatorGroupsOfJoint(joint->name()).size() << joint->parentLink()->name() << '\n';
    }
    return out.str();
}

std::string contentsOf(Sim::MotionModel const& model)
{
    std::ostringstream out;
    for (std::string const& joint : model.jointNames()) {
        Varo::Math::Transform pose;
        std::string parent;
        float angle = 0.0F;
        out << joint << model.transformFromJointName(joint, pose, parent) << parent << pose(0, 3)
            << model.startAngle(joint, angle) << angle << model.followingJoints(joint).size() << '\n';
    }
    return out.str();
}

TEST(Threads, ReadOneModel)
{
    Sim::Model const model(humanoid);
    EXPECT_GT(model.joints().size(), 25U);
    // The expected ones after the others, because look-ups make an index when they are first used.
    auto const contents = inThreads([&] { return contentsOf(model); });
    EXPECT_THAT(contents, testing::Each(contentsOf(model)));
}

TEST(Threads, ReadOneMotionModel)
{
    Sim::MotionModel const model(Sim::Model(humanoid).configFile());
    EXPECT_THAT(inThreads([&] { return contentsOf(model); }), testing::Each(contentsOf(model)));
}

TEST(Threads, MoveOneRobot)
{
    Sim::Model const model(humanoid);
    Sim::Kinematics const kinematics(model);
    Sim::Configuration const shared(kinematics, "Crouch");
    auto const moved = [&] {
        std::ostringstream out;
        Sim::Configuration own = shared;
        for (double const value : {0.0, 0.5, 1.0}) {
            own.set("LElbowBend", value);
            out << kinematics.pose(own, kinematics.frame("LThumb2Link"))(0, 3) << ' '
                << kinematics.jacobian(shared, kinematics.frame("FaceCamera"))[0] << ' '
                << kinematics.massProperties(own).centerOfMass[2] << '\n';
        }
        return out.str();
    };
    EXPECT_THAT(inThreads(moved), testing::Each(moved()));
}

TEST(Threads, LoadModelsOfTheirOwn)
{
    std::string const expected = contentsOf(Sim::Model(humanoid));
    EXPECT_THAT(inThreads([] { return contentsOf(Sim::Model(humanoid)); }), testing::Each(expected));
}

TEST(Threads, CollectFindingsOfTheirOwn)
{
    std::string const broken = "<robotDescription name='a'><joint/><chain/></robotDescription>";
    auto const findings = [&] {
        std::string text;
        for (Varo::Model::Finding const& finding : Varo::Model::ModelUtils::diagnose(broken)) {
            text += finding.code + ' ' + finding.message + '\n';
        }
        return text;
    };
    EXPECT_THAT(findings(), testing::HasSubstr("\n"));
    EXPECT_THAT(inThreads(findings), testing::Each(findings()));
}

}  // namespace
