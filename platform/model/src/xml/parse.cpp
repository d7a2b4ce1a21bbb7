#include "xml/parse.hpp"

#include <algorithm>
#include <string>
#include <string_view>

#include "finding_codes.hpp"
#include "varo/model/model_utils.hpp"
#include "xml/parser.hpp"

namespace Varo::Model {

namespace {

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

bool parseXml(SourceText const& source, XmlDocument& document, Diagnostics& diagnostics)
{
    return checkText(source.text(), diagnostics) && XmlParser(source, document, diagnostics).parse();
}

}  // namespace Varo::Model
