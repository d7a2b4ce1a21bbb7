#ifndef TOOL_SUPPORT_OUTPUT_FILE_HPP
#define TOOL_SUPPORT_OUTPUT_FILE_HPP

#include <string>
#include <string_view>

namespace Tool {

namespace codes {
inline constexpr char existingFile[] = "existing-file";
}

/// What happens to a file that is there already.
enum class Existing { isKept, isReplaced };

/// Writes the file that a user named for output. It is written beside its place and takes that place when it is whole
/// and on the disk, so that whatever goes wrong, a file of that name is the old one or the new one. A file that is
/// replaced hands down its permissions and, where that is allowed, its owner; symbolic links are followed. What is no
/// regular file, a device or a pipe, is written to as it is, and so is /dev/stdout, whatever it leads to.
///
/// Throws Refused when it cannot be written, or when it is there already and to be kept.
void writeFile(std::string const& file, std::string_view text, Existing existing);

/// Whether both names lead to one file; false when one of them leads to none.
bool isSameFile(std::string const& a, std::string const& b);

}  // namespace Tool

#endif
