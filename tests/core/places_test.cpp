#include <gmock/gmock.h>

#include "files.hpp"
#include "sim/actuator.hpp"
#include "sim/joint.hpp"
#include "sim/link.hpp"
#include "sim/model.hpp"
#include "sim/sensor.hpp"
#include "varo/model/robot.hpp"

namespace {

using Varo::Model::Part;
using Varo::Model::Place;

/// What stands in the text at a place.
std::string textAt(std::string const& text, Place const& place)
{
    std::size_t start = 0;
    for (int line = 1; line < place.line; ++line) {
        start = text.find('\n', start) + 1;
    }
    return text.substr(start + static_cast<std::size_t>(place.column) - 1);
}

/// Every element leads to an XML element that bears its name, or the one that its name is made of.
void expectPlaces(Sim::Model const& model, std::string const& linkElement)
{
    std::string const& text = model.configFile();
    auto const expectAt = [&](Place const& place, std::string const& pattern, std::string const& what) {
        ASSERT_GT(place.line, 0) << what;
        EXPECT_THAT(textAt(text, place).substr(0, 100), testing::ContainsRegex("^<" + pattern)) << what;
    };
    for (Sim::Joint const* joint : model.joints()) {
        expectAt(model.place(*joint), "[a-zA-Z]+ name=\"" + joint->name() + "\"", joint->name());
    }
    for (Sim::Link const* link : model.links()) {
        expectAt(model.place(*link), linkElement, link->name());
    }
    for (Sim::Actuator const* actuator : model.actuators()) {
        expectAt(model.place(*actuator), "(joint|actuator|wheel|sensor)[ :]", actuator->name());
    }
    for (Sim::Sensor const* sensor : model.sensors()) {
        expectAt(model.place(*sensor), "(joint|actuator|wheel|sensor)[ :]", sensor->name());
    }
}

/// With a line break of the other kind behind every line.
std::string withCrLf(std::string const& text)
{
    std::string result;
    for (char const c : text) {
        result += c == '\n' ? "\r\n" : std::string(1, c);
    }
    return result;
}

}  // namespace

TEST(Places, LeadFromElementsToTheText)
{
    for (std::string const& file : Tests::filesIn(VARO_SOURCE_DIR "/robots", ".xml")) {
        SCOPED_TRACE(file);
        expectPlaces(Sim::Model(file), "(root|joint|subJoint|jointRef|wheel) ");
        expectPlaces(Sim::Model(withCrLf(Tests::readFile(file))), "(root|joint|subJoint|jointRef|wheel) ");
    }
    for (std::string const& file : Tests::filesIn(VARO_SOURCE_DIR "/tests/urdf/data", ".urdf")) {
        SCOPED_TRACE(file);
        expectPlaces(Sim::Model(file), "link ");
    }
}

TEST(Places, LeadFromRecordsToWhatTheTextStates)
{
    Sim::Model const model(VARO_SOURCE_DIR "/robots/humanoid.xml");
    Varo::Model::Robot const& robot = model.robot();
    std::string const& text = model.configFile();
    for (auto const& joint : robot.records()->joints) {
        SCOPED_TRACE(joint.name);
        for (auto const& [part, written] : {std::pair(Part::minimum, "min=\""),
                                            {Part::maximum, "max=\""},
                                            {Part::velocity, "maxSpeed=\""},
                                            {Part::effort, "maxTorque=\""},
                                            {Part::mass, "value=\""},
                                            {Part::inertia, "inertia=\""}}) {
            Varo::Model::Statement const statement = robot.statement(joint, part);
            EXPECT_TRUE(statement.isStated) << written;
            std::string const there = text.substr(statement.offset.value(), 400);
            EXPECT_EQ(there.find(written + std::string(statement.text) + "\""), 0U) << there;
        }
        EXPECT_EQ(robot.place(joint).path, "/robotDescription/joint[@name=\"" + joint.name + "\"]");
        EXPECT_EQ(robot.place(joint, Part::mass).path, robot.place(joint).path + "/mass");
        EXPECT_FALSE(robot.statement(joint, Part::value).isStated) << "which joints do not have";
    }
}
