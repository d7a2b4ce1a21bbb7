#include <set>

#include <gmock/gmock.h>

#include "texts.hpp"
#include "urdf/schema.hpp"
#include "urdf_text.hpp"

namespace {

using namespace UrdfTest;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

/// The word with one letter dropped, doubled, swapped with the next, or of the other case.
std::set<std::string> misspellingsOf(std::string const& word)
{
    std::set<std::string> wrong;
    for (std::size_t i = 0; i < word.size(); ++i) {
        std::string const before = word.substr(0, i);
        std::string const after = word.substr(i + 1);
        wrong.insert(before + after);
        wrong.insert(before + word[i] + word[i] + after);
        wrong.insert(before + static_cast<char>(std::toupper(word[i])) + after);
        if (!after.empty()) {
            wrong.insert(before + after[0] + word[i] + after.substr(1));
        }
    }
    wrong.erase(word);
    wrong.erase("");
    return wrong;
}

/// Whether there is a warning of that code with a suggestion: not always the right one, for `ixx` and `ixy` are near.
bool isTold(std::string const& text, std::string const& code)
{
    for (Finding const& finding : ModelUtils::diagnose(text)) {
        if (finding.code == code && finding.severity == Severity::warning && finding.hint.find("Did you mean") == 0) {
            return true;
        }
    }
    return false;
}

/// Tries all names in an element, which stands between the two halves of a text.
void misspellAll(Schema::ElementInfo const& element, std::string const& before, std::string const& after, int& tried)
{
    std::set<std::string_view> attributes;
    for (Schema::AttributeInfo const& attribute : element.attributes) {
        attributes.insert(attribute.name);
    }
    std::string const start = before + "<" + std::string(element.name);
    std::string const end = "</" + std::string(element.name) + ">" + after;
    for (Schema::AttributeInfo const& attribute : element.attributes) {
        for (std::string const& wrong : misspellingsOf(std::string(attribute.name))) {
            if (attributes.count(wrong) == 0) {
                ++tried;
                EXPECT_TRUE(isTold(start + " " + wrong + "=\"1\">" + end, "unknown-attribute"))
                    << element.name << " " << wrong;
            }
        }
    }
    for (Schema::ChildInfo const& child : element.children) {
        std::string const name(child.element->name);
        for (std::string const& wrong : misspellingsOf(name)) {
            ++tried;
            EXPECT_TRUE(isTold(start + "><" + wrong + "/>" + end, "unknown-element")) << element.name << wrong;
        }
        misspellAll(*child.element, start + ">", end, tried);
    }
}

TEST(UrdfMisspellings, AreToldOfEveryNameThatUrdfHas)
{
    int tried = 0;
    misspellAll(Urdf::robotElement, "", "", tried);
    EXPECT_GT(tried, 1000);
}

TEST(UrdfMisspellings, AreToldFromWhatIsMisplacedOrForOthers)
{
    auto const codes = [](std::string const& content) {
        return Tests::textsOf(ModelUtils::diagnose(robot(link("root") + content)),
                              [](Finding const& finding) { return finding.code; });
    };
    EXPECT_THAT(codes("<material name=\"m\" drake:tint=\"1\" xmlns:drake=\"d\"/><drake:link/>"), IsEmpty());
    EXPECT_THAT(codes("<material nmae=\"m\"/><material name=\"m\" shine=\"1\"/><material name=\"n\" shine=\"2\"/>"),
                ElementsAre("unknown-attribute", "foreign-attribute"));
    EXPECT_THAT(codes("<mujoco><limt/><link/><compiler nmae=\"x\"/></mujoco>"), IsEmpty());
    EXPECT_THAT(codes("<origin/>"), Contains("misplaced-element"));
    EXPECT_THAT(codes("<lnik/><gap_joint/>"), ElementsAre("unknown-element"));

    std::string const lowwer =
        robot(link("root") + link("a") +
              joint("A", "root", "a", "<limit lowwer=\"-1\" upper=\"1\"/><limits/><axis xyz=\"1 0 0\"/>"));
    EXPECT_THAT(complaintsAbout(lowwer), ElementsAre("unknown-attribute", "unknown-element"));
    EXPECT_EQ(tablesOf(lowwer).joints.at("A").maxAngle, 1.0F);
    std::string const size = robot(
        "<link name=\"root\"><visual><origin quat_xyzw=\"0 0 0 1\"/><geometry>"
        "<sphere size=\"1\"/></geometry></visual></link>");
    EXPECT_THAT(complaintsAbout(size), ElementsAre("unknown-attribute", "unknown-attribute"));
}

TEST(UrdfMisspellings, OfReferencesLeadToTheNamesThatThereAre)
{
    std::string const limit = "<limit lower=\"-1\" upper=\"1\"/>";
    std::string const two = link("base") + link("forearm") + link("hand") + joint("elbow", "base", "forearm");
    std::string const wrist = joint("wrist", "forearm", "hand");
    struct Case {
        std::string content;
        std::string code;
        std::string meant;
    };
    for (Case const& given : std::vector<Case>{
             {joint("wrist", "foreram", "hand"), "unknown-link", "forearm"},
             {joint("wrist", "forearm", "hand", limit + "<mimic joint=\"elbw\"/>"), "unknown-leader", "elbow"},
             {wrist + "<sensor name=\"s\"><parent link=\"hnad\"/></sensor>", "sensor-lost", "hand"},
             {wrist + "<gazebo reference=\"hnad\"><mu1>1</mu1></gazebo>", "unknown-reference", "hand"},
             {wrist + "<transmission name=\"t\"><joint name=\"elbow_\"/></transmission>", "unknown-driven-joint",
              "elbow"},
             {wrist + "<ros2_control><joint name=\"wrst\"/></ros2_control>", "unknown-driven-joint", "wrist"},
             {wrist + "<gazeboo/>", "unknown-element", "gazebo"},
         }) {
        Findings const findings = ModelUtils::diagnose(robot(two + given.content));
        ASSERT_EQ(findings.size(), 1U) << given.content;
        EXPECT_EQ(findings[0].code, given.code);
        EXPECT_EQ(findings[0].hint, "Did you mean \"" + given.meant + "\"?");
    }
    EXPECT_THAT(complaintsAbout(robot(two + wrist + "<gazebo reference=\"camera\"/>")), IsEmpty());  // far from all
}

}  // namespace
