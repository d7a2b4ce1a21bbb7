#include <fstream>
#include <iostream>
#include <iterator>
#include <string>

#include "format_writer.hpp"
#include "spliced.hpp"

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
    std::ifstream in(docs);
    std::string text{std::istreambuf_iterator<char>(in), {}};
    text = Native::spliced(text, "elements", Native::writeElementReference());
    text = Native::spliced(text, "findings", Native::writeFindingReference());
    std::ofstream(docs) << text;
    std::ofstream(tree + "/schema/robot-description.xsd") << Native::writeSchema();
    return 0;
}
