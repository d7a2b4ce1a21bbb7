#include <fstream>
#include <iostream>
#include <iterator>
#include <string>

#include "format_writer.hpp"
#include "spliced.hpp"

namespace {

std::string contentOf(std::string const& file)
{
    std::ifstream in(file);
    return {std::istreambuf_iterator<char>(in), {}};
}

}  // namespace

/// Writes the schema and the generated parts of the documentation into the source tree given as argument.
int main(int argc, char** argv)
{
    namespace Native = Varo::Model::Native;
    if (argc != 2) {
        std::cerr << "Usage: write_format SOURCE_TREE\n";
        return 2;
    }
    std::string const tree = argv[1];
    std::string const docs = tree + "/docs/description-format.md";
    std::string const urdf = tree + "/docs/urdf.md";
    std::string text = contentOf(docs);
    text = Native::spliced(text, "elements", Native::writeElementReference());
    text = Native::spliced(text, "findings", Native::writeFindingReference());
    std::ofstream(docs) << text;
    text = Native::spliced(contentOf(urdf), "sensor settings", Native::writeSensorSettingsReference());
    std::ofstream(urdf) << text;
    std::ofstream(tree + "/schema/robot-description.xsd") << Native::writeSchema();
    return 0;
}
