#include <chrono>
#include <exception>
#include <random>
#include <sstream>

#include <gtest/gtest.h>
#include <pugixml.hpp>

#include "sim/link.hpp"
#include "sim/model.hpp"
#include "urdf_text.hpp"

namespace {

using namespace UrdfTest;

constexpr char amendment[] = "<varo:description";

/// A robot or an error, and never neither. What is accepted must also load, but where it says what URDF has no words
/// for: that may be as wrong as a native text.
void readSafely(std::string const& text)
{
    ModelUtils::Reading const reading = ModelUtils::read(text);
    bool refused = false;
    for (Finding const& finding : reading.findings) {
        refused = refused || finding.severity == Severity::error;
        ASSERT_GE(finding.line, 1);
        ASSERT_GE(finding.column, 1);
    }
    ASSERT_EQ(reading.robot == nullptr, refused);
    if (reading.robot != nullptr) {
        ModelUtils::toUrdf(*reading.robot);
        try {
            Sim::Model const model(text);
        } catch (std::exception const& error) {
            EXPECT_NE(text.find(amendment), text.npos) << error.what();
        }
    }
}

/// Those that are URDF, and native ones that are written as such.
std::vector<std::string> sampleTexts()
{
    std::vector<std::string> texts;
    for (std::string const& folder :
         {std::string(VARO_SOURCE_DIR "/robots"), dataFile(""), Tests::realRobotsFolder()}) {
        for (std::string const& file : Tests::filesIn(folder, ".urdf")) {
            texts.push_back(readFile(file));
        }
        for (std::string const& file : Tests::filesIn(folder, ".xml")) {
            texts.push_back(ModelUtils::toUrdf(*ModelUtils::robotFromXml(readFile(file))));
        }
    }
    return texts;
}

TEST(UrdfRobustness, SurvivesFilesThatAreCutOff)
{
    for (std::string const& text : sampleTexts()) {
        std::size_t const step = text.size() < 10'000 ? 1 : text.size() / 97;
        for (std::size_t size = 0; size < text.size(); size += step) {
            readSafely(text.substr(0, size));
        }
    }
}

/// Half of the changes stay within characters that mean something, so that most texts stay XML.
std::string withChangedCharacters(std::string text, std::minstd_rand& random)
{
    static std::string const characters = "0123456789.-+e <>\"/=abj&;A";
    std::size_t const found = text.find(amendment);
    std::size_t const start = found == text.npos ? 0 : found;
    for (unsigned change = 0; change <= random() % 4; ++change) {
        char const any = static_cast<char>(random() % 256);
        text[start + random() % (text.size() - start)] =
            random() % 2 == 0 ? any : characters[random() % characters.size()];
    }
    return text;
}

/// Takes out, repeats or empties an element, or lets an attribute say what another one does: faults in what the text
/// says, where changed bytes mostly break how it says it.
void changeElement(pugi::xml_document& document, std::minstd_rand& random)
{
    std::vector<pugi::xpath_node> places;
    for (pugi::xpath_node const& place : document.select_nodes("/robot//*|/robot//@*")) {
        places.push_back(place);
    }
    pugi::xpath_node const place = places[random() % places.size()];
    if (pugi::xml_attribute attribute = place.attribute()) {
        pugi::xpath_node const other = places[random() % places.size()];
        attribute.set_value(other.attribute() ? other.attribute().value() : "");
        return;
    }
    pugi::xml_node node = place.node();
    switch (random() % 3) {
    case 0: node.parent().remove_child(node); break;
    case 1: node.parent().append_copy(node); break;
    default: node.remove_attributes(); break;
    }
}

std::string withMisplacedElement(std::string const& text, std::minstd_rand& random)
{
    pugi::xml_document document;
    document.load_string(text.c_str());
    changeElement(document, random);
    std::ostringstream changed;
    document.save(changed);
    return changed.str();
}

TEST(UrdfRobustness, SurvivesRandomChanges)
{
    std::minstd_rand random(20'240'229);
    for (std::string const& text : sampleTexts()) {
        for (int round = 0; round < 20; ++round) {
            readSafely(withChangedCharacters(text, random));
            readSafely(withMisplacedElement(text, random));
        }
    }
}

class Stopwatch {
public:
    double seconds() const { return std::chrono::duration<double>(std::chrono::steady_clock::now() - _start).count(); }

private:
    std::chrono::steady_clock::time_point _start = std::chrono::steady_clock::now();
};

constexpr double secondsPerMegabyte = 1.0;

void expectQuickModel(std::string const& text, std::size_t links)
{
    Stopwatch const stopwatch;
    Sim::Model const model(text);
    EXPECT_EQ(model.links().size(), links);
#ifdef VARO_TIMED_TESTS
    EXPECT_LT(stopwatch.seconds(), secondsPerMegabyte * static_cast<double>(text.size()) / 1e6);
#endif
}

TEST(UrdfRobustness, LoadsLongChainsWideLinksAndLongChainsOfMimics)
{
    constexpr int count = 100'000;
    std::string serial = link("l0");
    std::string wide = serial;
    std::string mimics = serial;
    for (int i = 1; i <= count; ++i) {
        std::string const name = "l" + std::to_string(i);
        std::string const next = i < count ? "<limit/><mimic joint='jl" + std::to_string(i + 1) + "'/>" : "<limit/>";
        serial += link(name) + joint("j" + name, "l" + std::to_string(i - 1), name, "<origin xyz='0 0 1'/><limit/>");
        wide += link(name) + joint("j" + name, "l0", name);
        mimics += link(name) + joint("j" + name, "l0", name, next);
    }
    for (std::string const& text : {serial, wide, mimics}) {
        expectQuickModel(robot(text), count + 1);
    }
}

TEST(UrdfRobustness, TakesDeeplyNestedElementsOfOthersInTime)
{
    std::string opened;
    std::string closed;
    for (int i = 0; i < 200'000; ++i) {
        opened += "<gazebo>";
        closed += "</gazebo>";
    }
    Stopwatch const stopwatch;
    EXPECT_FALSE(ModelUtils::checkXml(robot(link("root") + opened)));
    EXPECT_TRUE(ModelUtils::checkXml(robot(link("root") + opened + closed)));
    EXPECT_LT(stopwatch.seconds(), 2.0 + secondsPerMegabyte * static_cast<double>(3 * opened.size()) / 1e6);
}

}  // namespace
