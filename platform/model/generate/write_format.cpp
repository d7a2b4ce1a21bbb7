#include <fstream>
#include <iostream>
#include <iterator>
#include <string>

#include "format_writer.hpp"
#include "spliced.hpp"

namespace {

namespace Native = Varo::Model::Native;
namespace Urdf = Varo::Model::Urdf;

void splice(std::string const& file, std::string const& name, std::string const& part)
{
    std::ifstream in(file);
    std::string const text{std::istreambuf_iterator<char>(in), {}};
    std::ofstream(file) << Native::spliced(text, name, part);
}

}  // namespace

/// Writes the schema and the generated parts of the documentation into the source tree given as argument.
int main(int argc, char** argv)
{
    if (argc != 2) {
        std::cerr << "Usage: write_format SOURCE_TREE\n";
        return 2;
    }
    std::string const tree = argv[1];
    splice(tree + "/docs/description-format.md", "elements", Native::writeElementReference());
    splice(tree + "/docs/description-format.md", "findings", Native::writeFindingReference());
    splice(tree + "/docs/urdf.md", "elements", Urdf::writeElementReference());
    splice(tree + "/docs/urdf.md", "sensor settings", Native::writeSensorSettingsReference());
    splice(tree + "/docs/urdf.md", "findings", Urdf::writeFindingReference());
    splice(tree + "/docs/checking.md", "rules", Native::writeRuleReference());
    std::ofstream(tree + "/schema/robot-description.xsd") << Native::writeSchema();
    return 0;
}
