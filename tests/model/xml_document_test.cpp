#include <random>
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <pugixml.hpp>

#include "files.hpp"
#include "xml/parse.hpp"

namespace Varo::Model {
namespace {

std::vector<std::string> sampleTexts()
{
    std::vector<std::string> texts = {
        "<a b='&lt;&#65;&#x10FFFF;\"' c=\"1\r\n2\t3\n4\r5\">x &amp; y\r\nz<!-- c "
        "--><b/>\r<![CDATA[<&amp;\r\n]]><c/>\n</a>",
        "\xEF\xBB\xBF<?xml version='1.0'?>\n<?p?><a  b = 'c'\n><\xC3\xA4 \xC3\xB6='\xC3\xBC' /></a ><!-- - -->",
    };
    for (std::string const& folder : {std::string(VARO_SOURCE_DIR "/robots"), Tests::realRobotsFolder()}) {
        for (char const* extension : {".xml", ".urdf"}) {
            for (std::string const& file : Tests::filesIn(folder, extension)) {
                texts.push_back(Tests::readFile(file));
            }
        }
    }
    return texts;
}

void write(std::string& out, std::string_view what, std::size_t place, std::string_view text)
{
    out += std::to_string(place).append(what).append(text) += '\n';
}

/// All that a document has, as another parser has it.
std::string treeOf(pugi::xml_node node)
{
    std::string out;
    auto const offset = static_cast<std::size_t>(node.offset_debug());
    if (node.type() != pugi::node_element) {
        write(out, " text ", offset, node.value());
        return out;
    }
    write(out, " element ", offset - 1, node.name());
    for (pugi::xml_attribute const attribute : node.attributes()) {
        write(out, attribute.name(), offset + static_cast<std::size_t>(attribute.name() - node.name()),
              attribute.value());
    }
    for (pugi::xml_node const child : node.children()) {
        out += treeOf(child);
    }
    return out += "/\n";
}

std::string treeOf(XmlNode node)
{
    std::string out;
    if (node.isText()) {
        write(out, " text ", at(node).value(), node.text());
        return out;
    }
    write(out, " element ", at(node).value(), node.name());
    for (XmlAttribute const attribute : node.attributes()) {
        write(out, attribute.name(), at(node, attribute).value(), attribute.value());
    }
    for (XmlNode const child : node.children()) {
        EXPECT_EQ(child.parent(), node);
        out += treeOf(child);
    }
    return out += "/\n";
}

/// What is taken by ours is taken by the other, too, with the same result; false for what is not.
bool isSameForBoth(std::string const& text)
{
    SourceText const source(text);
    Diagnostics diagnostics(&source);
    XmlDocument document;
    if (!parseXml(source, document, diagnostics) || diagnostics.hasErrors()) {
        return false;
    }
    pugi::xml_document other;
    pugi::xml_parse_result const result =
        other.load_buffer(text.data(), text.size(), pugi::parse_default, pugi::encoding_utf8);
    EXPECT_TRUE(result) << result.description() << " at " << result.offset << ":\n" << text;
    EXPECT_EQ(treeOf(document.root()), treeOf(other.document_element()));
    return true;
}

TEST(XmlDocument, IsWhatAnotherParserMakesOfTheText)
{
    for (std::string const& text : sampleTexts()) {
        EXPECT_TRUE(isSameForBoth(text)) << text.substr(0, 200);
    }
}

TEST(XmlDocument, OfChangedTextsIsWhatAnotherParserMakesOfThem)
{
    static std::string const characters = "<>/='\"&;!?-[] \r\nab1#";
    std::minstd_rand random(20'261'122);
    int taken = 0;
    for (std::string const& sample : sampleTexts()) {
        for (int round = 0; round < 100 && sample.size() < 30'000; ++round) {
            std::string changed = sample;
            for (unsigned change = 0; change <= random() % 3; ++change) {
                changed[random() % changed.size()] = characters[random() % characters.size()];
            }
            taken += isSameForBoth(changed) ? 1 : 0;
        }
    }
    EXPECT_GT(taken, 100);
}

TEST(XmlDocument, KnowsWhatStandsBeforeAndAround)
{
    SourceText const source("<a><b><c/></b>text<d/></a>");
    Diagnostics diagnostics(&source);
    XmlDocument document;
    ASSERT_TRUE(parseXml(source, document, diagnostics));
    XmlNode const root = document.root();
    XmlNode const last = root.child("d");
    EXPECT_EQ(last.previous().text(), "text");
    EXPECT_EQ(last.previous().previous(), root.child("b"));
    EXPECT_FALSE(root.child("b").previous());
    EXPECT_FALSE(root.parent());
    EXPECT_FALSE(XmlNode().child("a").attribute("b"));
}

}  // namespace
}  // namespace Varo::Model
