#ifndef VARO_MODEL_NATIVE_NAME_INDEX_HPP
#define VARO_MODEL_NATIVE_NAME_INDEX_HPP

#include <string>
#include <string_view>
#include <unordered_map>

#include "varo/model/records.hpp"

namespace Varo::Model::Native {

/// All names of a robot that others may refer to, and what bears them.
class NameIndex {
public:
    /// Bits: one name may be that of several things.
    enum Kind : unsigned {
        joint = 1,
        subJoint = 2,
        actuator = 4,
        wheel = 8,
        root = 16,
        rootLink = 32,
        chain = 256,
        sensor = 512,
        inChain = 64,  ///< a joint or a mere name that a chain lists
        hasAngle = 128,  ///< stands in a chain, or is an actuator that hangs on what does
    };

    unsigned kinds(std::string_view name) const;

    /// Adds to what bears the name, whose characters must outlive the index, and answers what bore it before.
    unsigned mark(std::string_view name, unsigned kinds);

    /// A hint with the name of such a kind that was probably meant; empty when there is none. Gives up when it has
    /// compared very many names.
    std::string suggestion(std::string_view written, unsigned kinds);

private:
    std::unordered_map<std::string_view, unsigned> _kinds;
    std::size_t _comparisonsLeft = 1000000;
};

}  // namespace Varo::Model::Native

#endif
