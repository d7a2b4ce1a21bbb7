#include "robot/side_names.hpp"

#include <algorithm>
#include <cstddef>
#include <initializer_list>
#include <utility>

namespace Varo::Model {

namespace {

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

/// Whether words that say a side begin with that letter.
bool isOfSide(char c)
{
    return c == 'l' || c == 'r';
}

/// `word`, given in lower case, in the letter case of `model`.
ShortWord inCaseOf(std::string_view model, std::string_view word)
{
    ShortWord result;
    result.size = word.size();
    bool const isAllUpper = std::all_of(model.begin(), model.end(), isUpper);
    for (std::size_t i = 0; i < word.size(); ++i) {
        bool const isRaised = isAllUpper || (i < model.size() && i == 0 && isUpper(model[0])) ||
                              (model.size() == word.size() && isUpper(model[i]));
        result.letters[i] = isRaised ? raised(word[i]) : word[i];
    }
    return result;
}

/// Whether the word, given in lower case, stands there in whatever case.
bool isAt(std::string_view name, std::size_t at, std::string_view word)
{
    return name.size() - at >= word.size() &&
           std::equal(word.begin(), word.end(), name.data() + at, [](char a, char b) { return a == lowered(b); });
}

/// Of the words left and right. What it is called on the other side stays empty where neither stands.
SideMark spelledMark(std::string_view name, std::size_t at)
{
    static constexpr std::string_view left = "left";
    static constexpr std::string_view right = "right";
    SideMark mark;
    for (auto const& [word, other] : {std::pair(left, right), std::pair(right, left)}) {
        if (isAt(name, at, word)) {
            mark.begin = at;
            mark.length = word.size();
            mark.other = inCaseOf(name.substr(at, word.size()), other);
        }
    }
    return mark;
}

/// Of "l", "r" and of two letters that say front or rear, too; as above for other words.
SideMark markOfWord(std::string_view word)
{
    static constexpr std::string_view ends = "fhbmr";  // front, hind, back, middle, rear
    auto const isEnd = [](char c) { return ends.find(c) != std::string_view::npos; };
    auto const flipped = [](char c) { return c == 'l' ? 'r' : 'l'; };
    SideMark mark;
    mark.length = word.size();
    auto const add = [&](std::initializer_list<char> other) {
        (mark.other.size == 0 ? mark.other : mark.alternative) = inCaseOf(word, {other.begin(), other.size()});
    };
    char const first = word.empty() ? '\0' : lowered(word[0]);
    char const second = word.size() < 2 ? '\0' : lowered(word[1]);
    if (word.size() == 1 && isOfSide(first)) {
        add({flipped(first)});
    }
    if (word.size() == 2 && isEnd(first) && isOfSide(second)) {
        add({first, flipped(second)});
    }
    if (word.size() == 2 && isOfSide(first) && isEnd(second)) {
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

/// Calls `visit` with each mark, in the order in which they stand in the name.
template <class Visit>
void forEachMark(std::string_view name, Visit const& visit)
{
    auto const take = [&](SideMark const& mark) {
        if (mark.other.size > 0) {
            visit(mark);
        }
    };
    auto const takeSpelled = [&](std::size_t at) {
        if (isOfSide(lowered(name[at]))) {
            take(spelledMark(name, at));
        }
    };
    forEachWord(name, [&](std::size_t begin, std::size_t length) {
        takeSpelled(begin);
        std::size_t const end = begin + length;
        bool const isNumbered = (begin > 0 && isDigit(name[begin - 1])) || (end < name.size() && isDigit(name[end]));
        if (length <= 2 && !isNumbered) {  // "r1" may be anything
            SideMark mark = markOfWord(name.substr(begin, length));
            mark.begin = begin;
            take(mark);
        }
        for (std::size_t at = begin + 1; at < end; ++at) {
            takeSpelled(at);
        }
    });
}

}  // namespace

void SideNames::read(std::string_view name)
{
    _name = name;
    _count = 0;
    _haveAlternatives = false;
    readMarks();
    _areMarked = _count > 0;
    if (_count > mostMarks) {
        _count = 0;
        _areMarked = _haveAlternatives = false;
    } else if (!_areMarked && name.size() > 1) {
        readLetter(0);
        readLetter(name.size() - 1);
    }
}

void SideNames::readMarks()
{
    forEachMark(_name, [this](SideMark const& mark) {
        if (_count < mostMarks) {
            _marks[_count] = mark;
            _haveAlternatives = _haveAlternatives || mark.alternative.size > 0;
        }
        ++_count;
    });
}

void SideNames::readLetter(std::size_t at)
{
    SideMark mark = markOfWord(_name.substr(at, 1));
    if (mark.other.size > 0) {
        mark.begin = at;
        _marks[_count++] = mark;
    }
}

/// With all marks changed, then with each alone; then the same with each changed to its alternative, where it has one.
std::string const& SideNames::other(std::size_t index)
{
    bool const toAlternative = index >= changes();
    std::size_t const change = index % changes();
    bool const areAllChanged = changes() > _count && change == 0;
    std::size_t const first = areAllChanged ? 0 : change - (changes() - _count);
    std::size_t const last = areAllChanged ? _count : first + 1;
    _other.clear();
    std::size_t done = 0;
    for (std::size_t i = first; i < last; ++i) {
        SideMark const& mark = _marks[i];
        _other += _name.substr(done, mark.begin - done);
        _other += toAlternative && mark.alternative.size > 0 ? mark.alternative : mark.other;
        done = mark.begin + mark.length;
    }
    return _other += _name.substr(done);
}

Side sideOf(std::string_view name)
{
    bool isLeft = false;
    bool isRight = false;
    forEachMark(name, [&](SideMark const& mark) {
        std::string_view const word = name.substr(mark.begin, mark.length);
        std::string_view const other = mark.other;
        auto const letter = std::mismatch(word.begin(), word.end(), other.begin(), other.end()).first;
        (letter != word.end() && lowered(*letter) == 'l' ? isLeft : isRight) = true;
    });
    return isLeft == isRight ? Side::unknown : isLeft ? Side::left : Side::right;
}

std::string withoutSides(std::string_view name)
{
    std::string result;
    std::size_t done = 0;
    forEachMark(name, [&](SideMark const& mark) {
        if (mark.begin >= done) {
            result += name.substr(done, mark.begin - done);
            done = mark.begin + mark.length;
        }
    });
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
