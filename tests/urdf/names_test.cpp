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
    EXPECT_THAT(complaintsAbout(text),
                ElementsAre("renamed", "renamed", "ambiguous-name", "ambiguous-link-name", "ambiguous-link-name"));

    // An actuator of a joint's name would take the joint's limits.
    EXPECT_EQ(model.angleActuator("aCoupling")->minValue(), -0.5F);
    EXPECT_NE(model.coupledActuator("aCoupling_2"), nullptr);

    EXPECT_EQ(model.sensor("on_a")->frame()->parentFrame(), model.link("aLinkLink")->frame());
    EXPECT_EQ(model.sensor("on_aLink")->frame()->parentFrame(), model.link("baseLink")->frame());
    EXPECT_EQ(model.sensor("on_root")->frame()->parentFrame(), model.rootLink()->frame());
}

/// Look-ups by name cannot tell such a joint from the link; whichever stands later in the text gets the warning.
TEST(UrdfNames, WarnOfJointsNamedLikeTheLinkOfAnother)
{
    std::string const links = link("root") + link("a") + link("b");
    Findings const findings =
        ModelUtils::diagnose(robot(links + joint("ALink", "root", "a") + "\n" + joint("A", "a", "b")));
    ASSERT_EQ(findings.size(), 1U);
    EXPECT_EQ(findings[0].code, "ambiguous-name");
    EXPECT_EQ(findings[0].line, 2);
    EXPECT_THAT(complaintsAbout(robot(link("ALink") + link("a") + joint("A", "ALink", "a"))),
                ElementsAre("ambiguous-name"));
    EXPECT_THAT(complaintsAbout(robot(links + joint("ALink", "root", "a") + joint("Link", "a", "b"))), ElementsAre());
}

TEST(UrdfNames, OfLinksFindThemWhereNoLinkOfTheModelIsCalledSo)
{
    std::string const text = robot(link("root") + "\n" + link("BLink") + "\n" + link("b") +
                                   joint("A", "root", "BLink") + joint("B", "BLink", "b"));
    Findings const findings = ModelUtils::diagnose(text);
    ASSERT_EQ(findings.size(), 1U);
    EXPECT_EQ(findings[0].code, "ambiguous-link-name");
    EXPECT_EQ(findings[0].line, 2);
    Sim::Model const model(text);
    Sim::Link const* const links[] = {model.rootLink(), model.joint("A")->childLink(), model.joint("B")->childLink()};
    EXPECT_THAT(links, ElementsAre(model.link("root"), model.link("ALink"), model.link("b")));
    EXPECT_EQ(model.link("BLink"), links[2]) << "the model's own names come first";
    EXPECT_EQ(links[1]->descriptionName(), "BLink");
    EXPECT_EQ(model.link("c"), nullptr);
}

}  // namespace
