#ifndef VARO_MODEL_XML_DOCUMENT_HPP
#define VARO_MODEL_XML_DOCUMENT_HPP

#include <cstddef>
#include <cstdint>
#include <iterator>
#include <string>
#include <string_view>
#include <vector>

#include "varo/model/place.hpp"

namespace Varo::Model {

class XmlNode;

/// The elements of a text with their attributes and the texts between their tags. Comments, processing instructions
/// and white space between elements leave nothing in it.
///
/// Names and values are views of the text, which must outlive the document as the document must outlive its nodes.
class XmlDocument {
public:
    XmlDocument() = default;
    XmlDocument(XmlDocument const&) = delete;
    XmlDocument& operator=(XmlDocument const&) = delete;

    /// Null when the text has no element.
    XmlNode root() const;

private:
    friend class XmlAttribute;
    friend class XmlNode;
    friend class XmlParser;

    /// A part of the text or, where a value is not what stands in the text, of what was decoded: that begins where the
    /// text ends.
    struct Piece {
        std::uint32_t begin;
        std::uint32_t size;
    };
    struct Attribute {
        Piece name;
        Piece value;
    };
    /// Nodes stand in the order of the text: the ones in an element follow it, and then what is behind the element.
    struct Node {
        Piece piece;  ///< the name of an element, or a text
        std::uint32_t edge;  ///< in the text, where an element ends, or where a text begins
        std::uint32_t firstAttribute;  ///< those from there to the first one of the next node are this one's
        std::uint32_t end;  ///< the index of the node behind it; 0 for a text
        std::uint32_t parent;  ///< an index, the node's own for the root
    };

    std::string_view textOf(Piece piece) const
    {
        return piece.begin < _text.size() ? std::string_view(_text.data() + piece.begin, piece.size)
                                          : std::string_view(_decoded).substr(piece.begin - _text.size(), piece.size);
    }

    std::string_view _text;
    std::string _decoded;  ///< values with references, or with line ends and tabs that XML reads as something else
    std::vector<Attribute> _attributes;
    std::vector<Node> _nodes;  ///< and one behind them that is the end of the last one's attributes
};

/// An attribute of an element, or null. A handle: copies are of the same attribute.
class XmlAttribute {
public:
    XmlAttribute() = default;

    explicit operator bool() const { return _document != nullptr; }

    bool operator==(XmlAttribute other) const { return _document == other._document && _index == other._index; }
    bool operator!=(XmlAttribute other) const { return !(*this == other); }

    /// Both are empty of null.
    std::string_view name() const { return *this ? _document->textOf(attribute().name) : std::string_view(); }
    std::string_view value() const { return *this ? _document->textOf(attribute().value) : std::string_view(); }

    /// Where its name stands.
    TextOffset place() const { return *this ? TextOffset(attribute().name.begin) : TextOffset(); }

private:
    friend class XmlAttributes;
    friend class XmlNode;

    XmlAttribute(XmlDocument const* document, std::uint32_t index) : _document(document), _index(index) {}
    XmlDocument::Attribute const& attribute() const { return _document->_attributes[_index]; }

    XmlDocument const* _document = nullptr;
    std::uint32_t _index = 0;
};

/// The attributes of an element, in the order of the text.
class XmlAttributes;
/// Nodes in the order of the text.
class XmlNodes;

/// An element, a text between tags, or null. A handle: copies are of the same node. Whatever is asked of null, or of a
/// text what only elements have, is answered with nothing.
class XmlNode {
public:
    XmlNode() = default;

    explicit operator bool() const { return _document != nullptr; }
    bool operator==(XmlNode other) const { return _document == other._document && _index == other._index; }

    bool isElement() const { return *this && node().end != 0; }
    bool isText() const { return *this && node().end == 0; }
    /// Whether it is the text of a CDATA section.
    bool isCharacterData() const { return isText() && _document->_text[node().edge - 1] == '['; }
    bool isRoot() const { return *this && _index == 0; }
    /// Another number for each node of a document, and 0 for null.
    std::size_t id() const { return *this ? _index + std::size_t{1} : 0; }

    /// The name of an element.
    std::string_view name() const { return isElement() ? _document->textOf(node().piece) : std::string_view(); }
    /// Of a text what it says, of an element the first text in it.
    std::string_view text() const;
    /// Where the `<` of the element stands, or where the text begins, white space included. Nowhere for null.
    TextOffset place() const;
    /// The element as it stands in the text, from its `<` to the end of its end tag.
    std::string_view source() const;

    XmlAttribute attribute(std::string_view name) const;
    XmlAttributes attributes() const;

    /// The element around it; null for the root.
    XmlNode parent() const;
    /// The element or text before it in the element around it; null for the first.
    XmlNode previous() const;
    /// The first element of that name in it.
    XmlNode child(std::string_view name) const;
    /// The elements and texts in it, without those that are in these.
    XmlNodes children() const;
    /// The elements of that name among these.
    XmlNodes children(std::string_view name) const;
    /// It, and all that is in it at any depth.
    XmlNodes subtree() const;

private:
    friend class XmlDocument;
    friend class XmlNodes;

    XmlNode(XmlDocument const* document, std::uint32_t index) : _document(document), _index(index) {}
    XmlDocument::Node const& node() const { return _document->_nodes[_index]; }
    std::uint32_t behind() const { return isElement() ? node().end : _index + 1; }

    XmlDocument const* _document = nullptr;
    std::uint32_t _index = 0;
};

/// What algorithms ask of iterators.
template <class Item>
struct XmlIteration {
    using iterator_category = std::input_iterator_tag;
    using value_type = Item;
    using difference_type = std::ptrdiff_t;
    using pointer = Item const*;
    using reference = Item;
};

class XmlAttributes {
public:
    class Iterator : public XmlIteration<XmlAttribute> {
    public:
        explicit Iterator(XmlAttribute attribute) : _attribute(attribute) {}
        XmlAttribute operator*() const { return _attribute; }
        Iterator& operator++() { return ++_attribute._index, *this; }
        bool operator==(Iterator other) const { return _attribute._index == other._attribute._index; }
        bool operator!=(Iterator other) const { return !(*this == other); }

    private:
        XmlAttribute _attribute;
    };

    Iterator begin() const { return _begin; }
    Iterator end() const { return _end; }
    bool empty() const { return _begin == _end; }

private:
    friend class XmlNode;

    XmlAttributes(XmlAttribute begin, XmlAttribute end) : _begin(begin), _end(end) {}

    Iterator _begin;
    Iterator _end;
};

class XmlNodes {
public:
    class Iterator : public XmlIteration<XmlNode> {
    public:
        XmlNode operator*() const { return _node; }
        Iterator& operator++() { return _node._index = _isDeep ? _node._index + 1 : _node.behind(), findNamed(); }
        bool operator==(Iterator const& other) const { return _node._index == other._node._index; }
        bool operator!=(Iterator const& other) const { return !(*this == other); }

    private:
        friend class XmlNodes;

        Iterator(XmlNode node, std::uint32_t end, std::string_view name, bool isDeep)
            : _node(node), _end(end), _isDeep(isDeep), _name(name)
        {
            findNamed();
        }

        Iterator& findNamed()
        {
            while (!_name.empty() && _node._index != _end && _node.name() != _name) {
                _node._index = _node.behind();
            }
            return *this;
        }

        XmlNode _node;
        std::uint32_t _end;
        bool _isDeep;
        std::string_view _name;  ///< of the nodes that are wanted; empty for any
    };

    Iterator begin() const { return {_first, _end, _name, _isDeep}; }
    Iterator end() const { return {XmlNode(_first._document, _end), _end, {}, _isDeep}; }
    bool empty() const { return begin() == end(); }

private:
    friend class XmlNode;

    XmlNodes(XmlNode first, std::uint32_t end, std::string_view name = {}, bool isDeep = false)
        : _first(first), _end(end), _isDeep(isDeep), _name(name)
    {}

    XmlNode _first;
    std::uint32_t _end;
    bool _isDeep;
    std::string_view _name;
};

inline TextOffset XmlNode::place() const
{
    return !*this ? TextOffset() : TextOffset(isElement() ? node().piece.begin - 1 : node().edge);
}

inline std::string_view XmlNode::source() const
{
    if (!isElement()) {
        return {};
    }
    std::uint32_t const begin = node().piece.begin - 1;
    return _document->_text.substr(begin, node().edge - begin);
}

inline XmlAttributes XmlNode::attributes() const
{
    if (!isElement()) {
        return {{}, {}};
    }
    return {{_document, node().firstAttribute}, {_document, _document->_nodes[_index + 1].firstAttribute}};
}

inline XmlAttribute XmlNode::attribute(std::string_view name) const
{
    for (XmlAttribute const attribute : attributes()) {
        if (attribute.name() == name) {
            return attribute;
        }
    }
    return {};
}

inline XmlNode XmlNode::parent() const
{
    return *this && !isRoot() ? XmlNode(_document, node().parent) : XmlNode();
}

inline XmlNode XmlNode::previous() const
{
    XmlNode const around = parent();
    if (!around || around._index + 1 == _index) {
        return {};
    }
    XmlNode before(_document, _index - 1);
    while (before.node().parent != around._index) {
        before._index = before.node().parent;
    }
    return before;
}

inline XmlNodes XmlNode::children(std::string_view name) const
{
    return {XmlNode(_document, _index + 1), isElement() ? node().end : _index + 1, name};
}

inline XmlNodes XmlNode::children() const
{
    return children({});
}

inline XmlNode XmlNode::child(std::string_view name) const
{
    XmlNodes const named = children(name);
    return named.empty() ? XmlNode() : *named.begin();
}

inline XmlNodes XmlNode::subtree() const
{
    return {*this, *this ? behind() : 0, {}, true};
}

inline std::string_view XmlNode::text() const
{
    if (isText()) {
        return _document->textOf(node().piece);
    }
    for (XmlNode const child : children()) {
        if (child.isText()) {
            return child.text();
        }
    }
    return {};
}

inline XmlNode XmlDocument::root() const
{
    return _nodes.empty() ? XmlNode() : XmlNode(this, 0);
}

// Where things stand: what findings are reported at, and what records keep.
//
//     diagnostics.report(at(node), codes::missingElement, "...");                     // the element's `<`
//     diagnostics.report(at(node, attribute), codes::wrongValue, "...", "a hint");     // the attribute's name
//     diagnostics.report(at(node, "parent"), codes::danglingReference, "...");         // the attribute of that name

inline TextOffset at(XmlNode node)
{
    return node.place();
}

/// The element when the attribute is null.
inline TextOffset at(XmlNode node, XmlAttribute attribute)
{
    return attribute ? attribute.place() : node.place();
}

inline TextOffset at(XmlNode node, std::string_view attribute)
{
    return at(node, node.attribute(attribute));
}

}  // namespace Varo::Model

#endif
