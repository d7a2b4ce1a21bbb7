#ifndef VARO_MODEL_XML_CHARACTERS_HPP
#define VARO_MODEL_XML_CHARACTERS_HPP

#include <cstddef>
#include <string_view>

#include "varo/model/diagnostics.hpp"

namespace Varo::Model {

/// Reports bytes that are not UTF-8, which is said once of a text, and characters that XML forbids.
class CharacterCheck {
public:
    explicit CharacterCheck(Diagnostics& diagnostics) : _diagnostics(diagnostics) {}

    /// From `begin` to `end`; one finding for them is enough.
    void check(std::string_view text, std::size_t begin, std::size_t end);

private:
    Diagnostics& _diagnostics;
    bool _encodingReported = false;
};

}  // namespace Varo::Model

#endif
