#include <new>
#include <typeinfo>

#include <gtest/gtest.h>

#include "allocations.hpp"
#include "files.hpp"
#include "sim/configuration.hpp"
#include "sim/kinematics.hpp"
#include "sim/model.hpp"
#include "sim/motion_model.hpp"
#include "varo/model/lint.hpp"
#include "varo/model/mesh_search.hpp"

namespace {

void append(std::string& out, Varo::Model::Findings const& findings)
{
    for (Varo::Model::Finding const& finding : findings) {
        out += std::to_string(finding.line) + finding.path + finding.code + finding.message + finding.hint + '\n';
    }
}

/// Everything that can be had of a text, put together.
std::string everythingOf(std::string const& text)
{
    std::string out;
    Varo::Model::ModelUtils::Reading reading = Varo::Model::ModelUtils::read(text);
    append(out, reading.findings);
    if (reading.robot == nullptr) {
        return out;
    }
    out += Varo::Model::ModelUtils::toXml(*reading.robot);
    if (reading.robot->dialect() == "urdf") {  // of others it searches long for short poses
        out += Varo::Model::ModelUtils::toUrdf(*reading.robot);
    }
    append(out, lint(*reading.robot));
    Sim::Model const model(std::move(reading));
    append(out, model.findings());
    for (Sim::Link const* link : model.links()) {
        out += link->descriptionName() + model.place(*link).path;
    }
    for (Sim::Actuator const* actuator : model.actuators()) {
        out += actuator->name() + std::to_string(model.actuatorGroupsOfJoint(actuator->name()).size());
    }
    Sim::Kinematics const kinematics(model);
    Sim::Configuration configuration(kinematics);
    for (auto const& posture : model.postures()) {
        configuration.setPosture(posture.name);
        out += std::to_string(kinematics.massProperties(configuration).mass);
    }
    Sim::MotionModel motionModel(text);
    for (std::string const& joint : motionModel.jointNames()) {
        out += motionModel.chainNameFromJoint(joint);
    }
    Varo::Model::MeshFolders folders;
    folders.description = folders.packages["arm"] = VARO_SOURCE_DIR "/robots";
    folders.packagePath = {VARO_SOURCE_DIR "/robots"};
    Varo::Model::MeshSearch const search(folders);
    for (char const* uri : {"package://robots/meshes/none.stl", "package://arm/none.stl", "meshes/ball.stl"}) {
        out += search.find(uri).path + search.find(uri).reason;
    }
    return out;
}

/// Whatever is thrown but std::bad_alloc is a fault told as another one.
struct Attempt {
    std::string result;
    std::string fault;
    bool isRefused = false;
};

template <class Work>
Attempt attempt(Work const& work)
{
    Attempt attempt;
    try {
        attempt.result = work();
    } catch (std::bad_alloc const&) {
        attempt.isRefused = true;
    } catch (std::exception const& error) {
        attempt.fault = typeid(error).name() + std::string(": ") + error.what();
    }
    return attempt;
}

/// Of so many of its allocations each piece of work is tried; they lie evenly among all.
constexpr std::size_t mostAttempts = 150;

/// Lets the first allocation of the work fail, then a later one, and so on until there is none any more.
template <class Work>
void expectBadAllocs(Work const& work)
{
    std::string const whole = work();  // which also makes what is made but once
    std::size_t const step = 1 + Tests::allocationsOf(work) / mostAttempts;
    std::size_t refusals = 0;
    for (std::size_t number = 0;; number += step) {
        std::ptrdiff_t const before = Tests::liveAllocations();
        Tests::failAllocationAfter(number);
        {
            Attempt const outcome = attempt(work);
            bool const hasFailed = Tests::endFailing();
            ASSERT_EQ(outcome.fault, "") << "allocation " << number;
            // Sorting, for one, can do without the memory that it asks for.
            ASSERT_TRUE(outcome.isRefused || outcome.result == whole) << "allocation " << number;
            refusals += outcome.isRefused ? 1 : 0;
            if (!hasFailed) {
                break;
            }
        }
        ASSERT_EQ(Tests::liveAllocations(), before) << "allocation " << number << " leaks";
    }
    EXPECT_GT(refusals, 20U);
}

class LackOfMemory : public testing::TestWithParam<char const*> {
protected:
    std::string const file = std::string(VARO_SOURCE_DIR) + "/" + GetParam();
    std::string const text = Tests::readFile(file);
};

TEST_P(LackOfMemory, IsToldAsSuchByAll)
{
    expectBadAllocs([this] { return everythingOf(text); });
}

TEST_P(LackOfMemory, IsNoFaultOfTheFile)
{
    expectBadAllocs([this] { return Sim::Model(file).name(); });
}

TEST_P(LackOfMemory, IsNoFaultOfATextThatIsRefused)
{
    std::string broken = text;
    for (std::size_t at = 0; (at = broken.find("value=", at)) != std::string::npos; at += 7) {
        broken.replace(at, 6, "valeu=");
    }
    expectBadAllocs([&] { return everythingOf(broken + "<more/>"); });
    expectBadAllocs([&] { return everythingOf(broken.substr(0, broken.size() / 2)); });
}

/// What stayed behind of each would add up while they come and go.
TEST(Models, LeaveNothingBehind)
{
    for (std::string const& file : Tests::exampleFiles()) {
        Sim::Model(file).links();  // which also makes what is made but once
        std::ptrdiff_t const before = Tests::liveAllocations();
        EXPECT_FALSE(Sim::Model(file).links().empty());
        EXPECT_EQ(Tests::liveAllocations(), before) << file;
    }
}

INSTANTIATE_TEST_SUITE_P(Robots, LackOfMemory,
                         testing::Values("robots/minimal.xml", "robots/helvo_arm.xml", "tests/urdf/data/gripper.urdf",
                                         "tests/urdf/data/sensors.urdf"));

}  // namespace
