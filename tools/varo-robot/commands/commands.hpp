#ifndef TOOL_COMMANDS_COMMANDS_HPP
#define TOOL_COMMANDS_COMMANDS_HPP

#include <functional>
#include <string>

#include "varo/model/model_utils.hpp"

namespace CLI {
class App;
}

/// The subcommands of varo-robot, one source each.
namespace Tool {

namespace exitStatus {
inline constexpr int fine = 0;
inline constexpr int bad = 1;  ///< the description, or what was asked for is not in it
inline constexpr int wrongUsage = 2;
}  // namespace exitStatus

struct Command {
    char const* name;
    char const* summary;
    char const* details;  ///< what --help adds to the usage: description, notes, examples
    /// Declares arguments and options; the answer runs the command once they are parsed, and gives the exit status.
    std::function<int()> (*declare)(CLI::App& app);
};

extern Command const checkCommand;
extern Command const infoCommand;
extern Command const treeCommand;
extern Command const listCommand;
extern Command const showCommand;
extern Command const poseCommand;
extern Command const massCommand;
extern Command const graphCommand;
extern Command const dumpCommand;
extern Command const convertCommand;
extern Command const diffCommand;
extern Command const viewCommand;
extern Command const helpCommand;

/// Declares the argument that names the description file.
void declareFile(CLI::App& app, std::string& file);
/// Puts a file and what stands beside it into the order in which commands take them, which is another one than most
/// people type, where the files that there are show that they were swapped.
void putFileLast(std::string& other, std::string& file);
/// Declares --no-infer.
void declareReading(CLI::App& app, Varo::Model::ModelUtils::ReadOptions& options);
/// Declares an option that says how far numbers may differ.
void declareTolerance(CLI::App& app, char const* option, double& tolerance, char const* meaning);
/// Declares --wide, of commands that print tables or trees.
void declareWide(CLI::App& app, bool& wide);
/// Declares --json.
void declareJson(CLI::App& app, bool& json, char const* what);

}  // namespace Tool

#endif
