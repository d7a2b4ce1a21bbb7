#ifndef VARO_FUZZ_RECORD_TEXT_HPP
#define VARO_FUZZ_RECORD_TEXT_HPP

#include <string>

#include "varo/model/records.hpp"

namespace Fuzz {

/// All that the records hold, bit by bit and a line for each value, but for the dialect that they were read from and
/// the places in its text. Two robots hold the same when these are equal. A link's name of its own that is the one it
/// would have anyway counts as none.
std::string textOf(Varo::Model::Records const& records);

}  // namespace Fuzz

#endif
