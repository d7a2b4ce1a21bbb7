#include <string>
#include <vector>

#include <gmock/gmock.h>

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
    std::vector<std::string> places;
    for (Finding const& finding : ModelUtils::diagnose(xml)) {
        places.push_back(std::to_string(finding.column) + " " + finding.code +
                         (finding.severity == Severity::error ? " refused" : ""));
    }
    return places;
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
             {"<chain name='D' parent='J'><jointRef name='X'/></chain>", {"38 dangling-reference"}},
             {"<chain name='D' parent='B'><jointRef name='J'/></chain>", {"38 joint-in-two-chains"}},
             {"<joint name='K' min='0' max='1'/>", {"1 joint-in-no-chain"}},
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
              {"50 chain-loop"}},
             {"<actuator name='A' min='0' max='1' parent='A'/>", {"36 actuator-loop refused"}},
             {"<joint name='JLink' min='0' max='1'/><chain name='D' parent='B'><jointRef name='JLink'/></chain>",
              {"1 ambiguous-name"}},
             {"<wheel name='BLink' maxTorque='1' maxVelocity='1' parent='J'/>",
              {"1 missing-material", "1 ambiguous-name"}},
             {"<actuator name='A' min='0' max='1' parent='J'><group><subJoint ratio='1' "
              "name='JLink'/></group></actuator>",
              {"54 ambiguous-name"}},
             {"<joynt name='K'/>" + angle + "'K'/></posture>", {"1 unknown-element refused"}},
         }) {
        EXPECT_EQ(placesOf(around(c.elements)), c.places) << c.elements;
    }
}

TEST(References, SuggestsTheNameThatWasMeant)
{
    Findings const findings = ModelUtils::diagnose(
        "<robotDescription name='R'><root name='B'/>"
        "<joint name='HeadYaw' min='0' max='1'/>"
        "<chain name='C' parent='B'><jointRef name='HeadYwa'/>"
        "<jointRef name='HeadYaw'/></chain></robotDescription>");
    ASSERT_EQ(findings.size(), 1U);
    EXPECT_EQ(findings[0].hint, "Did you mean \"HeadYaw\"?");
}

}  // namespace
}  // namespace Varo::Model
