#include <cerrno>
#include <cstring>
#include <fstream>
#include <iostream>
#include <memory>

#include <CLI/CLI.hpp>

#include "commands/commands.hpp"
#include "support/description.hpp"

namespace Tool {

namespace {

struct Options {
    std::string file;
    std::string output;
};

void writeFile(std::string const& file, std::string const& text)
{
    std::ofstream stream(file, std::ios::binary);
    stream << text;
    if (!stream.flush()) {
        std::string const reason = std::strerror(errno);
        throw Refused(file, {fileFinding(Varo::Model::Severity::error, codes::unwritableFile,
                                         "It cannot be written: " + reason + ".")});
    }
}

int convert(Options const& options)
{
    Description const description = readAccepted(options.file);
    std::string const text = Varo::Model::ModelUtils::toXml(*description.reading.robot);
    if (options.output.empty() || options.output == "-") {
        std::cout << text;
    } else {
        writeFile(options.output, text);
    }
    return exitStatus::fine;
}

std::function<int()> declare(CLI::App& app)
{
    auto const options = std::make_shared<Options>();
    declareFile(app, options->file);
    app.add_option("-o,--output", options->output, "File to write instead of standard output")->type_name("OUT");
    return [options] { return convert(*options); };
}

}  // namespace

Command const convertCommand = {"convert", "Write the description in the native dialect",
                                R"(Reads a description of either dialect and writes it in the native one, in its
canonical form: elements and attributes in the format's order, values that are
defaults left out, comments dropped. The model of what is written equals that of
the original to the last bit, and converting it again changes nothing.

What the reader of a URDF description could not carry over is not written;
`varo-robot check` says what that is. The names of links in a URDF description
are kept as attributes "urdfLink".

Examples:
  varo-robot convert arm.urdf -o arm.xml
  varo-robot convert robot.urdf | varo-robot dump -)",
                                declare};

}  // namespace Tool
