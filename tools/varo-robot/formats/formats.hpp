#ifndef TOOL_FORMATS_FORMATS_HPP
#define TOOL_FORMATS_FORMATS_HPP

#include <string>
#include <vector>

#include "support/json.hpp"
#include "varo/model/finding.hpp"

/// The formats in which `check` says what it found, one source each.
namespace Tool {

/// What was found in one file.
struct CheckedFile {
    std::string name;  ///< as messages name it
    Varo::Model::Findings findings;  ///< in the order of their places
};

/// The version of the objects that `check --format json` and `dump` print; it rises when a key goes, or means something
/// else.
inline constexpr int formatVersion = 1;

/// For people: findings on standard error, errors first, kinds of more than three put together unless `all` are wanted;
/// a summary of each file on standard output.
void printAsText(std::vector<CheckedFile> const& files, bool all);

/// For programs, on standard output: an array of findings; an object that holds that and its version; SARIF 2.1.0; the
/// annotations of GitHub's workflow commands.
void printAsArray(std::vector<CheckedFile> const& files);
void printAsJson(std::vector<CheckedFile> const& files);
void printAsSarif(std::vector<CheckedFile> const& files);
void printAsGithub(std::vector<CheckedFile> const& files);

}  // namespace Tool

#endif
