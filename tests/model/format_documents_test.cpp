#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include <gmock/gmock.h>

#include "format_writer.hpp"
#include "spliced.hpp"
#include "value_types.hpp"
#include "varo/model/model_utils.hpp"

namespace Varo::Model {
namespace {

std::string const tree = VARO_SOURCE_DIR;

std::string readFile(std::string const& path)
{
    std::ifstream in(path);
    EXPECT_TRUE(in) << path;
    return {std::istreambuf_iterator<char>(in), {}};
}

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
    EXPECT_EQ(readFile(tree + "/schema/robot-description.xsd"), Native::writeSchema())
        << "Run write_format to bring it up to date.";
}

TEST(FormatDocuments, ReferenceIsWhatTheTablesSay)
{
    std::string const docs = readFile(tree + "/docs/description-format.md");
    EXPECT_EQ(docs, Native::spliced(docs, "elements", Native::writeElementReference()));
    EXPECT_EQ(docs, Native::spliced(docs, "findings", Native::writeFindingReference()));
}

TEST(FormatDocuments, DeclaredDefaultsAreThoseOfTheRecords)
{
    int compared = 0;
    for (Native::Element const* element : Native::allElements()) {
        for (Native::Attribute const& attribute : element->attributes) {
            if (!attribute.required) {
                ++compared;
                EXPECT_TRUE(attribute.isDefault(attribute.defaultText)) << element->name << " " << attribute.name;
            }
        }
    }
    EXPECT_GT(compared, 20);
}

TEST(FormatDocuments, SchemaAndReaderAcceptTheExampleRobots)
{
    int robots = 0;
    for (auto const& entry : std::filesystem::directory_iterator(tree + "/robots")) {
        std::string const file = entry.path().string();
        if (entry.path().extension() == ".xml") {
            ++robots;
            EXPECT_TRUE(schemaAccepts(file)) << file;
            EXPECT_THAT(ModelUtils::diagnose(readFile(file)), testing::IsEmpty()) << file;
        }
    }
    EXPECT_GE(robots, 3);
}

/// What XSD 1.0 cannot say, as the documentation lists it.
bool isBeyondSchema(std::string const& fault)
{
    return fault == "repeated_placement" || fault == "matrix_beside_xyz" || fault == "actuator_loop" ||
           fault == "number_too_large";
}

TEST(FormatDocuments, SchemaRefusesWhatTheReaderRefuses)
{
    int refused = 0;
    for (auto const& entry : std::filesystem::directory_iterator(tree + "/tests/model/data")) {
        std::string const file = entry.path().string();
        ++refused;
        EXPECT_FALSE(ModelUtils::checkXml(readFile(file))) << file;
        EXPECT_EQ(schemaAccepts(file), isBeyondSchema(entry.path().stem().string())) << file;
    }
    EXPECT_GE(refused, 15);
}

}  // namespace
}  // namespace Varo::Model
