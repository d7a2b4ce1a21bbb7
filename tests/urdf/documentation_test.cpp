#include <gmock/gmock.h>

#include "urdf/urdf_codes.hpp"
#include "urdf_text.hpp"

namespace {

using namespace UrdfTest;

TEST(UrdfDocumentation, ListsEveryFinding)
{
    static char const* const severities[] = {"note", "warning", "error"};
    std::string const page = readFile(VARO_SOURCE_DIR "/docs/urdf.md");
    for (FindingCode const* code : Urdf::codes::ofDialect) {
        std::string const severity = severities[static_cast<std::size_t>(code->severity)];
        EXPECT_THAT(page, testing::HasSubstr("| `" + std::string(code->name) + "` | " + severity + " | " +
                                             std::string(code->meaning) + " |"));
    }
}

}  // namespace
