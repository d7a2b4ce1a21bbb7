#ifndef VARO_MODEL_GENERATE_SPLICED_HPP
#define VARO_MODEL_GENERATE_SPLICED_HPP

#include <stdexcept>
#include <string>

namespace Varo::Model::Native {

/// `text` with what stands between the two comments of that name replaced by `part`. Throws std::runtime_error when
/// the text lacks them.
inline std::string spliced(std::string const& text, std::string const& name, std::string const& part)
{
    std::string const begin = "<!-- begin " + name + ", written by write_format -->\n";
    auto const first = text.find(begin);
    auto const last = text.find("<!-- end " + name + " -->");
    if (first == text.npos || last == text.npos) {
        throw std::runtime_error("The text has no place for the generated part " + name + ".");
    }
    return text.substr(0, first + begin.size()) + "\n" + part + "\n" + text.substr(last);
}

}  // namespace Varo::Model::Native

#endif
