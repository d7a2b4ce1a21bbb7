#ifndef VARO_TESTS_DESCRIPTIONS_HPP
#define VARO_TESTS_DESCRIPTIONS_HPP

#include <algorithm>
#include <string>
#include <vector>

// Small descriptions in the test text: the least that loads, and room for what a test is about.
namespace Tests {

inline constexpr char mass[] = R"(<mass value="2" com="0 0 0.5" inertia="1 0 0 0 2 0 0 0 3"/>)";

/// A description whose root "Base" weighs 2 kg, with `body` behind the root.
inline std::string robot(std::string const& body, std::string const& name = "Testbot")
{
    return "<robotDescription name=\"" + name + "\" version=\"1.0\"><root name=\"Base\" mesh=\"base.dae\">" + mass +
           "</root>" + body + "</robotDescription>";
}

/// A joint from -1 to 1.5 rad at up to 4 rad/s; `inside` holds its child elements.
inline std::string joint(std::string const& name, std::string const& inside = "", std::string const& attributes = "")
{
    return "<joint name=\"" + name + "\" mesh=\"" + name + ".dae\" min=\"-1\" max=\"1.5\" maxSpeed=\"4\" " +
           attributes + ">" + inside + "</joint>";
}

inline std::string mirror(std::string const& name, bool reflected = false)
{
    return "<mirror name=\"" + name + "\" reflected=\"" + (reflected ? "true" : "false") + "\"/>";
}

inline std::string chain(std::string const& name, std::string const& parent, std::vector<std::string> const& joints)
{
    std::string text = "<chain name=\"" + name + "\" parent=\"" + parent + "\">";
    for (std::string const& each : joints) {
        text += "<jointRef name=\"" + each + "\"/>";
    }
    return text + "</chain>";
}

/// A coupled actuator from 0 to 1 rad at up to 8 rad/s; `inside` holds its child elements.
inline std::string actuator(std::string const& name, std::string const& parent, std::string const& inside)
{
    return "<actuator name=\"" + name + "\" parent=\"" + parent + "\" min=\"0\" max=\"1\" maxSpeed=\"8\">" + inside +
           "</actuator>";
}

inline std::string subJoint(std::string const& name, std::string const& ratio = "1")
{
    return "<subJoint name=\"" + name + "\" mesh=\"" + name + ".dae\" ratio=\"" + ratio + "\"/>";
}

inline std::string wheel(std::string const& name, std::string const& parent, std::string const& inside = "")
{
    return "<wheel name=\"" + name + "\" parent=\"" + parent + "\" mesh=\"" + name +
           ".dae\" maxTorque=\"3\" maxVelocity=\"12\">" + mass + R"(<attribute name="material" value="rubber"/>)" +
           inside + "</wheel>";
}

inline std::string sensor(std::string const& name, std::string const& parent, std::string const& type,
                          std::string const& inside = "")
{
    return "<sensor name=\"" + name + "\" parent=\"" + parent + "\" type=\"" + type + "\">" + inside + "</sensor>";
}

inline std::string attribute(std::string const& name, std::string const& value)
{
    return "<attribute name=\"" + name + "\" value=\"" + value + "\"/>";
}

/// That many keys: "k0", "k1", ...
inline std::string keys(int count)
{
    std::string text;
    for (int i = 0; i < count; ++i) {
        text += "<key>k" + std::to_string(i) + "</key>";
    }
    return text;
}

/// The names of elements, in order; "-" for null.
template <class Elements>
std::vector<std::string> namesOf(Elements const& elements)
{
    std::vector<std::string> names;
    for (auto const& element : elements) {
        names.push_back(element == nullptr ? "-" : element->name());
    }
    return names;
}

}  // namespace Tests

#endif
