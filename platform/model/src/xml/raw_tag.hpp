#ifndef VARO_MODEL_RAW_TAG_HPP
#define VARO_MODEL_RAW_TAG_HPP

#include <cstddef>
#include <string_view>

namespace Varo::Model {

/// An attribute as it stands in the text, references and all.
struct RawAttribute {
    std::string_view name;
    std::string_view value;
    bool spaced = true;  ///< whether white space separates it from what is before it
};

/// Steps through a start tag in the text itself. Takes whatever has the shape of a tag; a text that has not is
/// answered with `isBroken`.
class RawTag {
public:
    /// `offset` is that of the tag's `<`.
    RawTag(std::string_view text, std::size_t offset);

    std::string_view name() const { return _name; }

    /// False at the end of the tag, and where it is broken.
    bool next(RawAttribute& attribute);

    bool isBroken() const { return _broken; }
    /// Of a broken one: whether it broke off in an attribute.
    bool isAttributeBroken() const { return _attributeBroken; }
    /// Once `next` has answered false: whether the tag is an element of its own, and the offset behind it or, in a
    /// broken one, of what does not belong there.
    bool isEmptyElement() const { return _emptyElement; }
    std::size_t end() const { return _position; }

private:
    bool skipSpace();
    std::string_view takeName();
    bool takeValue(std::string_view& value);
    bool finish();
    bool breakOff();

    std::string_view _text;
    std::size_t _position;
    std::string_view _name;
    bool _broken = false;
    bool _attributeBroken = false;
    bool _emptyElement = false;
};

}  // namespace Varo::Model

#endif
