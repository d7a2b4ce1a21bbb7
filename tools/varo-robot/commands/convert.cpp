#include <algorithm>
#include <iostream>
#include <memory>
#include <utility>

#ifdef __GLIBC__
#include <malloc.h>
#endif

#include <CLI/CLI.hpp>

#include "commands/commands.hpp"
#include "support/description.hpp"
#include "support/finding_text.hpp"
#include "support/output_file.hpp"

namespace Tool {

namespace {

struct Options {
    std::string file;
    std::string output;
    Varo::Model::ModelUtils::ReadOptions reading;
    std::string dialect = "native";
    bool force = false;
};

/// A file that is converted onto itself need not be named twice.
Existing whatBecomesOfOutput(Options const& options)
{
    bool const isInput = options.file != "-" && isSameFile(options.file, options.output);
    return options.force || isInput ? Existing::isReplaced : Existing::isKept;
}

/// Has large blocks go back to the system as soon as they are freed, so that the next step of a command can have that
/// memory. By default, glibc keeps blocks up to the size of the largest one that was freed so far.
void returnLargeBlocksAtOnce()
{
#ifdef __GLIBC__
    constexpr int leastBytes = 1024 * 1024;
    mallopt(M_MMAP_THRESHOLD, leastBytes);
#endif
}

/// Says on standard error what URDF has no words for.
std::string urdfOf(Varo::Model::Robot const& robot, std::string const& file)
{
    Varo::Model::Findings findings;
    std::string text = Varo::Model::ModelUtils::toUrdf(robot, findings);
    auto const isError = [](auto const& finding) { return finding.severity == Varo::Model::Severity::error; };
    if (std::any_of(findings.begin(), findings.end(), isError)) {
        throw Refused(file, std::move(findings));
    }
    printFolded(std::cerr, file, findings);
    return text;
}

int convert(Options const& options)
{
    bool const isToUrdf = options.dialect == "urdf";
    if (isToUrdf) {
        returnLargeBlocksAtOnce();  // what is written is read back, so that two robots are in memory
    }
    Description const description = readAccepted(options.file, options.reading);
    Varo::Model::Robot const& robot = *description.reading.robot;
    std::string const text = isToUrdf ? urdfOf(robot, description.file) : Varo::Model::ModelUtils::toXml(robot);
    if (options.output.empty() || options.output == "-") {
        std::cout << text;
    } else {
        writeFile(options.output, text, whatBecomesOfOutput(options));
    }
    return exitStatus::fine;
}

std::function<int()> declare(CLI::App& app)
{
    auto const options = std::make_shared<Options>();
    declareFile(app, options->file);
    declareReading(app, options->reading);
    app.add_option("-o,--output", options->output, "File to write instead of standard output")->type_name("OUT");
    app.add_option("--to", options->dialect, "Dialect to write")
        ->type_name("DIALECT")
        ->check(CLI::IsMember({"native", "urdf"}))
        ->capture_default_str();
    app.add_flag("-f,--force", options->force, "Replace OUT when it is another file than FILE and there already");
    return [options] { return convert(*options); };
}

}  // namespace

Command const convertCommand = {"convert", "Write the description in either dialect",
                                R"(Reads a description of either dialect and writes it in the native one, in its
canonical form: elements and attributes in the format's order, values that are
defaults left out, comments dropped. The model of what is written equals that of
the original to the last bit, and converting it again changes nothing.

What the reader of a URDF description could not carry over is not written;
`varo-robot check` says what that is. The names of links in a URDF description
are kept in attributes "link".

With --to urdf it is written in URDF. What URDF has no words for, such as
lights, wheels and mirrors, is noted on standard error, and kept in an element
of a namespace of our own, which other programs pass over: converting back gives
the same description.

OUT may be FILE itself; any other file that is there already is replaced with
--force only. OUT is the old file until the new one is whole and on the disk.

Examples:
  varo-robot convert arm.urdf -o arm.xml
  varo-robot convert robot.urdf | varo-robot dump -
  varo-robot convert --to urdf arm.xml -o arm.urdf)",
                                declare};

}  // namespace Tool
