#include "xml_text.hpp"

#include <string>

namespace Varo::Model {

bool parseXml(std::string_view text, pugi::xml_document& document, Diagnostics& diagnostics)
{
    if (text.size() > largestText) {
        diagnostics.report({0, {}}, codes::textTooLarge, "The text is longer than 256 MiB.");
        return false;
    }
    auto const result = document.load_buffer(text.data(), text.size(), pugi::parse_default, pugi::encoding_utf8);
    if (!result) {
        diagnostics.report({static_cast<std::size_t>(result.offset), {}}, codes::malformedXml, result.description());
        return false;
    }
    return true;
}

}  // namespace Varo::Model
