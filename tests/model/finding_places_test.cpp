#include <string>
#include <vector>

#include <gmock/gmock.h>

#include "files.hpp"
#include "varo/model/model_utils.hpp"

namespace Varo::Model {
namespace {

std::string readData(std::string const& name)
{
    return Tests::readFile(VARO_SOURCE_DIR "/tests/model/data/" + name + ".xml");
}

struct Fault {
    char const* file;
    char const* code;
    std::pair<int, int> place;
    char const* path;  ///< behind that of the root element
    char const* said;  ///< part of message or hint
};

TEST(FindingPlaces, AreWhereEachFaultStandsOnce)
{
    for (Fault const& fault : {
             Fault{"unknown_element", "unknown-element", {5, 3}, "/joynt[@name=\"K\"]", "\"joint\"?"},
             Fault{"unknown_attribute", "unknown-attribute", {5, 42}, "/sensor[@name=\"S\"]", "\"colour\""},
             Fault{"missing_root", "missing-element", {1, 1}, "", "\"root\""},
             Fault{"missing_attribute", "missing-attribute", {3, 3}, "/joint[@name=\"J\"]", "\"min\""},
             Fault{"wrong_number", "wrong-value", {5, 28}, "/joint[@name=\"K\"]", "\"0,5\""},
             Fault{"wrong_count", "wrong-value", {5, 53}, "/sensor[@name=\"S\"]/placement", "three"},
             Fault{"sensor_unknown_type", "wrong-value", {5, 31}, "/sensor[@name=\"S\"]", "\"camera\"?"},
             Fault{"empty_key", "wrong-value", {5, 42}, "/sensor[@name=\"S\"]/key", "text"},
             Fault{"unexpected_text", "unexpected-text", {5, 3}, "", "\"fault\""},
             Fault{"duplicate_joint", "duplicate-name", {5, 10}, "/joint[@name=\"J\"]", "\"J\""},
             Fault{"duplicate_sub_joint",
                   "duplicate-name",
                   {7, 22},
                   "/actuator[@name=\"A\"]/group/subJoint[@name=\"F\"]",
                   "\"F\""},
             Fault{"duplicate_posture_angle", "duplicate-name", {5, 53}, "/posture[@name=\"P\"]/angle", "\"J\""},
             Fault{"sub_joint_again_as_joint_ref",
                   "duplicate-name",
                   {7, 22},
                   "/actuator[@name=\"A\"]/group/jointRef[@name=\"J\"]",
                   "Another sub-joint"},
             Fault{"duplicate_pretty_name", "duplicate-name", {4, 15}, "/prettyName", "\"1\""},
             Fault{"duplicate_attribute",
                   "duplicate-name",
                   {4, 16},
                   "/root[@name=\"Base\"]/attribute[@name=\"material\"]",
                   "\"material\""},
             Fault{"matrix_beside_xyz", "conflicting-attributes", {4, 28}, "/joint[@name=\"J\"]/placement", "matrix"},
             Fault{"actuator_cycle", "actuator-cycle", {5, 22}, "/actuator[@name=\"A\"]", "\"A\""},
             Fault{"number_too_large", "wrong-value", {5, 27}, "/joint[@name=\"K\"]", "1e999"},
             Fault{"negative_size", "wrong-value", {3, 18}, "/root[@name=\"Base\"]/visual/box", "negative"},
             Fault{
                 "color_out_of_range", "wrong-value", {3, 43}, "/root[@name=\"Base\"]/visual/material", "from 0 to 1"},
             Fault{
                 "mesh_without_file", "missing-attribute", {3, 16}, "/root[@name=\"Base\"]/collision/mesh", "\"file\""},
             Fault{
                 "missing_geometry", "missing-element", {3, 5}, "/root[@name=\"Base\"]/visual[@name=\"V\"]", "sphere"},
             Fault{"two_geometries", "repeated-element", {3, 36}, "/root[@name=\"Base\"]/collision/box", "of its own"},
         }) {
        SCOPED_TRACE(fault.file);
        Findings const findings = ModelUtils::diagnose(readData(fault.file));
        ASSERT_EQ(findings.size(), 1U);
        Finding const& finding = findings.front();
        EXPECT_EQ(finding.severity, Severity::error);
        EXPECT_EQ(finding.code, fault.code);
        EXPECT_EQ(std::pair(finding.line, finding.column), fault.place);
        EXPECT_EQ(finding.path, std::string("/robotDescription") + fault.path);
        EXPECT_THAT(finding.message + finding.hint, testing::HasSubstr(fault.said));
    }
}

TEST(FindingPlaces, CountCharactersWithoutTheByteOrderMarkAndLinesOfAnyKind)
{
    Findings const findings = ModelUtils::diagnose(
        "\xEF\xBB\xBF<robotDescription name='\xC3\xA4\xE2\x82\xAC' x='1'>\n"
        "<root name='B'/>\r\n\r\n y</robotDescription>");
    ASSERT_EQ(findings.size(), 2U);
    EXPECT_EQ(std::pair(findings[0].line, findings[0].column), std::pair(1, 29));
    EXPECT_EQ(std::pair(findings[1].line, findings[1].column), std::pair(4, 2));
    auto const robot =
        ModelUtils::robotFromXml("\xEF\xBB\xBF<robotDescription name='R'><root name='B'/></robotDescription>");
    EXPECT_EQ(robot->place(robot->records()->root).column, 28) << "as of what is noticed later";
}

TEST(FindingPlaces, PathsHoldNamesThatEndInAReferenceThatDoesNot)
{
    Findings const findings = ModelUtils::diagnose("<robotDescription><root name=\"A&#10;B&apos\"/>");
    ASSERT_FALSE(findings.empty());
    EXPECT_EQ(findings[0].path, "/robotDescription/root[@name=\"A?B&apos\"]");
}

TEST(FindingPlaces, SayWhereWhatIsNotClosedBegins)
{
    struct Broken {
        char const* text;
        std::pair<int, int> place;
        char const* said;
    };
    for (Broken const& broken : {
             Broken{"<a>\n <b name='x'>\n</a>", {3, 1}, "\"b\", opened at 2:2"},
             Broken{"<a>\n <b>\n", {2, 5}, "before \"b\", opened at 2:2, is closed"},
             Broken{"<a>\n <!-- never\nclosed </a>", {2, 2}, "comment"},
             Broken{"<?xml version='1.0' standalone='maybe'?><a/>", {1, 21}, "neither yes nor no"},
             Broken{"<?xml encoding='UTF-8'?><a/>", {1, 1}, "no version"},
             Broken{"<?xml version='1.0' charset='UTF-8'?><a/>", {1, 21}, "charset"},
             Broken{"robots/no_such_file.xml", {1, 1}, "looks like a path"},
             Broken{"<robotDescripton/>", {1, 1}, "\"robotDescription\"?"},
         }) {
        SCOPED_TRACE(broken.text);
        Finding const finding = ModelUtils::diagnose(broken.text).at(0);
        EXPECT_EQ(std::pair(finding.line, finding.column), broken.place);
        EXPECT_THAT(finding.message + finding.hint, testing::HasSubstr(broken.said));
    }
}

TEST(FindingPlaces, ExceptionSaysFirstErrorAndCarriesAll)
{
    try {
        ModelUtils::robotFromXml(readData("five_faults"));
        FAIL();
    } catch (DescriptionError const& error) {
        EXPECT_STREQ(error.what(), "2:21: root has no attribute \"msh\". (and 4 more)");
        EXPECT_EQ(error.findings().size(), 5U);
    }
}

TEST(FindingPlaces, BeyondTheThousandthFindingsAreOnlyCounted)
{
    std::string xml = "<robotDescription name='R'><root name='B'/>";
    for (int i = 0; i < 1500; ++i) {
        xml += "<x/>";
    }
    Findings const findings = ModelUtils::diagnose(xml + "</robotDescription>");
    ASSERT_EQ(findings.size(), 1001U);
    EXPECT_EQ(findings.back().code, "too-many-findings");
    EXPECT_THAT(findings.back().message, testing::HasSubstr("500"));
    EXPECT_EQ(findings.back().severity, Severity::error);
}

}  // namespace
}  // namespace Varo::Model
