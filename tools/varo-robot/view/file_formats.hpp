#ifndef TOOL_VIEW_FILE_FORMATS_HPP
#define TOOL_VIEW_FILE_FORMATS_HPP

#include <string>
#include <string_view>
#include <vector>

/// What the files are that a robot names, by what is in them: a page carries nothing but meshes and their images,
/// whatever files are called.
namespace Tool {

/// "stl", "obj" or "dae" for bytes that are such a mesh as a whole, and empty for any others.
std::string meshFormatOf(std::string_view bytes);

/// Whether it is what a mesh of format "obj" says of its materials.
bool isMaterialLibrary(std::string_view bytes);

/// "image/png" or "image/jpeg", and empty for anything else.
std::string imageTypeOf(std::string_view bytes);

/// The files that a mesh of this format names: images, and the material library of an OBJ.
std::vector<std::string> filesNamedBy(std::string const& meshFormat, std::string_view bytes);
/// The images that a material library names.
std::vector<std::string> imagesNamedBy(std::string_view materialLibrary);

}  // namespace Tool

#endif
