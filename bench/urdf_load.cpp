// How long URDF files take to load, beside the bare parse of the same text and, where urdfdom was found when this was
// built, beside that reader.
#include <algorithm>
#include <cstdio>
#include <exception>
#include <string>
#include <vector>

#ifdef VARO_BENCH_URDFDOM
#include <console_bridge/console.h>
#include <urdf_parser/urdf_parser.h>
#endif

#include "bare_parse.hpp"
#include "sim/model.hpp"
#include "text_file.hpp"
#include "timing.hpp"
#include "varo/model/model_utils.hpp"

namespace {

bool loads(std::string const& text)
{
    try {
        Sim::Model const model(text);
        return true;
    } catch (std::exception const&) {
        return false;
    }
}

#ifdef VARO_BENCH_URDFDOM

bool const hasUrdfdom = true;

bool readByUrdfdom(std::string const& text)
{
    return urdf::parseURDF(text) != nullptr;
}

/// Its messages about the files are not what is measured.
void silenceUrdfdom()
{
    console_bridge::noOutputHandler();
}

#else

bool const hasUrdfdom = false;

bool readByUrdfdom(std::string const&)
{
    return false;
}

void silenceUrdfdom() {}

#endif

void printHead()
{
    std::printf("| file | text (KiB) | bare parse (us) | ModelUtils::read (us) | Sim::Model (us) | to bare parse |");
    std::printf(hasUrdfdom ? " urdfdom (us) | urdfdom to Sim::Model |\n" : "\n");
    std::printf("| --- | ---: | ---: | ---: | ---: | ---: |");
    std::printf(hasUrdfdom ? " ---: | ---: |\n" : "\n");
}

/// Prints the row of a file and notes how many times as long urdfdom takes.
void printRow(std::string const& name, std::string const& text, std::vector<double>& urdfdomRatios)
{
    std::vector<Bench::Action> actions = {
        [&] { Bench::parseBare(text); },
        [&] { Varo::Model::ModelUtils::read(text); },
        [&] { Sim::Model const model(text); },
    };
    bool const compare = hasUrdfdom && readByUrdfdom(text);
    if (compare) {
        actions.emplace_back([&] { readByUrdfdom(text); });
    }
    auto const times = Bench::smallestMedians(actions);
    std::printf("| %s | %zu | %.1f | %.1f | %.1f | %.2f |", name.c_str(), text.size() / 1024, times[0], times[1],
                times[2], times[2] / times[0]);
    if (compare) {
        urdfdomRatios.push_back(times[3] / times[2]);
        std::printf(" %.1f | %.2f |\n", times[3], urdfdomRatios.back());
    } else {
        std::printf(hasUrdfdom ? " refused | |\n" : "\n");
    }
    std::fflush(stdout);
}

void printSummary(std::vector<double> ratios)
{
    if (ratios.empty()) {
        return;
    }
    std::sort(ratios.begin(), ratios.end());
    std::printf("\nurdfdom to Sim::Model: min %.2f, median %.2f, max %.2f of %zu files\n", ratios.front(),
                ratios[ratios.size() / 2], ratios.back(), ratios.size());
}

}  // namespace

int main(int argc, char** argv)
{
    silenceUrdfdom();
    printHead();
    std::vector<double> urdfdomRatios;
    for (int i = 1; i < argc; ++i) {
        std::string const text = Bench::readText(argv[i]);
        if (loads(text)) {
            printRow(Bench::nameOf(argv[i]), text, urdfdomRatios);
        } else {
            std::printf("| %s | refused |\n", Bench::nameOf(argv[i]).c_str());
        }
    }
    printSummary(urdfdomRatios);
}
