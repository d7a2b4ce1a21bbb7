#include "view/page.hpp"

namespace Tool {

namespace {

/// JSON has `<` in its strings only, where it may be written so. Without it nothing begins or ends an element.
void appendEscaped(std::string& page, std::string_view json)
{
    for (char const c : json) {
        if (c == '<') {
            page += "\\u003c";
        } else {
            page += c;
        }
    }
}

}  // namespace

std::string pageOf(std::string_view page, std::string_view json)
{
    constexpr std::string_view marker = "@ROBOT@";
    std::size_t const place = page.find(marker);
    std::string text;
    text.reserve(page.size() + json.size() + json.size() / 16);
    text += page.substr(0, place);
    appendEscaped(text, json);
    text += page.substr(place + marker.size());
    return text;
}

}  // namespace Tool
