#ifndef VARO_MODEL_XML_DECODING_HPP
#define VARO_MODEL_XML_DECODING_HPP

#include <optional>
#include <string>
#include <string_view>

namespace Varo::Model {

/// What a `&` begins.
struct Reference {
    std::string_view name;  ///< what stands between `&` and `;`
    bool isClosed = false;  ///< whether there is a `;`
    std::optional<char32_t> character;  ///< what it stands for; none for what XML does not know or allow
};

/// The text begins with a `&`.
Reference referenceAt(std::string_view text);

/// Where characters stand: what they mean depends on it.
enum class XmlContext { attribute, text, characterData };

/// Whether the characters may mean others than themselves.
bool needsDecoding(std::string_view raw, XmlContext context);

/// Appends what the characters mean: the characters that references stand for, one line feed for each end of a line,
/// and in attributes spaces for line feeds and tabs. What begins no reference stays.
void appendDecoded(std::string_view raw, XmlContext context, std::string& out);

}  // namespace Varo::Model

#endif
