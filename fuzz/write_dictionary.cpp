// Writes the words of both dialects, as libFuzzer takes them: names of elements and attributes, and what values may be,
// all from the tables of the readers.
#include <cstdio>
#include <set>
#include <string>

#include "native/elements.hpp"
#include "urdf/elements.hpp"

namespace {

using namespace Varo::Model;

void addWords(Schema::AttributeInfo const& attribute, std::set<std::string>& words)
{
    words.insert(" " + std::string(attribute.name) + "=\"");
    for (auto const& word : attribute.type->words) {
        words.insert(std::string(word.word));
    }
}

void addWords(Schema::ElementInfo const& element, std::set<std::string>& words)
{
    if (!words.insert("<" + std::string(element.name) + " ").second) {
        return;
    }
    words.insert("</" + std::string(element.name) + ">");
    for (auto const& attribute : element.attributes) {
        addWords(attribute, words);
    }
    for (auto const& child : element.children) {
        addWords(*child.element, words);
    }
}

std::string escaped(std::string const& word)
{
    std::string text;
    for (char const c : word) {
        text += c == '"' || c == '\\' ? std::string("\\") + c : std::string(1, c);
    }
    return text;
}

}  // namespace

int main()
{
    std::set<std::string> words = {"/>",     "<!--",  "-->",           "<![CDATA[", "]]>",   "<?xml version=\"1.0\"?>",
                                   "&amp;",  "&#10;", "xmlns:varo=\"", "unlimited", "1e-45", "-0",
                                   "3.4e38", "0 0 0"};
    addWords(Native::robotDescriptionElement, words);
    addWords(Urdf::robotElement, words);
    for (std::string const& word : words) {
        std::printf("\"%s\"\n", escaped(word).c_str());
    }
}
