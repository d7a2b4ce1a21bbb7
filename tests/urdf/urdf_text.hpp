#ifndef TESTS_URDF_URDF_TEXT_HPP
#define TESTS_URDF_URDF_TEXT_HPP

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "files.hpp"
#include "tables.hpp"
#include "varo/model/model_utils.hpp"

/// What the tests make URDF texts and look into robots with.
namespace UrdfTest {

using namespace Varo::Model;
using Tests::readFile;
using Tests::Tables;

inline std::string dataFile(std::string const& name)
{
    return VARO_SOURCE_DIR "/tests/urdf/data/" + name;
}

inline std::string robot(std::string const& content)
{
    return "<robot name=\"r\">" + content + "</robot>";
}

inline std::string link(std::string const& name)
{
    return "<link name=\"" + name + "\"/>";
}

inline std::string joint(std::string const& name, std::string const& parent, std::string const& child,
                         std::string const& content = "<limit lower=\"-1\" upper=\"1\"/>",
                         std::string const& type = "revolute")
{
    return "<joint name=\"" + name + "\" type=\"" + type + "\"><parent link=\"" + parent + "\"/><child link=\"" +
           child + "\"/>" + content + "</joint>";
}

/// Links root, a, b and c, one on the other by the joints A, B and C.
inline std::string arm(std::string const& moreOfC = {})
{
    return link("root") + link("a") + link("b") + link("c") + joint("A", "root", "a") + joint("B", "a", "b") +
           joint("C", "b", "c", "<limit lower=\"-1\" upper=\"1\"/>" + moreOfC);
}

inline Tables tablesOf(std::string const& xml)
{
    return Tables(*ModelUtils::robotFromXml(xml));
}

/// A text in which "@" stood where a finding has to point.
struct Marked {
    std::string text;
    int line;
    int column;
};

inline Marked withoutMark(std::string text)
{
    std::size_t const place = text.find('@');
    EXPECT_NE(place, text.npos) << text;
    text.erase(place, 1);
    std::string const before = text.substr(0, place);
    std::size_t const column = before.size() - (before.rfind('\n') + 1) + 1;
    auto const lines = std::count(before.begin(), before.end(), '\n');
    return {std::move(text), 1 + static_cast<int>(lines), static_cast<int>(column)};
}

/// The codes of the findings that are no notes.
inline std::vector<std::string> complaintsAbout(std::string const& xml)
{
    std::vector<std::string> codes;
    for (Finding const& finding : ModelUtils::diagnose(xml)) {
        if (finding.severity != Severity::note) {
            codes.push_back(finding.code);
        }
    }
    return codes;
}

}  // namespace UrdfTest

#endif
