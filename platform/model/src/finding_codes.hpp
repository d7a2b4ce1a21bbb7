#ifndef VARO_MODEL_FINDING_CODES_HPP
#define VARO_MODEL_FINDING_CODES_HPP

#include <string_view>

#include "varo/model/finding.hpp"

/// A kind of finding: its stable code, how grave it is, and what it means. The table in the documentation is made
/// of these lines.
namespace Varo::Model {

struct FindingCode {
    std::string_view name;  ///< lower-case words joined by hyphens
    Severity severity;
    std::string_view meaning;  ///< one sentence for the documentation
};

/// The codes of what is wrong with a text of any dialect; those of a dialect stand with its reader.
namespace codes {

inline constexpr FindingCode textTooLarge{"text-too-large", Severity::error, "The text is longer than 256 MiB."};
inline constexpr FindingCode malformedXml{"malformed-xml", Severity::error, "The text breaks a rule of XML."};
inline constexpr FindingCode documentType{
    "document-type", Severity::error,
    "There is a document type declaration (DOCTYPE), which descriptions do without; entities cannot be defined."};
inline constexpr FindingCode contentOutsideRoot{"content-outside-root", Severity::error,
                                                "A second root element, or text, stands beside the root element."};
inline constexpr FindingCode repeatedAttribute{"repeated-attribute", Severity::error,
                                               "An element has the same attribute twice."};
inline constexpr FindingCode badReference{
    "bad-reference", Severity::error,
    "An ampersand begins no reference that XML knows, or one to a character that XML forbids."};
inline constexpr FindingCode badCharacter{"bad-character", Severity::error,
                                          "A control character, or another that XML forbids, stands in the text."};
inline constexpr FindingCode badEncoding{"bad-encoding", Severity::error,
                                         "Bytes that are not UTF-8, or a declaration of another encoding."};
inline constexpr FindingCode unknownRoot{"unknown-root", Severity::error,
                                         "The root element is that of no dialect of robot descriptions."};
inline constexpr FindingCode tooManyFindings{
    "too-many-findings", Severity::error,
    "There are more findings than the 1000 that are listed; as grave as the gravest of those left out."};

/// In the order of the documentation.
inline constexpr FindingCode const* ofTexts[] = {
    &textTooLarge, &malformedXml, &documentType, &contentOutsideRoot, &repeatedAttribute,
    &badReference, &badCharacter, &badEncoding,  &unknownRoot,        &tooManyFindings,
};

}  // namespace codes

}  // namespace Varo::Model

#endif
