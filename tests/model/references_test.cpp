#include <map>
#include <string>
#include <vector>

#include <gmock/gmock.h>

#include "texts.hpp"
#include "varo/model/model_utils.hpp"

namespace Varo::Model {
namespace {

/// A joint J in a chain C, and whatever stands behind them from column 1 of line 2 on.
std::string around(std::string const& elements)
{
    return "<robotDescription name='R'><root name='B'/><joint name='J' min='0' max='1'/>"
           "<chain name='C' parent='B'><jointRef name='J'/></chain>\n" +
           elements + "</robotDescription>";
}

std::vector<std::string> placesOf(std::string const& xml)
{
    return Tests::textsOf(ModelUtils::diagnose(xml), [](Finding const& finding) {
        bool const isRefused = finding.severity == Severity::error;
        return std::to_string(finding.column) + " " + finding.code + (isRefused ? " refused" : "");
    });
}

TEST(References, OddNamesAndLimitsAreWarnedOfAndLoopingActuatorsRefused)
{
    std::string const angle = "<posture name='P'><angle value='0' of=";
    struct Case {
        std::string elements;
        std::vector<std::string> places;
    };
    for (Case const& c : std::vector<Case>{
             {"<chain name='D' parent='X'/>", {"17 dangling-reference"}},
             {"<transmission joint='X'/>", {"15 dangling-reference"}},
             {"<extension joint='B'>a='b'</extension>", {"12 dangling-reference"}},
             {"<extension link='X'>a='b'</extension>", {"12 dangling-reference"}},
             {"<extension sensor='J'>a='b'</extension>", {"12 dangling-reference"}},
             {"<extension link='J' joint='J'>a='b'</extension>", {"1 conflicting-attributes refused"}},
             {"<chain name='D' parent='J'><jointRef name='X'/></chain>", {"38 dangling-reference"}},
             {"<chain name='D' parent='B'><jointRef name='J'/></chain>", {"38 joint-in-two-chains"}},
             {"<joint name='K' min='0' max='1'/>", {"1 joint-in-no-chain"}},
             {"<joint name='K' min='0' max='1'><mimic joint='X'/></joint><chain name='D' parent='B'>"
              "<jointRef name='K'/></chain>",
              {"40 dangling-reference"}},
             {"<sensor name='S' type='fsr' parent='JLink'/>", {"29 dangling-reference"}},
             {"<sensor name='S' type='fsr' parent='B'/>", {}},
             {"<wheel name='W' maxTorque='1' maxVelocity='1' parent='J'/>", {"1 missing-material"}},
             {"<actuator name='A' min='0' max='1' parent='J'/>" + angle + "'A'/></posture>", {}},
             {"<actuator name='A' min='0' max='1' parent='X'/>", {"36 dangling-reference"}},
             {"<actuator name='A' min='0' max='1' parent='J'><mirror name='X'/></actuator>", {"55 dangling-reference"}},
             {"<actuator name='A' min='1' max='0' parent='J'/>", {"20 reversed-limits"}},
             {"<actuator name='A' min='0' max='1' parent='J'><group><subJoint ratio='1'/></group></actuator>" + angle +
                  "'X'/></posture>",
              {"54 missing-attribute refused"}},
             {angle + "'J'/></posture>", {}},
             {angle + "'X'/></posture>", {"36 angle-of-unknown"}},
             {"<joint name='K' min='0' max='1'/><chain name='D' parent='K'><jointRef name='K'/></chain>",
              {"50 chain-cycle"}},
             {"<actuator name='A' min='0' max='1' parent='A'/>", {"36 actuator-cycle refused"}},
             {"<joint name='JLink' min='0' max='1'/><chain name='D' parent='B'><jointRef name='JLink'/></chain>",
              {"1 ambiguous-name"}},
             {"<wheel name='BLink' maxTorque='1' maxVelocity='1' parent='J'/>",
              {"1 missing-material", "1 ambiguous-name"}},
             {"<actuator name='A' min='0' max='1' parent='J'><group><subJoint ratio='1' "
              "name='JLink'/></group></actuator>",
              {"54 ambiguous-name"}},
             {angle + "'P'/></posture><joint name='P' min='0' max='1' motor='false'/><chain name='D' "
                      "parent='B'><jointRef name='P'/></chain>",
              {"36 angle-of-unknown"}},
             {"<chain parent='X' name='D'><jointRef/></chain>", {"28 missing-attribute refused"}},
             {"<posture><angle value='0' of='X'/></posture>", {"1 missing-attribute refused", "27 angle-of-unknown"}},
             {"<chain nam='E' name='D' parent='X'/>", {"8 unknown-attribute refused", "25 dangling-reference"}},
             {"<joynt name='K'/>" + angle + "'K'/></posture>", {"1 unknown-element refused"}},
         }) {
        EXPECT_EQ(placesOf(around(c.elements)), c.places) << c.elements;
    }
}

/// Three joints: the first mimics `leaders[0]`, and so on; the link of the first is called `firstLink`.
std::string mimicking(std::vector<std::string> const& leaders, std::string const& multiplier = "2",
                      std::string const& firstLink = "x")
{
    std::string joints;
    std::string chain;
    for (std::size_t i = 0; i < leaders.size(); ++i) {
        std::string const name = "M" + std::to_string(i);
        joints += "\n<joint name='" + name + "' min='0' max='1' link='" + (i == 0 ? firstLink : name + "y") +
                  "'><mimic joint='" + leaders[i] + "' multiplier='" + multiplier + "'/></joint>";
        chain += "<jointRef name='" + name + "'/>";
    }
    return around("<chain name='D' parent='B'>" + chain + "</chain>" + joints);
}

TEST(References, OfMimicsAreCheckedThroughAllLeaders)
{
    auto const found = [](std::string const& xml) {
        return Tests::textsOf(ModelUtils::diagnose(xml), [](Finding const& finding) {
            std::string const element = finding.path.substr(finding.path.rfind('/') + 1);
            return std::to_string(finding.line) + " " + element + " " + finding.code;
        });
    };
    using Lines = std::vector<std::string>;
    EXPECT_EQ(found(mimicking({"J", "M0", "M1"})), Lines());
    EXPECT_EQ(found(mimicking({"X", "M0"})), Lines{"3 mimic dangling-reference"});
    EXPECT_EQ(found(mimicking({"M2", "M0", "M1", "M1"})), Lines{"3 mimic mimic-cycle"});
    EXPECT_EQ(found(mimicking({"J", "M1"})), Lines{"4 mimic mimic-cycle"});
    EXPECT_EQ(found(mimicking({"J", "M0", "M1"}, "1e13")), Lines{"5 mimic not-a-number"});
}

TEST(References, LinksMayNotBeCalledAsModelsCallOthers)
{
    EXPECT_THAT(placesOf(mimicking({"J", "J"}, "1", "M0Link")), testing::IsEmpty()) << "its own name";
    EXPECT_THAT(placesOf(mimicking({"J", "J"}, "1", "M1Link")), testing::ElementsAre("1 ambiguous-link-name"));
    EXPECT_THAT(placesOf(mimicking({"J", "J"}, "1", "M1y")), testing::ElementsAre("1 ambiguous-link-name"))
        << "two links of one name";
}

TEST(References, AMisspeltNameIsFoundOnceWithTheOneThatWasMeant)
{
    Findings const findings = ModelUtils::diagnose(
        "<robotDescription name='R'><root name='B'/>"
        "<joint name='HeadYaw' min='0' max='1'/>"
        "<chain name='C' parent='B'><jointRef name='HeadYwa'/></chain>"
        "<actuator name='A' parent='HeadYaw' min='0' max='1'/>"
        "<posture name='P'><angle of='HeadYaw' value='0'/><angle of='A' value='0'/></posture></robotDescription>");
    ASSERT_EQ(findings.size(), 1U);
    EXPECT_EQ(findings[0].code, "dangling-reference");
    EXPECT_EQ(findings[0].hint, "Did you mean \"HeadYaw\"?");
}

TEST(References, SensorsAreWarnedOfThatModelsReadOtherwise)
{
    auto const text = [](std::string const& name, std::string const& value) {
        return "<attribute name='" + name + "' value='" + value + "'/>";
    };
    struct Case {
        std::string type;
        std::string content;
        std::vector<std::string> places;
    };
    for (Case const& c : std::vector<Case>{
             {"camera", "", {"1 missing-sensor-text"}},
             {"camera", "<attribute nam='resolutions' value='1 1'/>", {"54 unknown-attribute refused"}},
             {"deptCamera", "", {"29 wrong-value refused"}},
             {"camera", text("resolutions", " 640 480 &#10;+320 240&#10;"), {}},
             {"arrayDepth", "", {}},
             {"sonar", "", {"1 wrong-key-count"}},
             {"sonar", "<key>a</key>", {}},
             {"sonar", "<key>a</key><key>b</key>", {"1 wrong-key-count"}},
             {"led", text("color", "0 255 255") + text("groups", "a b&#9;c"), {}},
             {"fsr", text("color", "green") + text("resolutions", "x"), {}},
         }) {
        std::string const sensor = "<sensor name='S' parent='B' type='" + c.type + "'>" + c.content + "</sensor>";
        EXPECT_EQ(placesOf(around(sensor)), c.places) << sensor;
    }
    for (auto const& [name, values] : std::map<std::string, std::vector<std::string>>{
             {"resolutions",
              {"", "&#10;", "640x480", "abc def", "640", "640  480", "640&#9;480", "640 480 30", "640 -480", "640 0",
               "640 480&#10;x", "640 480.5", "640 99999999999"}},
             {"color", {"", "green", "0 0 0", "255 0", "0  255 0", " 255 0 0", "255 0 0 0", "255 x 0", "#ff0000"}},
             {"groups", {"", " a", "a ", "a  b", "a &#9;b", "&#9;a"}},
         }) {
        for (std::string const& value : values) {
            std::string const type = name == "resolutions" ? "type='camera'>" : "type='led'>";
            std::string const sensor = "<sensor name='S' parent='B' " + type + text(name, value) + "</sensor>";
            std::vector<std::string> const places = {std::to_string(sensor.find("value") + 1) + " wrong-sensor-text"};
            EXPECT_EQ(placesOf(around(sensor)), places) << sensor;
        }
    }
}

}  // namespace
}  // namespace Varo::Model
