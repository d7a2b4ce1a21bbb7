#include "robot/side_names.hpp"

#include <algorithm>
#include <cstddef>
#include <initializer_list>

namespace Varo::Model {

namespace {

/// A part of a name that says a side, and what the other side has there.
struct Mark {
    std::size_t begin = 0;
    std::size_t length = 0;
    std::string other = {};
    std::string alternative = {};  ///< what it may have instead; empty for nothing
};

bool isUpper(char c)
{
    return c >= 'A' && c <= 'Z';
}

bool isLower(char c)
{
    return c >= 'a' && c <= 'z';
}

bool isLetter(char c)
{
    return isUpper(c) || isLower(c);
}

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

char lowered(char c)
{
    return isUpper(c) ? static_cast<char>(c + ('a' - 'A')) : c;
}

char raised(char c)
{
    return isLower(c) ? static_cast<char>(c - ('a' - 'A')) : c;
}

/// `word`, given in lower case, in the letter case of `model`.
std::string inCaseOf(std::string_view model, std::string_view word)
{
    std::string result(word);
    bool const isAllUpper = std::all_of(model.begin(), model.end(), isUpper);
    for (std::size_t i = 0; i < result.size(); ++i) {
        bool const isRaised = isAllUpper || (i < model.size() && i == 0 && isUpper(model[0])) ||
                              (model.size() == result.size() && isUpper(model[i]));
        result[i] = isRaised ? raised(result[i]) : result[i];
    }
    return result;
}

/// Whether the word, given in lower case, stands there in whatever case.
bool isAt(std::string_view name, std::size_t at, std::string_view word)
{
    return name.size() - at >= word.size() &&
           std::equal(word.begin(), word.end(), name.data() + at, [](char a, char b) { return a == lowered(b); });
}

/// Of the words left and right, anywhere in the name.
void findSpelled(std::string_view name, std::vector<Mark>& marks)
{
    static constexpr std::string_view left = "left";
    static constexpr std::string_view right = "right";
    for (std::size_t at = 0; at < name.size(); ++at) {
        char const first = lowered(name[at]);
        if (first != left[0] && first != right[0]) {
            continue;
        }
        std::string_view const word = first == left[0] ? left : right;
        if (isAt(name, at, word)) {
            marks.push_back({at, word.size(), inCaseOf(name.substr(at, word.size()), first == left[0] ? right : left)});
        }
    }
}

/// Of "l", "r" and of two letters that say front or rear, too. What it is called on the other side stays empty for a
/// word that says none.
Mark markOfWord(std::string_view word)
{
    static constexpr std::string_view ends = "fhbmr";  // front, hind, back, middle, rear
    auto const isSide = [](char c) { return c == 'l' || c == 'r'; };
    auto const isEnd = [](char c) { return ends.find(c) != std::string_view::npos; };
    auto const flipped = [](char c) { return c == 'l' ? 'r' : 'l'; };
    Mark mark;
    mark.length = word.size();
    auto const add = [&](std::initializer_list<char> other) {
        (mark.other.empty() ? mark.other : mark.alternative) = inCaseOf(word, {other.begin(), other.size()});
    };
    char const first = word.empty() ? '\0' : lowered(word[0]);
    char const second = word.size() < 2 ? '\0' : lowered(word[1]);
    if (word.size() == 1 && isSide(first)) {
        add({flipped(first)});
    }
    if (word.size() == 2 && isEnd(first) && isSide(second)) {
        add({first, flipped(second)});
    }
    if (word.size() == 2 && isSide(first) && isEnd(second)) {
        add({flipped(first), second});
    }
    return mark;
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
        if (length > 2) {
            return;
        }
        std::size_t const end = begin + length;
        bool const isNumbered = (begin > 0 && isDigit(name[begin - 1])) || (end < name.size() && isDigit(name[end]));
        Mark mark = markOfWord(name.substr(begin, length));
        if (!mark.other.empty() && !isNumbered) {  // "r1" may be anything
            mark.begin = begin;
            marks.push_back(std::move(mark));
        }
    });
    std::sort(marks.begin(), marks.end(), [](Mark const& a, Mark const& b) { return a.begin < b.begin; });
    return marks;
}

/// The name with the marks from `first` up to `last` changed, each to its alternative, where it has one, if so wanted.
std::string changed(std::string_view name, std::vector<Mark> const& marks, std::size_t first, std::size_t last,
                    bool toAlternative)
{
    std::string result;
    result.reserve(name.size() + last - first);  // "left" becomes one letter longer
    std::size_t done = 0;
    for (std::size_t i = first; i < last; ++i) {
        Mark const& mark = marks[i];
        result += name.substr(done, mark.begin - done);
        result += toAlternative && !mark.alternative.empty() ? mark.alternative : mark.other;
        done = mark.begin + mark.length;
    }
    result += name.substr(done);
    return result;
}

void addLetterOf(std::string_view name, std::size_t at, std::vector<std::string>& others)
{
    std::string const letter = markOfWord(name.substr(at, 1)).other;
    if (!letter.empty()) {
        others.push_back(std::string(name.substr(0, at)) + letter + std::string(name.substr(at + 1)));
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
    bool const haveAlternatives =
        std::any_of(marks.begin(), marks.end(), [](Mark const& mark) { return !mark.alternative.empty(); });
    for (bool const toAlternative : {false, true}) {
        if (toAlternative && !haveAlternatives) {
            break;
        }
        names.others.push_back(changed(name, marks, 0, marks.size(), toAlternative));
        for (std::size_t i = 0; marks.size() > 1 && i < marks.size(); ++i) {
            names.others.push_back(changed(name, marks, i, i + 1, toAlternative));
        }
    }
    return names;
}

Side sideOf(std::string_view name)
{
    Side side = Side::unknown;
    for (Mark const& mark : marksOf(name)) {
        std::string_view const word = name.substr(mark.begin, mark.length);
        auto const letter = std::mismatch(word.begin(), word.end(), mark.other.begin(), mark.other.end()).first;
        Side const said = letter != word.end() && lowered(*letter) == 'l' ? Side::left : Side::right;
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
    result += name.substr(done);
    std::transform(result.begin(), result.end(), result.begin(), [](char c) { return lowered(c); });
    for (std::string_view const end : {"front", "rear", "hind", "back", "middle", "fore"}) {
        if (std::size_t const at = result.find(end); at != std::string::npos) {
            result.erase(at, end.size());
        }
    }
    return result;
}

}  // namespace Varo::Model
