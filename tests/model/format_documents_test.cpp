#include <cstdlib>
#include <set>
#include <string>

#include <gmock/gmock.h>

#include "files.hpp"
#include "format_writer.hpp"
#include "native/elements.hpp"
#include "spliced.hpp"
#include "urdf/schema.hpp"
#include "value_types.hpp"
#include "varo/model/model_utils.hpp"

namespace Varo::Model {
namespace {

std::string const tree = VARO_SOURCE_DIR;

bool schemaAccepts(std::string const& file)
{
    std::string const command = std::string(XMLLINT " --noout --nonet --schema '") + tree +
                                "/schema/robot-description.xsd' '" + file + "' 2>/dev/null";
    int const status = std::system(command.c_str());
    // 3 is a file that does not validate; anything else would be a fault of the test.
    EXPECT_TRUE(WEXITSTATUS(status) == 0 || WEXITSTATUS(status) == 3) << command << ": " << WEXITSTATUS(status);
    return status == 0;
}

TEST(FormatDocuments, SchemaIsWhatTheTablesSay)
{
    EXPECT_EQ(Tests::readFile(tree + "/schema/robot-description.xsd"), Native::writeSchema())
        << "Run write_format to bring it up to date.";
}

TEST(FormatDocuments, ReferenceIsWhatTheTablesSay)
{
    std::string const docs = Tests::readFile(tree + "/docs/description-format.md");
    EXPECT_EQ(docs, Native::spliced(docs, "elements", Native::writeElementReference()));
    EXPECT_EQ(docs, Native::spliced(docs, "findings", Native::writeFindingReference()));
    std::string const urdf = Tests::readFile(tree + "/docs/urdf.md");
    EXPECT_EQ(urdf, Native::spliced(urdf, "elements", Urdf::writeElementReference()));
    EXPECT_EQ(urdf, Native::spliced(urdf, "findings", Urdf::writeFindingReference()));
    EXPECT_EQ(urdf, Native::spliced(urdf, "sensor settings", Native::writeSensorSettingsReference()));
    std::string const checking = Tests::readFile(tree + "/docs/checking.md");
    EXPECT_EQ(checking, Native::spliced(checking, "rules", Native::writeRuleReference()));
}

int compareDefaults(Schema::ElementInfo const& root)
{
    int compared = 0;
    for (Schema::ElementInfo const* element : Native::allElements(root)) {
        for (Schema::AttributeInfo const& attribute : element->attributes) {
            if (attribute.isDefault != nullptr) {
                ++compared;
                EXPECT_TRUE(attribute.isDefault(attribute.defaultText)) << element->name << " " << attribute.name;
            }
        }
    }
    return compared;
}

TEST(FormatDocuments, DeclaredDefaultsAreThoseOfTheRecords)
{
    EXPECT_GT(compareDefaults(Native::robotDescriptionElement), 20);
    EXPECT_GT(compareDefaults(Urdf::robotElement), 20);
}

TEST(FormatDocuments, SchemaAndReaderAcceptTheExampleRobots)
{
    auto const robots = Tests::filesIn(tree + "/robots", ".xml");
    EXPECT_GE(robots.size(), 3U);
    for (std::string const& file : robots) {
        EXPECT_TRUE(schemaAccepts(file)) << file;
        EXPECT_THAT(ModelUtils::diagnose(Tests::readFile(file)), testing::IsEmpty()) << file;
    }
}

TEST(FormatDocuments, SchemaRefusesWhatTheReaderRefuses)
{
    // What XSD 1.0 cannot say, as the documentation lists it.
    std::set<std::string> const beyondSchema = {"actuator_cycle",   "matrix_beside_xyz",  "missing_geometry",
                                                "number_too_large", "repeated_placement", "two_geometries"};
    auto const files = Tests::filesIn(tree + "/tests/model/data", ".xml");
    EXPECT_GE(files.size(), 15U);
    for (std::string const& file : files) {
        EXPECT_FALSE(ModelUtils::checkXml(Tests::readFile(file))) << file;
        EXPECT_EQ(schemaAccepts(file), beyondSchema.count(std::filesystem::path(file).stem().string()) == 1) << file;
    }
}

}  // namespace
}  // namespace Varo::Model
