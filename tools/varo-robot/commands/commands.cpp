#include "commands/commands.hpp"

#include <charconv>
#include <cmath>
#include <filesystem>

#include <CLI/CLI.hpp>

#include "support/numbers.hpp"

namespace Tool {

namespace {

bool parseTolerance(std::string const& text, double& tolerance)
{
    double value = 0.0;
    char const* const end = text.data() + text.size();
    auto const [stop, error] = std::from_chars(text.data(), end, value);
    bool const isTolerance = error == std::errc() && stop == end && std::isfinite(value) && value >= 0.0;
    tolerance = isTolerance ? value : tolerance;
    return isTolerance;
}

}  // namespace

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

void declareTolerance(CLI::App& app, char const* option, double& tolerance, char const* meaning)
{
    auto const read = [&tolerance](std::string const& text) {
        if (!parseTolerance(text, tolerance)) {
            throw CLI::ValidationError("A tolerance is a number that is not negative, not " + text);
        }
    };
    app.add_option_function<std::string>(option, read, meaning)->type_name("NUMBER")->default_str(rounded(tolerance));
}

void declareWide(CLI::App& app, bool& wide)
{
    app.add_flag("--wide", wide, "Print lines in full, even where the terminal is narrower");
}

void declareJson(CLI::App& app, bool& json, char const* what)
{
    app.add_flag("--json", json, std::string("Print ") + what + " as JSON");
}

}  // namespace Tool
