#include <fstream>
#include <iostream>
#include <iterator>
#include <string>

#include "format_writer.hpp"
#include "spliced.hpp"

namespace {

namespace Native = Varo::Model::Native;
namespace Urdf = Varo::Model::Urdf;

std::string readFile(std::string const& path)
{
    std::ifstream in(path);
    return {std::istreambuf_iterator<char>(in), {}};
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
    std::string const formatPage = tree + "/docs/description-format.md";
    std::string const urdfPage = tree + "/docs/urdf.md";
    std::string format = Native::spliced(readFile(formatPage), "elements", Native::writeElementReference());
    format = Native::spliced(format, "findings", Native::writeFindingReference());
    std::string urdf = Native::spliced(readFile(urdfPage), "elements", Urdf::writeElementReference());
    urdf = Native::spliced(urdf, "sensor settings", Native::writeSensorSettingsReference());
    std::ofstream(formatPage) << format;
    std::ofstream(urdfPage) << urdf;
    std::ofstream(tree + "/schema/robot-description.xsd") << Native::writeSchema();
    return 0;
}
