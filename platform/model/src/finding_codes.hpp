#ifndef VARO_MODEL_FINDING_CODES_HPP
#define VARO_MODEL_FINDING_CODES_HPP

#include "varo/model/finding.hpp"

namespace Varo::Model {

/// The kinds of findings about a text of any dialect; those of a dialect stand with its reader. The tables in the
/// documentation are made of these lines.
namespace codes {

inline constexpr FindingCode unreadableFile{"unreadable-file", Severity::error,
                                            "A file cannot be read, or is none that a description can stand in."};
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
                                         "The root element is not one that a robot description begins with."};
inline constexpr FindingCode xacroFile{
    "xacro-file", Severity::error,
    "The text has elements of xacro or expressions such as `${...}`: URDF is what xacro makes of it."};
inline constexpr FindingCode otherFormat{"other-format", Severity::error,
                                         "The text is a description of another format: SDF, MuJoCo's or SRDF."};
inline constexpr FindingCode pathNotText{"path-not-text", Severity::error,
                                         "The text is no XML but looks like the path of a file."};
inline constexpr FindingCode ambiguousName{
    "ambiguous-name", Severity::warning,
    "A joint, wheel, sub-joint or the root is named like the link of another, which has `Link` appended."};
inline constexpr FindingCode ambiguousLinkName{
    "ambiguous-link-name", Severity::warning,
    "A link has a name in the text that models, or the text itself, have for another link."};
inline constexpr FindingCode tooManyFindings{
    "too-many-findings", Severity::error,
    "There are more findings than the 1000 that are listed; of the highest severity among those left out."};

/// In the order of the documentation.
inline constexpr FindingCode const* ofTexts[] = {
    &unreadableFile, &textTooLarge,  &malformedXml,      &documentType,    &contentOutsideRoot, &repeatedAttribute,
    &badReference,   &badCharacter,  &badEncoding,       &unknownRoot,     &xacroFile,          &otherFormat,
    &pathNotText,    &ambiguousName, &ambiguousLinkName, &tooManyFindings,
};

}  // namespace codes

}  // namespace Varo::Model

#endif
