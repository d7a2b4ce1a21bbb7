#include <gmock/gmock.h>

#include "finding_codes.hpp"
#include "urdf/urdf_codes.hpp"
#include "urdf_text.hpp"

namespace {

using namespace UrdfTest;

TEST(UrdfDocumentation, ListsEveryFinding)
{
    static char const* const severities[] = {"note", "warning", "error"};
    std::string const page = readFile(VARO_SOURCE_DIR "/docs/urdf.md");
    std::vector<FindingCode const*> listed(std::begin(codes::ofLinkTrees), std::end(codes::ofLinkTrees));
    listed.insert(listed.end(), std::begin(Urdf::codes::ofDialect), std::end(Urdf::codes::ofDialect));
    listed.insert(listed.end(), {&codes::ambiguousName, &codes::ambiguousLinkName});
    for (FindingCode const* code : listed) {
        std::string const severity = severities[static_cast<std::size_t>(code->severity)];
        EXPECT_THAT(page, testing::HasSubstr("| `" + std::string(code->name) + "` | " + severity + " | " +
                                             std::string(code->meaning) + " |"));
    }
}

}  // namespace
