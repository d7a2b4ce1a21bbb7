#include "commands/commands.hpp"

#include <filesystem>

#include <CLI/CLI.hpp>

namespace Tool {

void declareFile(CLI::App& app, std::string& file)
{
    app.add_option("FILE", file, "Description to read, native or URDF; - reads standard input")
        ->type_name("")
        ->required();
}

void putFileLast(std::string& other, std::string& file)
{
    auto const isFile = [](std::string const& name) {
        std::error_code failure;
        return name == "-" || std::filesystem::exists(name, failure);
    };
    if (isFile(other) && !isFile(file)) {
        other.swap(file);
    }
}

void declareReading(CLI::App& app, Varo::Model::ModelUtils::ReadOptions& options)
{
    app.add_flag_callback(
        "--no-infer", [&options] { options.inferMirrors = false; }, "Do not pair left and right of a URDF");
}

void declareJson(CLI::App& app, bool& json, char const* what)
{
    app.add_flag("--json", json, std::string("Print ") + what + " as JSON");
}

}  // namespace Tool
