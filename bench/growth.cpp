// One process for each measurement of bench/run_growth, so that peak memory is that of one text:
// - growth shapes: the names of all shapes, how many parts of a model an element is, whether they are accepted
// - growth write SHAPE N: a text of that shape with N elements
// - growth parse FILE: the bare parse
// - growth read FILE: the records and findings
// - growth load FILE: Sim::Model of the text
// - growth measure COMMAND: seconds of processor time, peak KiB and exit status of a command, whose output is dropped
#include <cstdio>
#include <cstdlib>
#include <string>

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include "bare_parse.hpp"
#include "growth_shapes.hpp"
#include "sim/model.hpp"
#include "text_file.hpp"

namespace {

int writeShape(std::string const& name, int elements)
{
    for (Bench::Shape const* shape = Bench::growthShapes; shape->name != nullptr; ++shape) {
        if (shape->name == name) {
            std::string const text = shape->text(elements);
            return std::fwrite(text.data(), 1, text.size(), stdout) == text.size() ? 0 : 1;
        }
    }
    return 2;
}

int listShapes()
{
    for (Bench::Shape const* shape = Bench::growthShapes; shape->name != nullptr; ++shape) {
        std::printf("%s %g %d\n", shape->name, shape->partsPerElement, shape->isAccepted ? 1 : 0);
    }
    return 0;
}

int work(std::string const& action, std::string text)
{
    if (action == "parse") {
        Bench::parseBare(text);
    } else if (action == "read") {
        auto const reading = Varo::Model::ModelUtils::read(std::move(text));
    } else {
        try {
            auto const model = Sim::Model::fromText(std::move(text));
        } catch (Varo::Model::WithFindings const&) {
            // Refused texts are to take no longer.
        }
    }
    return 0;
}

double seconds(timeval const& time)
{
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) * 1e-6;
}

[[noreturn]] void become(char** command)
{
    int const nowhere = open("/dev/null", O_WRONLY);
    dup2(nowhere, STDOUT_FILENO);
    dup2(nowhere, STDERR_FILENO);
    execv(command[0], command);
    std::_Exit(127);
}

/// The peak of a process counts that of the one which it was forked from: this one is small.
int measure(char** command)
{
    pid_t const child = fork();
    if (child == 0) {
        become(command);
    }
    int status = 0;
    rusage usage = {};
    if (child < 0 || wait4(child, &status, 0, &usage) != child) {
        return 1;
    }
    std::printf("%.6f %ld %d\n", seconds(usage.ru_utime) + seconds(usage.ru_stime), usage.ru_maxrss,
                WIFEXITED(status) ? WEXITSTATUS(status) : -1);
    return 0;
}

}  // namespace

int main(int argc, char** argv)
{
    std::string const action = argc > 1 ? argv[1] : "";
    if (action == "shapes") {
        return listShapes();
    }
    if (action == "write" && argc == 4) {
        return writeShape(argv[2], std::atoi(argv[3]));
    }
    if (action == "measure" && argc > 2) {
        return measure(argv + 2);
    }
    return argc == 3 ? work(action, Bench::readText(argv[2])) : 2;
}
