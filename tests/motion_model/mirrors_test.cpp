#include "model_of.hpp"

namespace {

using Query = bool (Sim::MotionModel::*)(std::string const&, std::string&, bool&) const;

/// What a mirror query answers, and then what it wrote: "true RHip" for a mirror image, "true RHip reflected" for a
/// reflected one; "false" when it wrote nothing.
std::string ask(Sim::MotionModel const& model, Query query, std::string const& name)
{
    std::string mirror = "untouched";
    bool reflected = true;
    std::string const answer = (model.*query)(name, mirror, reflected) ? "true" : "false";
    if (mirror == "untouched") {
        return answer + (reflected ? "" : " though it wrote the flag");
    }
    return answer + ' ' + mirror + (reflected ? " reflected" : "");
}

template <typename Record>
void mirrorIn(Record& record, std::int32_t kind, std::string const& name)
{
    record.mirrorKind = kind;
    record.mirrorName = name;
}

TEST(Mirrors, AreStatedByRecordsAndGuessedForSubJoints)
{
    auto const model = modelOf([](FakeRobot& robot) {
        mirrorIn(robot.addJoint("LHip"), 1, "RHip");
        mirrorIn(robot.addJoint("LKnee"), 2, "RKnee");
        mirrorIn(robot.addJoint("LToe"), 3, "RToe");
        mirrorIn(robot.addJoint("Neck"), 0, "ignored");
        mirrorIn(robot.addActuator("LGrip", "LHip", {{"Thumb"}, {"LHand", "RHand", ""}}), 2, "RGrip");
        mirrorIn(robot.addActuator("Jaw", "Neck"), 0, "ignored");
    });
    struct {
        char const* name;
        char const* ofJoint;
        char const* ofSubJoint;
        char const* ofActuator;
    } const cases[] = {
        {"LHip", "true RHip", "false", "false"},
        {"LKnee", "true RKnee reflected", "false", "false"},
        {"LToe", "true RToe", "false", "false"},
        {"Neck", "false ", "false", "false"},
        {"LHand", "false RHand", "true RHand", "false"},
        {"RHand", "false LHand", "true LHand", "false"},
        {"Thumb", "false Thumb", "true Thumb", "false"},
        {"", "false ", "true ", "false"},
        {"LGrip", "true RGrip reflected", "false", "true RGrip reflected"},
        {"Jaw", "true ", "false", "true "},
        {"Nobody", "false", "false", "false"},
    };
    for (auto const& c : cases) {
        SCOPED_TRACE(c.name);
        EXPECT_EQ(ask(model, &Sim::MotionModel::mirrorNameFromJointName, c.name), c.ofJoint);
        EXPECT_EQ(ask(model, &Sim::MotionModel::mirrorNameFromSubjointName, c.name), c.ofSubJoint);
        EXPECT_EQ(ask(model, &Sim::MotionModel::mirrorNameFromActuatorName, c.name), c.ofActuator);
    }
}

TEST(Mirrors, TellWhetherAReflectionIsForced)
{
    auto const model = modelOf([](FakeRobot& robot) {
        robot.addJoint("Plain");
        robot.addJoint("Forced");
        robot.reflectionForced = {"Forced", "NoJoint"};
    });
    struct {
        char const* name;
        bool answer;
        bool forced;
    } const cases[] = {
        {"Plain", true, false}, {"Forced", true, true}, {"NoJoint", true, true}, {"Nobody", false, false}};
    for (auto const& [name, answer, expected] : cases) {
        bool forced = !expected;
        EXPECT_EQ(model.reflectionForcedFromJointName(name, forced), answer) << name;
        EXPECT_EQ(forced, expected) << name;
    }
}

}  // namespace
