// One process for each measurement of bench/run_growth, so that peak memory is that of one text:
//   growth shapes            the names of all shapes, and whether they are accepted
//   growth write SHAPE N     a text of that shape with N elements
//   growth parse FILE        the bare parse
//   growth read FILE         the records and findings
//   growth load FILE         Sim::Model of the text
#include <cstdio>
#include <cstdlib>
#include <string>

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
        std::printf("%s %d\n", shape->name, shape->isAccepted ? 1 : 0);
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
    return argc == 3 ? work(action, Bench::readText(argv[2])) : 2;
}
