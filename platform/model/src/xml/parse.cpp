#include "xml/parse.hpp"

#include <algorithm>
#include <new>
#include <string>

#include "finding_codes.hpp"
#include "varo/model/model_utils.hpp"
#include "xml/raw_tag.hpp"
#include "xml/scanner.hpp"

namespace Varo::Model {

namespace {

struct ParserMessage {
    pugi::xml_parse_status status;
    char const* message;
};
constexpr ParserMessage parserMessages[] = {
    {pugi::status_unrecognized_tag, "This \"<\" begins no tag; write \"&lt;\" for the character itself."},
    {pugi::status_bad_pi, "This XML declaration or processing instruction is broken or not closed."},
    {pugi::status_bad_comment, "This comment is not closed."},
    {pugi::status_bad_cdata, "This CDATA section is not closed."},
    {pugi::status_bad_doctype, "This document type declaration is broken or not closed."},
    {pugi::status_bad_pcdata, "This text is broken or not closed."},
    {pugi::status_bad_start_element, "This start tag is broken or not closed."},
    {pugi::status_bad_attribute, "This attribute is broken: it needs a name, an equals sign and a value in quotes."},
    {pugi::status_bad_end_element, "This end tag is broken or not closed."},
    {pugi::status_no_document_element, "The text has no element."},
};

/// The innermost open element, and where it was opened: `"link", opened at 3:5,`.
std::string openedElement(XmlScanner const& scanner, SourceText const& source)
{
    RawTag const tag(source.text(), scanner.openElement());
    Place const place = source.place(TextOffset(scanner.openElement()));
    return quoted(tag.name()) + ", opened at " + std::to_string(place.line) + ":" + std::to_string(place.column) + ",";
}

/// What the parser stumbled over.
std::string messageOf(pugi::xml_parse_status status, XmlScanner const& scanner, SourceText const& source, bool atEnd)
{
    if (status == pugi::status_end_element_mismatch && scanner.openElement() != std::string::npos) {
        std::string const element = openedElement(scanner, source);
        return atEnd ? "The text ends before " + element + " is closed."
                     : "This end tag does not match: " + element + " is to be closed first.";
    }
    for (ParserMessage const& known : parserMessages) {
        if (known.status == status) {
            return known.message;
        }
    }
    return "The text cannot be parsed.";
}

/// Whether somebody may have meant the file of that name.
bool looksLikePath(std::string_view text)
{
    constexpr std::size_t longestPath = 4096;
    auto const isControl = [](char c) { return static_cast<unsigned char>(c) < ' '; };
    return text.size() < longestPath && text.find('<') == text.npos && text.find_first_of("/.") != text.npos &&
           std::none_of(text.begin(), text.end(), isControl);
}

/// By its mark or, without one, by the other half of the "<" that a description begins with.
bool isUtf16(std::string_view text)
{
    using namespace std::string_view_literals;
    std::string_view const start = text.substr(0, 2);
    return start == "\xFF\xFE"sv || start == "\xFE\xFF"sv || start == "<\0"sv || start == "\0<"sv;
}

/// Whether the text is one that can be parsed at all.
bool checkText(std::string_view text, Diagnostics& diagnostics)
{
    if (text.size() > ModelUtils::maxTextSize) {
        diagnostics.report(TextOffset(0), codes::textTooLarge, std::string(codes::textTooLarge.meaning));
    } else if (isUtf16(text)) {
        diagnostics.report(TextOffset(0), codes::badEncoding, "The text is in UTF-16.", "Save it as UTF-8.");
    } else if (looksLikePath(text)) {
        diagnostics.report(TextOffset(0), codes::pathNotText,
                           "This is no XML, but looks like a path: " + quoted(text) + ".",
                           "There is no file of that name, or its path stands where its text belongs.");
    } else {
        return true;
    }
    return false;
}

}  // namespace

bool parseXml(SourceText const& source, pugi::xml_document& document, Diagnostics& diagnostics)
{
    std::string_view const text = source.text();
    if (!checkText(text, diagnostics)) {
        return false;
    }
    auto const result = document.load_buffer(text.data(), text.size(), pugi::parse_default, pugi::encoding_utf8);
    if (result.status == pugi::status_out_of_memory) {
        throw std::bad_alloc();
    }
    std::size_t const end = result ? text.size() : static_cast<std::size_t>(result.offset);
    XmlScanner scanner(source.text(), diagnostics);
    scanner.scan(end);
    if (result && !scanner.isBroken()) {
        // The parser takes the character of value zero for the end; the scanner has complained about it.
        return text.find('\0') == text.npos;
    }
    bool const isConsequence = result.status == pugi::status_no_document_element && diagnostics.hasErrors();
    if (!isConsequence) {
        diagnostics.report(TextOffset(std::min(end, scanner.unclosedMarkup())), codes::malformedXml,
                           messageOf(result.status, scanner, source, end + 1 >= text.size()));
    }
    return false;
}

}  // namespace Varo::Model
