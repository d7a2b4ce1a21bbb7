#include <gmock/gmock.h>

#include "descriptions.hpp"
#include "sim/actuator_group.hpp"
#include "sim/joint.hpp"
#include "sim/link.hpp"
#include "sim/model.hpp"
#include "urdf_text.hpp"

namespace {

using namespace UrdfTest;
using testing::ElementsAre;

/// root -A- a -+-short- s
///             +-stub-- u
///             +-long-- l -+-tip1- t1
///             |           +-tip2- t2
///             +-equal- e -+-e1
///                         +-e2
/// root -B- b
std::string tree()
{
    std::string text;
    for (char const* name : {"root", "a", "b", "s", "u", "l", "e", "t1", "t2", "x1", "x2"}) {
        text += link(name);
    }
    return robot(text + joint("A", "root", "a") + joint("B", "root", "b") + joint("short", "a", "s") +
                 joint("stub", "a", "u") + joint("long", "a", "l") + joint("equal", "a", "e") +
                 joint("tip1", "l", "t1") + joint("tip2", "l", "t2") + joint("e1", "e", "x1") + joint("e2", "e", "x2"));
}

TEST(UrdfChains, RunOnAlongTheChildWithMostJointsBelow)
{
    Tables const tables = tablesOf(tree());
    auto const jointsOf = [&](char const* chain) { return tables.chains.at(chain).jointNames; };
    EXPECT_THAT(tables.chainNames, ElementsAre("A", "short", "stub", "equal", "e2", "tip2", "B"));
    EXPECT_THAT(jointsOf("A"), ElementsAre("A", "long", "tip1"));
    EXPECT_THAT(jointsOf("equal"), ElementsAre("equal", "e1"));
    EXPECT_EQ(tables.chains.at("A").parentJoint, "root");
    EXPECT_EQ(tables.chains.at("equal").parentJoint, "A");
    EXPECT_EQ(tables.chains.at("tip2").parentJoint, "long");
}

TEST(UrdfChains, KeepTheOrderOfSiblingsBehindTheContinuation)
{
    Sim::Model const model(tree());
    EXPECT_THAT(Tests::namesOf(model.link("ALink")->childrenJoints()), ElementsAre("long", "short", "stub", "equal"));
    for (char const* chain : {"short", "equal", "tip2"}) {
        ASSERT_NE(model.actuatorGroup(chain)->parent(), nullptr) << chain;
        EXPECT_EQ(model.actuatorGroup(chain)->parent()->name(), "A");
    }
}

}  // namespace
