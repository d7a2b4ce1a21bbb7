#include <gmock/gmock.h>

#include "urdf_text.hpp"

namespace {

using namespace UrdfTest;
using testing::ElementsAre;
using testing::UnorderedElementsAre;

std::vector<std::string> extensionsOf(Robot const& robot)
{
    static char const* const owners[] = {"robot", "link", "joint", "sensor"};
    std::vector<std::string> lines;
    for (ExtensionConfig const& extension : robot.records()->extensions) {
        lines.push_back(std::string(owners[static_cast<int>(extension.owner)]) + " " + extension.ownerName + " " +
                        extension.within + " " + extension.text);
    }
    return lines;
}

TEST(UrdfExtensions, KeepTheirTextWithTheRecordThatTheyStandIn)
{
    std::string const xml =
        "\xEF\xBB\xBF<!-- ahead --><robot name='r' xmlns:sim='http://sim'>"
        "<link name='base'><self_filter a='&lt;'>1 &amp; 2<!-- > --></self_filter></link>"
        "<link name='tip'/><link name='end'/>"
        "<joint name='j' type='fixed'><parent link='base'/><child link='tip'/><sim:gear>\r\n 7 </sim:gear></joint>"
        "<joint name='k' type='fixed'><parent link='tip'/><child link='end'/></joint>"
        "<sim:world><sim:world/></sim:world>"
        "<gazebo><plugin name='p'/></gazebo>"
        "<gazebo reference='tip'><mu1>0.5</mu1><sensor name='eye' type='imu'><topic>t</topic>"
        "<pose frame='tip'>0 0 0 0 0 0</pose><imu><sim:extra/></imu></sensor></gazebo>"
        "<gazebo reference='k'><provideFeedback/></gazebo>"
        "<gazebo reference='gone'><mu1/></gazebo>"
        "</robot>";
    auto const read = ModelUtils::robotFromXml(xml);
    std::vector<std::string> const kept = extensionsOf(*read);
    EXPECT_THAT(kept, UnorderedElementsAre("robot   xmlns:sim='http://sim'",
                                           "link base  <self_filter a='&lt;'>1 &amp; 2<!-- > --></self_filter>",
                                           "joint j  <sim:gear>\r\n 7 </sim:gear>",
                                           "robot   <sim:world><sim:world/></sim:world>",
                                           "robot  gazebo <plugin name='p'/>", "link j gazebo <mu1>0.5</mu1>",
                                           "sensor eye  <topic>t</topic>", "sensor eye pose frame='tip'",
                                           "sensor eye  <imu><sim:extra/></imu>", "joint k gazebo <provideFeedback/>",
                                           "robot   <gazebo reference='gone'><mu1/></gazebo>"));
    EXPECT_TRUE(ModelUtils::diagnose(xml).empty());
    // The native dialect holds the same, byte by byte.
    std::string const native = ModelUtils::toXml(*read);
    auto const again = ModelUtils::robotFromXml(native);
    EXPECT_EQ(extensionsOf(*again), kept);
    EXPECT_EQ(ModelUtils::toXml(*again), native);
}

TEST(UrdfExtensions, SayInWhichOfLikeNamedElementsTheyStand)
{
    std::string const visual = "<visual><geometry><mesh filename='m'/><warp/></geometry></visual>";
    auto const read = ModelUtils::robotFromXml(robot("<link name='l'>" + visual + visual + "</link>"));
    EXPECT_THAT(extensionsOf(*read),
                ElementsAre("link l visual/geometry <warp/>", "link l visual[2]/geometry <warp/>"));
    std::string const collision = "<collision><geometry><sphere radius='1'/></geometry></collision>";
    std::string many;
    for (int i = 0; i < 3; ++i) {
        many += collision + collision + collision + collision + visual;
    }
    auto const wide = ModelUtils::robotFromXml(robot("<link name='l'>" + many + visual + "</link>"));
    EXPECT_THAT(extensionsOf(*wide),
                ElementsAre("link l visual/geometry <warp/>", "link l visual[2]/geometry <warp/>",
                            "link l visual[3]/geometry <warp/>", "link l visual[4]/geometry <warp/>"));
}

TEST(UrdfExtensions, KeepWhatTheRecordsOfTransmissionsDoNotSay)
{
    auto const kept = [](std::string const& content) {
        std::string const transmission = "<transmission name='T' type='x'>" + content + "</transmission>";
        return extensionsOf(*ModelUtils::robotFromXml(robot(arm() + transmission)));
    };
    std::string const actuator = "<actuator name='M'><mechanicalReduction>9</mechanicalReduction></actuator>";
    EXPECT_THAT(kept("<joint name='A'/>" + actuator), ElementsAre());
    EXPECT_THAT(
        kept("<type>y</type><joint name='A'><role>r</role><mechanicalReduction>2</mechanicalReduction></joint>" +
             actuator + "<actuator name='N'/><mechanicalReduction>3</mechanicalReduction><type>z</type>"),
        ElementsAre("robot  transmission type='x'", "robot  transmission <actuator name='N'/>",
                    "robot  transmission <mechanicalReduction>3</mechanicalReduction>",
                    "robot  transmission <type>z</type>", "robot  transmission/joint <role>r</role>",
                    "robot  transmission/joint <mechanicalReduction>2</mechanicalReduction>"));
    std::string const pieces = "<transmission name='T'><type>\n x<!-- -->y<![CDATA[z]]> </type><joint name='A'/>";
    auto const read = ModelUtils::robotFromXml(robot(arm() + pieces + "</transmission>"));
    EXPECT_EQ(read->records()->transmissions.at(0).type, "xyz");
    // Without a joint there is no record at all.
    EXPECT_THAT(
        kept("<gap_joint name='A'/>" + actuator),
        ElementsAre("robot   <transmission name='T' type='x'><gap_joint name='A'/>" + actuator + "</transmission>"));
}

TEST(UrdfControl, SaysWhichJointsAreDriven)
{
    std::string const system =
        "<ros2_control name='rig' type='system'><hardware><plugin>p</plugin></hardware>"
        "<joint name='A'><command_interface name='position'><param name='min'>-1</param></command_interface>"
        "<command_interface name='velocity'/><state_interface name='position'/></joint>"
        "<joint name='B'><command_interface name='effort'/><param name='mechanicalReduction'>-20</param></joint>"
        "<joint name='lost'/>"
        "<transmission name='t'><actuator name='m0'/><actuator name='m1'/><joint name='A'>"
        "<mechanical_reduction>50</mechanical_reduction></joint><joint name='C'/></transmission></ros2_control>";
    std::string const xml = robot(arm() + system);
    EXPECT_THAT(complaintsAbout(xml), ElementsAre("unknown-driven-joint"));
    auto const expectRecords = [&](Robot const& robot) {
        auto const& driven = robot.records()->transmissions;
        ASSERT_EQ(driven.size(), 3U);
        EXPECT_EQ(driven[0].name, "rig");
        EXPECT_EQ(driven[0].type, "system");
        EXPECT_EQ(driven[0].joint, "A");
        EXPECT_EQ(driven[0].actuator, "m0");
        EXPECT_EQ(driven[0].reduction, 50.0F);
        EXPECT_THAT(driven[0].interfaces, ElementsAre("position", "velocity"));
        EXPECT_THAT(driven[0].stateInterfaces, ElementsAre("position"));
        EXPECT_EQ(driven[0].source, TransmissionSource::ros2Control);
        EXPECT_EQ(driven[1].reduction, -20.0F);
        EXPECT_EQ(driven[1].actuator, "");
        EXPECT_EQ(robot.records()->extensions.at(0).text, system);
    };
    auto const read = ModelUtils::robotFromXml(xml);
    expectRecords(*read);
    std::string const native = ModelUtils::toXml(*read);
    expectRecords(*ModelUtils::robotFromXml(native));
    EXPECT_THAT(complaintsAbout(native), ElementsAre("dangling-reference"));

    EXPECT_THAT(complaintsAbout(robot(arm() + "<ros2_control><joint name='A'><param name='reduction'>0</param></joint>"
                                              "</ros2_control>")),
                ElementsAre("bad-reduction"));
}

}  // namespace
