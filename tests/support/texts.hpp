#ifndef VARO_TESTS_TEXTS_HPP
#define VARO_TESTS_TEXTS_HPP

#include <string>
#include <vector>

#include <gtest/gtest.h>

// Texts that differ a little from others, and what is put into words to be compared.
namespace Tests {

/// With `to` instead of the first `from` behind the first `start`, both of which there must be.
inline std::string replaced(std::string text, std::string const& from, std::string const& to,
                            std::string const& start = {})
{
    std::size_t const begin = text.find(start);
    std::size_t const place = begin == text.npos ? begin : text.find(from, begin);
    EXPECT_NE(place, text.npos) << start << " ... " << from;
    return place == text.npos ? text : text.replace(place, from.size(), to);
}

/// What `tell` says of each.
template <class Range, class Tell>
std::vector<std::string> textsOf(Range const& range, Tell const& tell)
{
    std::vector<std::string> texts;
    for (auto const& each : range) {
        texts.push_back(tell(each));
    }
    return texts;
}

}  // namespace Tests

#endif
