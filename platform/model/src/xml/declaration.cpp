#include "xml/declaration.hpp"

#include <algorithm>
#include <iterator>
#include <string>
#include <utility>

#include "finding_codes.hpp"
#include "xml/markup.hpp"
#include "xml/raw_tag.hpp"

namespace Varo::Model {

namespace {

void checkDeclaration(std::string_view text, std::size_t begin, std::size_t end, Diagnostics& diagnostics)
{
    char const* const known[] = {"version", "encoding", "standalone"};  // in the order in which they may stand
    auto const* next = std::begin(known);
    bool hasVersion = false;
    auto const report = [&](char const* at, FindingCode const& code, std::string message, std::string hint = {}) {
        auto const offset = static_cast<std::size_t>(at - text.data());
        diagnostics.report(TextOffset(offset), code, std::move(message), std::move(hint));
    };
    RawTag tag(text.substr(0, end), begin);
    for (RawAttribute attribute; tag.next(attribute);) {
        std::string_view const value = attribute.value;
        auto const* const found = std::find(next, std::end(known), attribute.name);
        hasVersion = hasVersion || attribute.name == "version";
        next = found == std::end(known) ? next : found + 1;
        bool const isAscii = value == "US-ASCII" || value == "us-ascii";
        if (found == std::end(known)) {
            report(attribute.name.data(), codes::malformedXml,
                   quoted(attribute.name) + " has no place here in an XML declaration.",
                   "It states version, encoding and standalone, in this order.");
        } else if (attribute.name == "encoding" && value != "UTF-8" && value != "utf-8" && !isAscii) {
            report(text.data() + begin, codes::badEncoding, "The text is declared to be in " + quoted(value) + ".",
                   "Save it as UTF-8, and declare that or nothing.");
        } else if (attribute.name == "standalone" && value != "yes" && value != "no") {
            report(attribute.name.data(), codes::malformedXml,
                   "The declaration's standalone is " + quoted(value) + ", neither yes nor no.");
        } else if (attribute.name == "version" && value.substr(0, 2) != "1.") {
            report(attribute.name.data(), codes::malformedXml,
                   "The text is declared to be in version " + quoted(value) + " of XML.", "Declare version 1.0.");
        }
    }
    if (!hasVersion) {
        report(text.data() + begin, codes::malformedXml, "The XML declaration states no version.",
               "Write <?xml version=\"1.0\"?>.");
    }
}

}  // namespace

void checkInstruction(std::string_view text, std::size_t begin, std::size_t end, Diagnostics& diagnostics)
{
    // A declaration reads like a start tag of the name "?xml"; other instructions hold what they like.
    std::string target(RawTag(text.substr(0, end), begin).name());
    bool const isDeclaration = target == "?xml";
    std::transform(target.begin(), target.end(), target.begin(),
                   [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c; });
    if (target != "?xml") {
        return;
    }
    if (begin != byteOrderMarkSize(text) || !isDeclaration) {
        diagnostics.report(TextOffset(begin), codes::malformedXml,
                           "An XML declaration stands elsewhere than at the start of the text.",
                           "Leave it out, or what is before it.");
    }
    checkDeclaration(text, begin, end, diagnostics);
}

}  // namespace Varo::Model
