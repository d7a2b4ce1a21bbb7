// Writes the words of both dialects as libFuzzer takes them: names of elements and attributes, and what values may be,
// all from the tables of the readers.
#include <cstdio>
#include <set>
#include <string>
#include <string_view>

#include "native/elements.hpp"
#include "urdf/schema.hpp"
#include "urdf/sensor_settings.hpp"
#include "urdf/unknown_names.hpp"

namespace {

using namespace Varo::Model;

class Words {
public:
    void addText(std::string_view text)
    {
        if (!text.empty()) {
            _words.emplace(text);
        }
    }

    void addElement(std::string_view name)
    {
        addText("<" + std::string(name) + " ");
        addText("</" + std::string(name) + ">");
    }

    void add(Schema::AttributeInfo const& attribute)
    {
        if (!attribute.name.empty()) {
            addText(" " + std::string(attribute.name) + "=\"");
        }
        addText(attribute.defaultText);
        for (Schema::Word const& word : attribute.type->words) {
            addText(word.word);
        }
    }

    void add(Schema::ElementInfo const& element)
    {
        if (!_elements.insert(&element).second) {
            return;
        }
        addElement(element.name);
        for (Schema::AttributeInfo const& attribute : element.attributes) {
            add(attribute);
        }
        if (element.text != nullptr) {
            add(*element.text);
        }
        for (Schema::ChildInfo const& child : element.children) {
            add(*child.element);
        }
    }

    /// The steps of a path of elements, the last of which may be an attribute.
    void addPath(std::string_view path)
    {
        while (!path.empty()) {
            std::size_t const end = std::min(path.find('/'), path.size());
            addElement(path.substr(0, end));
            path.remove_prefix(std::min(end + 1, path.size()));
        }
    }

    template <class Settings>
    void addPaths(Settings const& settings)
    {
        for (auto const& setting : settings) {
            addPath(setting.path);
        }
    }

    void print() const
    {
        for (std::string const& word : _words) {
            std::printf("\"%s\"\n", escaped(word).c_str());
        }
    }

private:
    static std::string escaped(std::string const& word)
    {
        std::string text;
        for (char const c : word) {
            text += c == '"' || c == '\\' ? std::string("\\") + c : std::string(1, c);
        }
        return text;
    }

    std::set<std::string> _words;
    std::set<Schema::ElementInfo const*> _elements;
};

}  // namespace

int main()
{
    Words words;
    words.addText("<?xml version=\"1.0\"?>");
    words.addText(" xmlns:varo=\"");
    for (char const* text : {"/>", "<!--", "-->", "<![CDATA[", "]]>", "<!DOCTYPE ", "&amp;", "&#10;", "&#x0;", "1e-45",
                             "-0", "3.4e38", "1e308", "nan", "inf", "0 0 0", "StandInit", "data:"}) {
        words.addText(text);
    }
    words.add(Native::robotDescriptionElement);
    words.add(Native::amendmentElement);
    words.add(Urdf::robotElement);
    words.addPaths(Urdf::sensorSettings);
    words.addPaths(Urdf::noiseSettings);
    for (Urdf::SensorAlias const& alias : Urdf::sensorAliases) {
        words.addElement(alias.name);
    }
    for (std::string_view const name : Urdf::noisyElements) {
        words.addElement(name);
    }
    for (std::string_view const name : Urdf::readElsewhere) {
        words.addElement(name);
    }
    words.print();
}
