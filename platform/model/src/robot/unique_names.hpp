#ifndef VARO_MODEL_ROBOT_UNIQUE_NAMES_HPP
#define VARO_MODEL_ROBOT_UNIQUE_NAMES_HPP

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "varo/model/diagnostics.hpp"
#include "varo/model/hash_slots.hpp"
#include "varo/model/name_index.hpp"

namespace Varo::Model {

/// Names that must differ in the records, although the dialect allows them to be alike.
class UniqueNames {
public:
    UniqueNames() = default;
    /// Besides `others`, which must outlive this.
    explicit UniqueNames(NameIndex const& others) : _others(&others) {}

    /// The name, or the first of name_2, name_3, ... that is free; it is taken from now on. A name that had to be
    /// changed is reported at `place`, as that of what `owner` says.
    std::string claim(std::string name, std::string_view owner, TextOffset place, Diagnostics& diagnostics);

private:
    bool isAmongOthers(std::string_view name) const { return _others != nullptr && _others->contains(name); }

    struct Taken {
        std::string name;
        std::uint32_t hash;
        std::size_t lastNumber;  ///< that was appended to the name
    };

    bool isTaken(std::string_view name) const;
    /// Its index among those that are taken from now on.
    std::size_t take(std::string const& name);

    std::vector<Taken> _taken;
    HashSlots _slots;
    NameIndex const* _others = nullptr;
};

}  // namespace Varo::Model

#endif
