#include <gmock/gmock.h>

#include "sim/angle_actuator.hpp"
#include "sim/coupled_actuator.hpp"
#include "sim/frame.hpp"
#include "sim/joint.hpp"
#include "sim/link.hpp"
#include "sim/model.hpp"
#include "sim/sensor.hpp"
#include "urdf_text.hpp"

namespace {

using namespace UrdfTest;
using testing::ElementsAre;

/// That the links of the file stand right is tested with the geometry of all files.
TEST(UrdfNames, MayBeSharedByLinksAndJoints)
{
    std::string const text = readFile(dataFile("names.urdf"));
    Sim::Model const model(text);
    EXPECT_EQ(model.rootLink()->name(), "base_2Link");
    EXPECT_EQ(model.joints().size(), 4U);
    EXPECT_NE(model.link("baseLink"), nullptr);
    EXPECT_NE(model.link("baseLink"), model.rootLink());
    EXPECT_EQ(model.joint("aLink")->parentLink()->name(), "aLink");
    EXPECT_THAT(complaintsAbout(text), ElementsAre("renamed", "renamed"));

    // An actuator of a joint's name would take the joint's limits.
    EXPECT_EQ(model.angleActuator("aCoupling")->minValue(), -0.5F);
    EXPECT_NE(model.coupledActuator("aCoupling_2"), nullptr);

    EXPECT_EQ(model.sensor("on_a")->frame()->parentFrame(), model.link("aLinkLink")->frame());
    EXPECT_EQ(model.sensor("on_aLink")->frame()->parentFrame(), model.link("baseLink")->frame());
    EXPECT_EQ(model.sensor("on_root")->frame()->parentFrame(), model.rootLink()->frame());
}

TEST(UrdfNames, OfLinksAreKeptAsAttributes)
{
    Tables const tables = tablesOf(readFile(dataFile("names.urdf")));
    EXPECT_EQ(tables.root.attributes.at("urdfLink"), "base");
    EXPECT_EQ(tables.joints.at("a").attributes.at("urdfLink"), "b");
    EXPECT_EQ(tables.joints.at("aLink").attributes.at("urdfLink"), "a");
}

}  // namespace
