#include <gtest/gtest.h>

#include "model_of.hpp"

namespace {

/// What a mirror query answers, and what it leaves in out-arguments that held "untouched" and true.
struct Mirror {
    bool answer;
    std::string name;
    bool reflected;
};

bool operator==(Mirror const& a, Mirror const& b)
{
    return a.answer == b.answer && a.name == b.name && a.reflected == b.reflected;
}

std::ostream& operator<<(std::ostream& out, Mirror const& mirror)
{
    return out << mirror.answer << ' ' << mirror.name << ' ' << mirror.reflected;
}

using Query = bool (Sim::MotionModel::*)(std::string const&, std::string&, bool&) const;

Mirror ask(Sim::MotionModel const& model, Query query, std::string const& name)
{
    Mirror mirror = {false, "untouched", true};
    mirror.answer = (model.*query)(name, mirror.name, mirror.reflected);
    return mirror;
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
    Mirror const unknown = {false, "untouched", true};
    struct {
        char const* name;
        Mirror ofJoint;
        Mirror ofSubJoint;
        Mirror ofActuator;
    } const cases[] = {
        {"LHip", {true, "RHip", false}, unknown, unknown},
        {"LKnee", {true, "RKnee", true}, unknown, unknown},
        {"LToe", {true, "RToe", false}, unknown, unknown},
        {"Neck", {false, "", false}, unknown, unknown},
        {"LHand", {false, "RHand", false}, {true, "RHand", false}, unknown},
        {"RHand", {false, "LHand", false}, {true, "LHand", false}, unknown},
        {"Thumb", {false, "Thumb", false}, {true, "Thumb", false}, unknown},
        {"", {false, "", false}, {true, "", false}, unknown},
        {"LGrip", {true, "RGrip", true}, unknown, {true, "RGrip", true}},
        {"Jaw", {true, "", false}, unknown, {true, "", false}},
        {"Nobody", unknown, unknown, unknown},
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
    for (auto const& c : cases) {
        SCOPED_TRACE(c.name);
        bool forced = !c.forced;
        EXPECT_EQ(model.reflectionForcedFromJointName(c.name, forced), c.answer);
        EXPECT_EQ(forced, c.forced);
    }
}

}  // namespace
