#include <algorithm>
#include <filesystem>
#include <map>
#include <sstream>
#include <string_view>

#include <gmock/gmock.h>

#include "files.hpp"
#include "findings_of_text.hpp"
#include "texts.hpp"

/// What is found in whole robots: our own, and real ones where they stand beside the sources.
namespace RulesTest {

namespace {

std::string const data = VARO_SOURCE_DIR "/tests/rules";

Strings linesOf(std::string const& file)
{
    Strings lines;
    std::istringstream text(Tests::readFile(file));
    for (std::string line; std::getline(text, line);) {
        if (!line.empty() && line[0] != '#') {
            lines.push_back(line);
        }
    }
    return lines;
}

Strings robotFiles()
{
    Strings files = Tests::filesIn(Tests::realRobotsFolder(), ".urdf");
    for (char const* ending : {".xml", ".urdf"}) {
        Strings const own = Tests::filesIn(VARO_SOURCE_DIR "/robots", ending);
        files.insert(files.end(), own.begin(), own.end());
    }
    return files;
}

std::string nameOf(std::string const& file)
{
    return std::filesystem::path(file).filename().string();
}

/// "LINE:COLUMN SEVERITY CODE".
std::string compact(Finding const& finding)
{
    constexpr char const* severities[] = {"note", "warning", "error"};
    return std::to_string(finding.line) + ":" + std::to_string(finding.column) + " " +
           severities[static_cast<int>(finding.severity)] + " " + finding.code;
}

/// Each line was judged beside the text that it is about; the lines that begin with # say how.
TEST(KnownRobots, HaveTheFindingsThatWereJudged)
{
    for (std::string const& file : robotFiles()) {
        Strings const found = Tests::textsOf(findingsOf(Tests::readFile(file)), compact);
        std::string const judged = data + "/expected/" + nameOf(file) + ".txt";
        bool const isJudged = std::filesystem::exists(judged);
        EXPECT_EQ(found, isJudged ? linesOf(judged) : Strings{"judged in " + judged}) << file;
    }
}

Strings fieldsOf(std::string const& line)
{
    constexpr std::string_view between = " | ";
    Strings fields;
    std::size_t begin = 0;
    for (std::size_t end = line.find(between); end != line.npos; end = line.find(between, begin)) {
        fields.push_back(line.substr(begin, end - begin));
        begin = end + between.size();
    }
    fields.push_back(line.substr(begin));
    return fields;
}

/// Puts the fault of a line of the list into the text and returns "LINE CODE" of what is to be found.
std::string sow(std::string const& line, std::string& text)
{
    Strings const seed = fieldsOf(line);
    if (seed.size() != 4) {
        ADD_FAILURE() << line;
        return {};
    }
    std::size_t const place = text.find(seed[1], text.find(seed[0]));
    text = Tests::replaced(text, seed[1], seed[2], seed[0]);
    auto const end = text.begin() + static_cast<std::ptrdiff_t>(std::min(place, text.size()));
    return std::to_string(1 + std::count(text.begin(), end, '\n')) + " " + seed[3];
}

/// The seeds of each file.
std::map<std::string, Strings> seeds()
{
    std::map<std::string, Strings> seeds;
    std::string file;
    for (std::string const& line : linesOf(data + "/data/seeded_faults.txt")) {
        if (line.find("file ") == 0) {
            file = line.substr(5);
        } else {
            seeds[file].push_back(line);
        }
    }
    return seeds;
}

/// All of them, on their lines, and nothing that only follows from them.
TEST(KnownRobots, ShowTenSeededFaultsEachOnItsLine)
{
    auto const all = seeds();
    std::size_t sown = 0;
    for (std::string const& file : robotFiles()) {
        auto const faults = all.find(nameOf(file));
        if (faults == all.end()) {
            continue;
        }
        std::string text = Tests::readFile(file);
        Strings expected = linesAndCodes(text);
        for (std::string const& seed : faults->second) {
            expected.push_back(sow(seed, text));
        }
        EXPECT_EQ(faults->second.size(), 10U) << file;
        EXPECT_THAT(linesAndCodes(text), testing::UnorderedElementsAreArray(expected)) << file;
        ++sown;
    }
    EXPECT_GE(sown, 2U);  // our own
}

}  // namespace

}  // namespace RulesTest
