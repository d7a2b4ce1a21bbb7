#include "growth_shapes.hpp"

namespace Bench {

namespace {

std::string numbered(char const* stem, int number)
{
    return stem + std::to_string(number);
}

std::string native(std::string const& body)
{
    return "<robotDescription name=\"R\"><root name=\"B\"/>" + body + "</robotDescription>\n";
}

std::string urdf(std::string const& body)
{
    return "<robot name=\"R\">" + body + "</robot>\n";
}

/// What `part` gives for each number, one behind the other.
template <class Part>
std::string each(int count, Part part)
{
    std::string text;
    for (int i = 0; i < count; ++i) {
        text += part(i);
        text += '\n';
    }
    return text;
}

std::string joint(int number)
{
    return "<joint name=\"" + numbered("J", number) +
           "\" min=\"-1\" max=\"1\"><placement xyz=\"0.1 0 0\"/><mass value=\"0.5\" com=\"0 0 0.1\"/></joint>";
}

std::string chainOf(int count)
{
    return "<chain name=\"C\" parent=\"B\">" +
           each(count, [](int i) { return "<jointRef name=\"" + numbered("J", i) + "\"/>"; }) + "</chain>";
}

std::string serialChain(int count)
{
    return native(each(count, joint) + chainOf(count));
}

std::string link(int number)
{
    return "<link name=\"" + numbered("L", number) + "\"/>";
}

std::string urdfJoint(int number, int parent, std::string const& more = "")
{
    return "<joint name=\"" + numbered("J", number) + "\" type=\"revolute\"><parent link=\"" + numbered("L", parent) +
           "\"/><child link=\"" + numbered("L", number + 1) +
           "\"/><origin xyz=\"0.1 0 0\"/><limit lower=\"-1\" upper=\"1\" effort=\"1\" velocity=\"1\"/>" + more +
           "</joint>";
}

std::string urdfChain(int count)
{
    return urdf(each(count, [](int i) { return link(i) + urdfJoint(i, i); }) + link(count));
}

std::string reversed(int count)
{
    return urdf(each(count, [count](int i) { return link(count - i) + urdfJoint(count - i - 1, count - i - 1); }) +
                link(0));
}

std::string star(int count)
{
    return urdf(link(0) + each(count, [](int i) { return link(i + 1) + urdfJoint(i, 0); }));
}

/// Each joint follows the one before it.
std::string mimics(int count)
{
    return urdf(link(0) + each(count, [](int i) {
                    std::string const mimic = "<mimic joint=\"" + numbered("J", i - 1) + "\"/>";
                    return link(i + 1) + urdfJoint(i, i, i == 0 ? "" : mimic);
                }));
}

std::string sensors(int count)
{
    return native(each(count, [](int i) {
        return "<sensor name=\"" + numbered("S", i) + "\" parent=\"B\" type=\"bumper\"><key>k</key></sensor>";
    }));
}

std::string groups(int count)
{
    return native(each(count, joint) + each(count, [](int i) {
                      return "<chain name=\"" + numbered("C", i) + "\" parent=\"" +
                             (i == 0 ? "B" : numbered("J", i - 1)) + "\"><jointRef name=\"" + numbered("J", i) +
                             "\"/></chain>";
                  }));
}

std::string leds(int count)
{
    return native(each(count, [](int i) {
        return "<sensor name=\"" + numbered("S", i) +
               "\" parent=\"B\" type=\"led\"><key>k</key><attribute name=\"shortname\" value=\"s\"/><attribute "
               "name=\"groups\" value=\"All\"/><attribute name=\"color\" value=\"255 0 0\"/></sensor>";
    }));
}

/// As many joints as postures, which state nothing.
std::string postures(int count)
{
    int const half = count / 2;
    return native(each(half, joint) + chainOf(half) +
                  each(half, [](int i) { return "<posture name=\"" + numbered("P", i) + "\"/>"; }));
}

std::string coupledActuators(int count)
{
    return native(joint(0) + chainOf(1) + each(count, [](int i) {
                      return "<actuator name=\"" + numbered("A", i) +
                             "\" parent=\"J0\" min=\"0\" max=\"1\"><group><subJoint name=\"" + numbered("S", i) +
                             "\" ratio=\"1\"/></group></actuator>";
                  }));
}

std::string attributes(int count)
{
    return native("<joint" + each(count, [](int i) { return " " + numbered("a", i) + "=\"1\""; }) + "/>");
}

std::string nesting(int count)
{
    return native(each(count, [](int) { return "<a>"; }) + each(count, [](int) { return "</a>"; }));
}

std::string comments(int count)
{
    return native(each(count, [](int) { return "<!-- so much for that -->"; }));
}

std::string findings(int count)
{
    return native(each(count, [](int i) {
        return "<sensor name=\"" + numbered("S", i) + "\" parent=\"" + numbered("Nobody", i) + "\" type=\"bumper\"/>";
    }));
}

constexpr char longStem[] = "name_of_a_joint_that_is_as_long_as_names_may_be_";

/// As many long names as misspelt references to them.
std::string misspellings(int count)
{
    std::string const stem = longStem;
    int const half = count / 2;
    return native(
        each(half, [&](int i) { return "<joint name=\"" + stem + numbered("J", i) + "\" min=\"0\" max=\"1\"/>"; }) +
        each(half, [&](int i) {
            return "<sensor name=\"" + numbered("S", i) + "\" parent=\"" + stem + numbered("K", i) +
                   "\" type=\"bumper\"/>";
        }));
}

std::string urdfMisspellings(int count)
{
    std::string const stem = longStem;
    int const half = count / 2;
    return urdf(each(half, [&](int i) { return "<link name=\"" + stem + numbered("L", i) + "\"/>"; }) +
                each(half, [&](int i) {
                    return "<gazebo reference=\"" + stem + numbered("K", i) + "\"><material>m</material></gazebo>";
                }));
}

/// Elements with a misspelt attribute and a misspelt child each.
std::string wrongWords(int count)
{
    return native(each(count, [](int i) {
        return "<joint name=\"" + numbered("J", i) + "\" min=\"-1\" max=\"1\" maxSped=\"1\"><placment/></joint>";
    }));
}

std::string urdfWrongWords(int count)
{
    return urdf(link(0) + each(count, [](int i) {
                    return "<link name=\"" + numbered("L", i + 1) + "\" nmae=\"1\"><inertal/></link>" +
                           urdfJoint(i, i, "<mimick joint=\"J0\"/>");
                }));
}

/// As many chains that list one joint as actuators on it.
std::string repeatedPlaces(int count)
{
    int const half = count / 2;
    return native(joint(0) +
                  each(half,
                       [](int i) {
                           return "<chain name=\"" + numbered("C", i) +
                                  "\" parent=\"B\"><jointRef name=\"J0\"/></chain>";
                       }) +
                  each(half, [](int i) {
                      return "<actuator name=\"" + numbered("A", i) + "\" parent=\"J0\" min=\"0\" max=\"1\"/>";
                  }));
}

}  // namespace

Shape const growthShapes[] = {
    {"chain", serialChain, 1, true},
    {"urdf-chain", urdfChain, 1, true},
    {"reversed", reversed, 1, true},
    {"star", star, 1, true},
    {"mimics", mimics, 1, true},
    {"sensors", sensors, 1, true},
    {"groups", groups, 1, true},
    {"leds", leds, 1, true},
    {"postures", postures, 1, true},
    {"actuators", coupledActuators, 1, true},
    {"attributes", attributes, 0, false},
    {"nesting", nesting, 0, false},
    {"comments", comments, 0, true},
    {"findings", findings, 0, true},
    {"misspellings", misspellings, 0, true},
    {"urdf-misspellings", urdfMisspellings, 0, false},
    {"wrong-words", wrongWords, 0, false},
    {"urdf-wrong-words", urdfWrongWords, 1, true},
    {"repeated-places", repeatedPlaces, 0, false},
    {nullptr, nullptr, 0, false},
};

}  // namespace Bench
