#ifndef TESTS_TOOLS_RUN_TOOL_HPP
#define TESTS_TOOLS_RUN_TOOL_HPP

#include <filesystem>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "files.hpp"

namespace ToolTest {

using Tests::readFile;

struct Outcome {
    int status;  ///< the exit status, or -1 when a signal ended it
    std::string out;
    std::string err;
};

/// Runs varo-robot in a folder of its own, which goes with the test.
class ToolFixture : public testing::Test {
protected:
    ToolFixture();
    ~ToolFixture() override;

    /// Puts a file into the folder; its name is how commands find it.
    void write(std::string const& name, std::string const& text) const;

    /// `environment` is what a shell takes before a command: "LANG=C".
    Outcome run(std::vector<std::string> const& arguments, std::string const& input = {},
                std::string const& environment = {}) const;
    /// Any shell command, run there.
    Outcome runCommand(std::string const& command, std::string const& input = {}) const;

    /// Expects a JSON text to be as the schema, a file, says.
    void expectValid(std::string const& json, std::string const& schema) const;

    std::filesystem::path const& folder() const { return _folder; }

private:
    std::filesystem::path _folder;
};

/// In characters of UTF-8.
std::size_t widestLine(std::string const& text);

/// A pelvis with two mirrored legs of one joint, and a camera.
extern char const legs[];

/// One chain of as many joints, each a metre before the last.
std::string serialChain(int joints);

}  // namespace ToolTest

#endif
