#ifndef VARO_MODEL_SPELLING_HPP
#define VARO_MODEL_SPELLING_HPP

#include <cstddef>
#include <string_view>

#include "varo/export.hpp"

namespace Varo::Model {

/// The number of letters to insert, drop, exchange or swap with their neighbour to make one word of the other, letter
/// case left aside (optimal string alignment). Words of more than 64 bytes are as far apart as they are long.
VAROROBOTMODEL_API std::size_t spellingDistance(std::string_view a, std::string_view b);

/// Picks from words offered one by one the one that was probably meant by a word that nothing is called by.
///
/// The texts behind the views must outlive the object. For one thread at a time.
class VAROROBOTMODEL_API ClosestWord {
public:
    /// For what was `written`.
    explicit ClosestWord(std::string_view written) : ClosestWord(written, written.size() / 3 + 1) {}
    /// Words that are farther away than that are not meant.
    ClosestWord(std::string_view written, std::size_t farthest) : _written(written), _distance(farthest + 1) {}

    /// True when `word` is closer than all before it.
    bool offer(std::string_view word);

    /// The closest of the offered words; empty when none was close.
    std::string_view word() const { return _word; }

    /// How many pairs of letters were compared, which is what the search takes.
    std::size_t work() const { return _work; }

private:
    std::string_view _written;
    std::string_view _word;
    std::size_t _work = 0;
    std::size_t _distance;  ///< words must be closer than this
};

}  // namespace Varo::Model

#endif
