#ifndef VARO_MODEL_TEXT_FILE_HPP
#define VARO_MODEL_TEXT_FILE_HPP

#include <string>

#include "varo/export.hpp"

namespace Varo::Model {

/// What stands in a file that somebody named as that of a description, or what is in the way of it.
struct TextFile {
    std::string text;  ///< all of it, or one byte more than `ModelUtils::maxTextSize`; empty when there is an obstacle
    std::string obstacle;  ///< one sentence that says why there is no text; empty when there is one
    bool isOpened = false;  ///< whether the file could be opened, whatever was in the way then
    int error = 0;  ///< the number that the system has for the obstacle (errno); 0 when there is none
};

/// Reads a regular file or a pipe to its end. Other devices are refused before they are read, since reading from one
/// may have effects or never end; but for the one that is the process's standard input.
VAROROBOTMODEL_API TextFile readTextFile(std::string const& path);
/// Reads to its end whatever is open under the descriptor, which stays open.
VAROROBOTMODEL_API TextFile readTextFile(int descriptor);

}  // namespace Varo::Model

#endif
