#include "robot/side_names.hpp"

#include <algorithm>
#include <cctype>
#include <cstddef>

namespace Varo::Model {

namespace {

/// A part of a name that says a side, and what the other side has there.
struct Mark {
    std::size_t begin;
    std::size_t length;
    std::vector<std::string> others;
};

bool isUpper(char c)
{
    return std::isupper(static_cast<unsigned char>(c)) != 0;
}

bool isLower(char c)
{
    return std::islower(static_cast<unsigned char>(c)) != 0;
}

bool isLetter(char c)
{
    return isUpper(c) || isLower(c);
}

std::string lowered(std::string_view text)
{
    std::string result(text);
    std::transform(result.begin(), result.end(), result.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return result;
}

/// `word`, given in lower case, in the letter case of `model`.
std::string inCaseOf(std::string_view model, std::string_view word)
{
    std::string result(word);
    bool const isAllUpper = std::all_of(model.begin(), model.end(), isUpper);
    for (std::size_t i = 0; i < result.size(); ++i) {
        bool const isRaised = isAllUpper || (i < model.size() && i == 0 && isUpper(model[0])) ||
                              (model.size() == result.size() && isUpper(model[i]));
        result[i] = isRaised ? static_cast<char>(std::toupper(static_cast<unsigned char>(result[i]))) : result[i];
    }
    return result;
}

/// Of the words left and right, anywhere in the name.
void findSpelled(std::string_view name, std::vector<Mark>& marks)
{
    std::string const lower = lowered(name);
    for (auto const& [side, other] : {std::pair("left", "right"), std::pair("right", "left")}) {
        std::string_view const word = side;
        for (std::size_t at = lower.find(word); at != std::string::npos; at = lower.find(word, at + word.size())) {
            marks.push_back({at, word.size(), {inCaseOf(name.substr(at, word.size()), other)}});
        }
    }
}

/// Of "l", "r" and of two letters that say front or rear, too.
std::vector<std::string> othersOfWord(std::string_view word)
{
    static constexpr std::string_view ends = "fhbmr";  // front, hind, back, middle, rear
    auto const isSide = [](char c) { return c == 'l' || c == 'r'; };
    auto const isEnd = [](char c) { return ends.find(c) != std::string_view::npos; };
    auto const flipped = [](char c) { return c == 'l' ? 'r' : 'l'; };
    std::string const lower = lowered(word);
    std::vector<std::string> others;
    if (lower.size() == 1 && isSide(lower[0])) {
        others.push_back(inCaseOf(word, {std::string(1, flipped(lower[0]))}));
    }
    if (lower.size() == 2 && isEnd(lower[0]) && isSide(lower[1])) {
        others.push_back(inCaseOf(word, std::string{lower[0], flipped(lower[1])}));
    }
    if (lower.size() == 2 && isSide(lower[0]) && isEnd(lower[1])) {
        others.push_back(inCaseOf(word, std::string{flipped(lower[0]), lower[1]}));
    }
    return others;
}

/// Calls `visit` with begin and length of each word: letters up to another character or, as in "LHipYaw", to a capital.
template <class Visit>
void forEachWord(std::string_view name, Visit const& visit)
{
    for (std::size_t begin = 0; begin < name.size();) {
        if (!isLetter(name[begin])) {
            ++begin;
            continue;
        }
        std::size_t end = begin + 1;
        auto const goesOn = [&] {
            bool const isCapital =
                isUpper(name[end]) && (isLower(name[end - 1]) || (end + 1 < name.size() && isLower(name[end + 1])));
            return isLetter(name[end]) && !isCapital;
        };
        while (end < name.size() && goesOn()) {
            ++end;
        }
        visit(begin, end - begin);
        begin = end;
    }
}

std::vector<Mark> marksOf(std::string_view name)
{
    std::vector<Mark> marks;
    findSpelled(name, marks);
    forEachWord(name, [&](std::size_t begin, std::size_t length) {
        auto const isDigit = [&](std::size_t at) {
            return at < name.size() && std::isdigit(static_cast<unsigned char>(name[at])) != 0;
        };
        bool const isNumbered = (begin > 0 && isDigit(begin - 1)) || isDigit(begin + length);  // "r1" may be anything
        std::vector<std::string> others = othersOfWord(name.substr(begin, length));
        if (!others.empty() && !isNumbered) {
            marks.push_back({begin, length, std::move(others)});
        }
    });
    std::sort(marks.begin(), marks.end(), [](Mark const& a, Mark const& b) { return a.begin < b.begin; });
    return marks;
}

/// The name with the marks from `first` up to `last` changed, each to its other of that index, if it has as many.
std::string changed(std::string_view name, std::vector<Mark> const& marks, std::size_t first, std::size_t last,
                    std::size_t index)
{
    std::string result;
    std::size_t done = 0;
    for (std::size_t i = first; i < last; ++i) {
        Mark const& mark = marks[i];
        result += name.substr(done, mark.begin - done);
        result += mark.others[std::min(index, mark.others.size() - 1)];
        done = mark.begin + mark.length;
    }
    result += name.substr(done);
    return result;
}

void addLetterOf(std::string_view name, std::size_t at, std::vector<std::string>& others)
{
    std::vector<std::string> const letter = othersOfWord(name.substr(at, 1));
    if (!letter.empty()) {
        others.push_back(std::string(name.substr(0, at)) + letter[0] + std::string(name.substr(at + 1)));
    }
}

}  // namespace

SideNames otherSideOf(std::string_view name)
{
    constexpr std::size_t mostMarks = 4;  // more say nothing
    std::vector<Mark> const marks = marksOf(name);
    SideNames names;
    names.areMarked = !marks.empty() && marks.size() <= mostMarks;
    if (marks.empty() && name.size() > 1) {
        addLetterOf(name, 0, names.others);
        addLetterOf(name, name.size() - 1, names.others);
    }
    if (!names.areMarked) {
        return names;
    }
    for (std::size_t index = 0; index < 2; ++index) {
        names.others.push_back(changed(name, marks, 0, marks.size(), index));
        for (std::size_t i = 0; marks.size() > 1 && i < marks.size(); ++i) {
            names.others.push_back(changed(name, marks, i, i + 1, index));
        }
    }
    return names;
}

Side sideOf(std::string_view name)
{
    Side side = Side::unknown;
    for (Mark const& mark : marksOf(name)) {
        std::string const word = lowered(name.substr(mark.begin, mark.length));
        std::string const other = lowered(mark.others.front());
        auto const letter = std::mismatch(word.begin(), word.end(), other.begin(), other.end()).first;
        Side const said = letter != word.end() && *letter == 'l' ? Side::left : Side::right;
        if (side != Side::unknown && said != side) {
            return Side::unknown;
        }
        side = said;
    }
    return side;
}

std::string withoutSides(std::string_view name)
{
    std::string result;
    std::size_t done = 0;
    for (Mark const& mark : marksOf(name)) {
        if (mark.begin >= done) {
            result += name.substr(done, mark.begin - done);
            done = mark.begin + mark.length;
        }
    }
    result = lowered(result.append(name.substr(done)));
    for (std::string_view const end : {"front", "rear", "hind", "back", "middle", "fore"}) {
        if (std::size_t const at = result.find(end); at != std::string::npos) {
            result.erase(at, end.size());
        }
    }
    return result;
}

}  // namespace Varo::Model
