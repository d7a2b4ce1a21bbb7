#include <algorithm>
#include <chrono>
#include <random>
#include <string>

#include <gmock/gmock.h>

#include "files.hpp"
#include "varo/model/model_utils.hpp"

namespace Varo::Model {
namespace {

std::string const head = "<robotDescription name='R'><root name='B'/>";
std::string const tail = "</robotDescription>";

/// Refused with a place, whatever it is, and in a time that linear work does not reach even in a slow build.
void expectRefused(std::string const& xml)
{
    auto const start = std::chrono::steady_clock::now();
    Findings const findings = ModelUtils::diagnose(xml);
    std::chrono::duration<double> const seconds = std::chrono::steady_clock::now() - start;
    ASSERT_FALSE(findings.empty());
    EXPECT_LE(findings.size(), 1001U);
    EXPECT_GE(findings[0].line, 1);
    EXPECT_GE(findings[0].column, 1);
    EXPECT_LT(findings[0].message.size(), 1000U);
    EXPECT_LT(findings[0].path.size(), 4000U);
    EXPECT_FALSE(ModelUtils::checkXml(xml));
    EXPECT_LT(seconds.count(), 20.0);
}

std::string repeated(std::string const& part, std::size_t count)
{
    std::string text;
    text.reserve(part.size() * count);
    for (std::size_t i = 0; i < count; ++i) {
        text += part;
    }
    return text;
}

TEST(HostileText, ATextCutAnywhereIsRefusedOnce)
{
    std::string xml = Tests::readFile(VARO_SOURCE_DIR "/robots/minimal.xml");
    xml.resize(xml.find("</robotDescription>") + 18);
    for (std::size_t size = 0; size <= xml.size(); ++size) {
        Findings const findings = ModelUtils::diagnose(xml.substr(0, size));
        ASSERT_EQ(findings.size(), 1U) << size << " bytes";
        EXPECT_EQ(findings[0].severity, Severity::error);
    }
}

TEST(HostileText, GarbageIsRefused)
{
    std::mt19937 random(1);
    std::string garbage(10'000'000, '\0');
    for (char& c : garbage) {
        c = static_cast<char>(random());
    }
    expectRefused(garbage);
    expectRefused(head + garbage);
    expectRefused(repeated("<", 10'000'000));
    expectRefused(head + repeated("&", 10'000'000) + tail);
    expectRefused(head + "<x a='" + repeated("&", 3'000'000) + "'/>" + tail);
}

TEST(HostileText, LongNamesAreRefusedAndShortenedInWhatIsSaid)
{
    std::string const name(1'000'000, 'x');
    expectRefused(head + "<joint min='0' max='1' name='" + name + "'/>" + tail);
    expectRefused(head + "<" + name + "/>" + tail);
    expectRefused(head + "<joint " + name + "='1'/>" + tail);
    expectRefused(head + "<joint name='" + name + "'>" + repeated("<y/>", 100'000) + "</joint>" + tail);
}

TEST(HostileText, ManyFaultsInOneElementAreFoundInLinearTime)
{
    std::string attributes;
    for (int i = 0; i < 200'000; ++i) {
        attributes += " a" + std::to_string(i) + "='&'";
    }
    expectRefused(head + "<joint" + attributes + "/>" + tail);
}

TEST(HostileText, ChainsThatListOneJointAgainAndAgainAreBounded)
{
    auto const textOf = [](int chains) {
        std::string text = head + "<joint name='J' min='0' max='1'/>";
        for (int i = 0; i < chains; ++i) {
            std::string const number = std::to_string(i);
            text += "<chain name='C" + number + "' parent='B'><jointRef name='J'/></chain>";
            text += "<actuator name='A" + number + "' parent='J' min='0' max='1'/>";
        }
        return text + tail;
    };
    EXPECT_TRUE(ModelUtils::checkXml(textOf(100)));
    EXPECT_FALSE(ModelUtils::checkXml(textOf(1500)));
    Findings const findings = ModelUtils::diagnose(textOf(1500));
    EXPECT_EQ(std::count_if(findings.begin(), findings.end(),
                            [](Finding const& finding) {
                                return finding.severity == Severity::error &&
                                       (finding.code == "too-many-chain-places" || finding.code == "too-many-findings");
                            }),
              1);
}

TEST(HostileText, SuggestionsAreForTheFirstOfManyFindings)
{
    std::string const stem(55, 'n');
    std::string native = head;
    std::string urdf = "<robot name='R'>";
    for (int i = 0; i < 2500; ++i) {
        std::string const number = std::to_string(10000 + i);
        native += "<joint name='" + stem + number + "' min='0' max='1'/>";
        native += "<sensor name='S" + number + "' type='bumper' parent='" + stem + "x" + number + "'/>";
        urdf += "<link name='" + stem + number + "'/><joint name='J" + number + "' type='fixed'><parent link='" + stem;
        urdf += number + "'/><child link='" + stem + "x" + number + "'/></joint>";
    }
    for (std::string const& text : {native + tail, urdf + "</robot>"}) {
        Findings const findings = ModelUtils::diagnose(text);
        EXPECT_EQ(findings.size(), 1001U);
        auto const suggests = [](Finding const& finding) { return finding.hint.find("Did you mean") == 0; };
        EXPECT_TRUE(suggests(findings.front())) << findings.front().message;
        EXPECT_LT(std::count_if(findings.begin(), findings.end(), suggests), 500);
    }
}

TEST(HostileText, DeepNestingIsRefusedWithoutRecursion)
{
    std::string const deep = repeated("<a>", 100'000);
    expectRefused(deep);
    expectRefused(deep + repeated("</a>", 100'000));
    expectRefused(head + deep + "&" + repeated("</a>", 100'000) + tail);
}

}  // namespace
}  // namespace Varo::Model
