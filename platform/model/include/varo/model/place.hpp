#ifndef VARO_MODEL_PLACE_HPP
#define VARO_MODEL_PLACE_HPP

#include <cstddef>
#include <cstdint>
#include <limits>
#include <string>
#include <string_view>

namespace Varo::Model {

/// Something in the text of a description, by the offset in bytes at which it begins: what a record keeps of where it
/// was read. Nowhere by default. A plain value.
class TextOffset {
public:
    constexpr TextOffset() = default;
    /// Offsets beyond 4 GiB, which no text has that is read, are nowhere.
    constexpr explicit TextOffset(std::size_t offset)
        : _offset(offset < nowhere ? static_cast<std::uint32_t>(offset) : nowhere)
    {}

    /// False for what stands in no text.
    constexpr bool isKnown() const { return _offset != nowhere; }
    /// Bytes from the start of the text. Only of a known one.
    constexpr std::size_t value() const { return _offset; }

private:
    static constexpr std::uint32_t nowhere = std::numeric_limits<std::uint32_t>::max();

    std::uint32_t _offset = nowhere;
};

/// The same offset; what is nowhere equals only what is nowhere.
constexpr bool operator==(TextOffset a, TextOffset b)
{
    return a.isKnown() == b.isKnown() && a.value() == b.value();
}
/// The contrary of `==`.
constexpr bool operator!=(TextOffset a, TextOffset b)
{
    return !(a == b);
}

/// A place in a text as people look for it.
struct Place {
    int line = 0;  ///< from 1; 0 for what stands in no text
    int column = 0;  ///< from 1, in characters (code points) of the line
    std::string path;  ///< of the element around it: /robotDescription/joint[@name="HeadYaw"]/placement
};

/// What a description says of an element, whatever the dialect calls it and wherever it writes it.
enum class Part {
    whole,  ///< the element itself
    name,
    parent,  ///< what it is attached to
    mirror,
    minimum,  ///< the lower limit
    maximum,  ///< the upper limit
    effort,  ///< the greatest torque or force
    velocity,  ///< the greatest speed
    mass,
    centerOfMass,
    inertia,
    material,  ///< of the body's surface
    value,  ///< of an angle in a posture
    resolutions,  ///< of a camera's pictures
    placement,  ///< where it is on what it is attached to
    axis,  ///< of a joint's motion, where the dialect states one
    damping,
    friction,  ///< of a joint
    mimic,  ///< which joint it follows, and how
    geometry,  ///< the solid of a shape, or the mesh of a body
    tip,  ///< where the tool of a chain is
    ratio,  ///< of a sub-joint to its actuator
};

/// Where a text says something, and what it has there.
struct Statement {
    TextOffset offset;  ///< of the statement or, where there is none, of the nearest element around it
    bool isStated = false;  ///< whether the text says it at all
    std::string_view text;  ///< the attribute's value as written, references and all; empty for an element
};

}  // namespace Varo::Model

#endif
