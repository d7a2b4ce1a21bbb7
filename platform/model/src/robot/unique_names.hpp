#ifndef VARO_MODEL_ROBOT_UNIQUE_NAMES_HPP
#define VARO_MODEL_ROBOT_UNIQUE_NAMES_HPP

#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_map>

#include "varo/model/diagnostics.hpp"
#include "varo/model/name_hash.hpp"
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

    std::unordered_map<std::string, std::size_t, NameHash> _taken;  // with the number last appended to the name
    NameIndex const* _others = nullptr;
};

}  // namespace Varo::Model

#endif
