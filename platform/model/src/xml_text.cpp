#include "xml_text.hpp"

#include <string>

#include "xml_scanner.hpp"

namespace Varo::Model {

namespace {

struct ParserMessage {
    pugi::xml_parse_status status;
    char const* message;
};
constexpr ParserMessage parserMessages[] = {
    {pugi::status_unrecognized_tag, "A tag begins here that is none."},
    {pugi::status_bad_pi, "An XML declaration or processing instruction is broken or not closed."},
    {pugi::status_bad_comment, "A comment is broken or not closed."},
    {pugi::status_bad_cdata, "A CDATA section is broken or not closed."},
    {pugi::status_bad_doctype, "A document type declaration is broken or not closed."},
    {pugi::status_bad_pcdata, "A text is broken or not closed."},
    {pugi::status_bad_start_element, "A start tag is broken or not closed."},
    {pugi::status_bad_attribute, "An attribute is broken: it needs a name, an equals sign and a value in quotes."},
    {pugi::status_bad_end_element, "An end tag is broken or not closed."},
    {pugi::status_no_document_element, "The text has no element."},
};

/// What the parser stumbled over, with the element that it was in, which is mostly what one looks for.
std::string messageOf(pugi::xml_parse_status status, std::string_view openElement, bool atEnd)
{
    if (status == pugi::status_end_element_mismatch && !openElement.empty()) {
        return atEnd ? "The text ends before " + quoted(openElement) + " is closed."
                     : "The end tag is not that of " + quoted(openElement) + ", which is to be closed first.";
    }
    for (ParserMessage const& known : parserMessages) {
        if (known.status == status) {
            return known.message;
        }
    }
    return "The text cannot be parsed.";
}

}  // namespace

bool parseXml(std::string_view text, pugi::xml_document& document, Diagnostics& diagnostics)
{
    if (text.size() > largestText) {
        diagnostics.report({0, {}}, codes::textTooLarge, "The text is longer than 256 MiB.");
        return false;
    }
    if (text.substr(0, 2) == "\xFF\xFE" || text.substr(0, 2) == "\xFE\xFF") {
        diagnostics.report({0, {}}, codes::badEncoding, "The text is in UTF-16.", "Save it as UTF-8.");
        return false;
    }
    auto const result = document.load_buffer(text.data(), text.size(), pugi::parse_default, pugi::encoding_utf8);
    std::size_t const end = result ? text.size() : static_cast<std::size_t>(result.offset);
    XmlScanner scanner(text, diagnostics);
    scanner.scan(end);
    if (result && !scanner.isBroken()) {
        // The parser takes the character of value zero for the end; the scanner has complained about it.
        return text.find('\0') == text.npos;
    }
    bool const isConsequence = result.status == pugi::status_no_document_element && diagnostics.hasErrors();
    if (!isConsequence) {
        diagnostics.report({end, scanner.path()}, codes::malformedXml,
                           messageOf(result.status, scanner.openElement(), end + 1 >= text.size()));
    }
    return false;
}

}  // namespace Varo::Model
