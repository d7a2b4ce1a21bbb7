#ifndef VARO_MODEL_ROBOT_SIDE_NAMES_HPP
#define VARO_MODEL_ROBOT_SIDE_NAMES_HPP

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace Varo::Model {

/// A word of few letters.
struct ShortWord {
    operator std::string_view() const { return {letters.data(), size}; }

    std::array<char, 5> letters{};  // as many as "right" has
    std::size_t size = 0;
};

/// A part of a name that says a side, and what the other side has there.
struct SideMark {
    std::size_t begin = 0;
    std::size_t length = 0;
    ShortWord other;
    ShortWord alternative;  ///< what it may have instead; empty for nothing
};

/// What a name says of left and right. One object may ask one name after the other.
class SideNames {
public:
    /// `name` must outlive what is asked about it.
    void read(std::string_view name);

    /// Whether words say the side: "left", "L", or "FL" for front left. Otherwise the first or the last letter might,
    /// which means something only where both names occur and the geometry agrees.
    bool areMarked() const { return _areMarked; }

    /// How many names the counterpart on the other side may have.
    std::size_t size() const { return _haveAlternatives ? 2 * changes() : changes(); }
    /// One of these names, the likeliest first. Valid until the next one is asked for.
    std::string const& other(std::size_t index);

private:
    static constexpr std::size_t mostMarks = 4;  // more say nothing

    void readMarks();
    void readLetter(std::size_t at);
    /// Of several marks, all together may be changed, or each alone; of letters each.
    std::size_t changes() const { return _count + (_areMarked && _count > 1 ? 1 : 0); }

    std::string_view _name;
    std::array<SideMark, mostMarks> _marks;
    std::size_t _count = 0;
    bool _areMarked = false;
    bool _haveAlternatives = false;
    std::string _other;
};

enum class Side { unknown, left, right };

/// The side that all words of a name say that say one.
Side sideOf(std::string_view name);

/// What the names of all limbs of one kind share: neither left nor right, neither front nor rear.
std::string withoutSides(std::string_view name);

}  // namespace Varo::Model

#endif
