#include <iostream>
#include <sstream>

#include <gmock/gmock.h>

#include "captured_log.hpp"
#include "descriptions.hpp"
#include "fake_robot.hpp"
#include "files.hpp"
#include "sim/link.hpp"
#include "sim/load_error.hpp"
#include "sim/model.hpp"
#include "texts.hpp"
#include "throws.hpp"
#include "varo/model/model_utils.hpp"

namespace {

using Tests::readFile;
using Varo::Model::Finding;
using Varo::Model::ModelUtils::read;

std::string const minimal = readFile(VARO_SOURCE_DIR "/robots/minimal.xml");

std::string withFault(std::string const& from, std::string const& to)
{
    return Tests::replaced(minimal, from, to);
}

/// "LINE:COLUMN: message hint" of the errors.
std::vector<std::string> errorsOf(Varo::Model::Findings const& findings)
{
    std::vector<std::string> errors;
    for (Finding const& finding : findings) {
        if (finding.severity == Varo::Model::Severity::error) {
            errors.push_back(std::to_string(finding.line) + ":" + std::to_string(finding.column) + ": " +
                             finding.message + " " + finding.hint);
        }
    }
    return errors;
}

std::string const wheelOn(std::string const& parent, std::string const& inside)
{
    return withFault("  <chain", "  <wheel name=\"W\" parent=\"" + parent + "\" maxTorque=\"1\" maxVelocity=\"1\">" +
                                     inside + "</wheel>\n  <chain");
}

struct Fault {
    char const* name;
    std::string text;
    std::string what;  ///< of the exception, whose type is in what the standard library throws
    std::string error;  ///< pattern of the one error
};

TEST(FailingBuild, NamesTheCauseAtItsPlaceAndKeepsItsException)
{
    auto const check = [&](Fault const& fault, auto const& build) {
        try {
            build();
            FAIL() << "nothing thrown";
        } catch (std::exception const& error) {
            EXPECT_THAT(error.what(), testing::StartsWith(fault.what));
            auto const* const caused = dynamic_cast<Varo::Model::WithFindings const*>(&error);
            ASSERT_NE(caused, nullptr);
            EXPECT_THAT(errorsOf(caused->findings()), testing::ElementsAre(testing::MatchesRegex(fault.error)));
        }
    };
    for (Fault const& fault :
         {Fault{"JointOfNoDescription", withFault("jointRef name=\"Turn\"", "jointRef name=\"TurN\""),
                "Could not get min value.", "39:15: There is no joint \"TurN\".* Did you mean \"Turn\"\\?"},
          Fault{"ChainOnNothing", withFault("parent=\"Base\"", "parent=\"Bass\""),
                "Could not find the link of joint Turn",
                "38:22: There is no joint \"Bass\".* Did you mean \"Base\"\\?"},
          Fault{"ChainOnItself", withFault("parent=\"Base\"", "parent=\"Nod\""),
                "Could not find the link of joint Turn", "38:22: The parents of the chain \"Neck\" lead back to it.*"},
          Fault{"MisspeltStartAngle", withFault("angle of=\"Nod\"", "angle of=\"Nood\""), "vector::_M_range_check",
                "45:12: There is no joint or actuator \"Nood\".* Did you mean \"Nod\"\\?"},
          Fault{"WheelOnTheRoot", wheelOn("Base", Tests::attribute("material", "rubber")),
                "Model consistency error for wheel W", "38:19: .* attached to the root.* type fixed.*"},
          Fault{"WheelOnNothing", wheelOn("Tur", Tests::attribute("material", "rubber")),
                "Model consistency error for wheel W", "38:19: There is no joint \"Tur\".* Did you mean \"Turn\"\\?"},
          Fault{"WheelWithoutMaterial", wheelOn("Turn", ""), "Could not fetch wheel friction material for wheel W",
                "38:3: .*states no material.* Add .*"},
          Fault{"CameraWithoutResolution", withFault("  <chain", Tests::sensor("Eye", "Nod", "camera") + "<chain"),
                "Could not get Eye resolutions\n", "38:1: The sensor \"Eye\" states no resolution.*"}}) {
        SCOPED_TRACE(fault.name);
        check(fault, [&] { Sim::Model const model(fault.text); });
        check(fault, [&] { Sim::Model const model(read(fault.text)); });
    }
}

}  // namespace

TEST(ModelOfAReading, IsMadeWithoutReadingAgainAndSaysNothingAloud)
{
    auto reading = read(minimal + "<!-- end -->");
    std::string const* const text = reading.text.get();
    Sim::Model const model(std::move(reading));
    EXPECT_EQ(&model.configFile(), text);
    EXPECT_EQ(model.links().size(), 3U);
    EXPECT_TRUE(model.findings().empty());

    Tests::CapturedLog const log;
    std::ostringstream printed;
    auto* const before = std::cerr.rdbuf(printed.rdbuf());
    EXPECT_THROW(Sim::Model(read(withFault("jointRef name=\"Turn\"", "jointRef name=\"TurN\""))), Sim::BuildError);
    std::cerr.rdbuf(before);
    EXPECT_EQ(printed.str(), "");
    EXPECT_TRUE(log.lines.empty());
}

TEST(ModelOfAReading, RefusesOneWithoutARobotByItsFirstError)
{
    EXPECT_EQ(Tests::messageOf<Varo::Model::DescriptionError>([] { Sim::Model(read("<robot>\n<x></robot>")); }),
              "Could not load model. 2:4: This end tag does not match: \"x\", opened at 2:1, is to be closed first.");
    EXPECT_EQ(Tests::messageOf<Varo::Model::DescriptionError>([] { Sim::Model{Varo::Model::ModelUtils::Reading{}}; }),
              "Could not load model. The reading holds no robot.");
}

TEST(ModelOfAReading, TakesRobotsOfAnotherMake)
{
    auto robot = std::make_unique<FakeRobot>();
    robot->addChain("C", "Torso", {"J"});
    Sim::Model const model({std::move(robot), {}, {}});
    ASSERT_NE(model.link("JLink"), nullptr);
    EXPECT_EQ(model.place(*model.link("JLink")).line, 0);
    EXPECT_EQ(model.configFile(), "");
    EXPECT_TRUE(model.findings().empty());
}

TEST(ModelFindings, AreThoseOfTheTextAndOfTheBuildingInOrder)
{
    std::string const text =
        "<robotDescription name=\"A\">\n<sensor name=\"P\" parent=\"Q\" type=\"battery\"/>\n"
        "<sensor name=\"Z\" parent=\"B\" type=\"button\"/>\n<root name=\"B\"/>\n"
        "<sensor name=\"S\" parent=\"Q\" type=\"fsr\"/></robotDescription>";
    auto const codes = Tests::textsOf(Sim::Model(text).findings(), [](Finding const& finding) {
        return std::to_string(finding.line) + " " + finding.code;
    });
    EXPECT_THAT(codes, testing::ElementsAre("2 sensor-without-class", "2 dangling-reference", "5 dangling-reference"));
}
