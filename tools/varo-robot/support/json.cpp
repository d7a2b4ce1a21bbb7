#include "support/json.hpp"

#include <algorithm>
#include <cmath>
#include <utility>

#include "support/numbers.hpp"

namespace Tool {

namespace {

constexpr int step = 2;

/// Whether it stands between quotes as it is, as nearly all names do.
bool isPlainText(std::string const& text)
{
    return std::all_of(text.begin(), text.end(),
                       [](char c) { return c >= ' ' && c != '"' && c != '\\' && c != '\x7F'; });
}

void appendText(std::string& out, std::string const& text)
{
    if (isPlainText(text)) {
        out.append(1, '"').append(text).append(1, '"');
    } else {
        out += Json(text).dump(-1, ' ', false, Json::error_handler_t::replace);
    }
}

void appendScalar(std::string& out, Json const& value)
{
    if (value.is_number_float()) {
        float const number = value.get<float>();
        out += std::isfinite(number) ? shortest(number) : "null";
    } else if (value.is_string()) {
        appendText(out, value.get_ref<std::string const&>());
    } else {
        out += value.dump(-1, ' ', false, Json::error_handler_t::replace);
    }
}

bool isPlain(Json const& value)
{
    return !value.is_structured() || value.empty();
}

void appendRow(std::string& out, Json const& array)
{
    char const* separator = "[";
    for (Json const& entry : array) {
        out += separator;
        appendScalar(out, entry);
        separator = ", ";
    }
    out += ']';
}

/// Between entries: a new line, indented.
void appendBreak(std::string& out, int indent)
{
    out += '\n';
    out.append(static_cast<std::size_t>(indent), ' ');
}

void appendJson(std::string& out, Json const& value, int indent)
{
    if (isPlain(value)) {
        appendScalar(out, value);
    } else if (value.is_array() && std::all_of(value.begin(), value.end(), isPlain)) {
        appendRow(out, value);
    } else {
        bool const isObject = value.is_object();
        char separator = isObject ? '{' : '[';
        for (auto entry = value.begin(); entry != value.end(); ++entry) {
            out += separator;
            appendBreak(out, indent + step);
            separator = ',';
            if (isObject) {
                appendText(out, entry.key());
                out += ": ";
            }
            appendJson(out, *entry, indent + step);
        }
        appendBreak(out, indent);
        out += isObject ? '}' : ']';
    }
}

}  // namespace

void Members::set(std::string const& name, Json value)
{
    auto const [place, isNew] = _places.try_emplace(name, _members.size());
    if (isNew) {
        _members.emplace_back(name, std::move(value));
    } else {
        (_members.begin() + static_cast<std::ptrdiff_t>(place->second))->second = std::move(value);
    }
}

Json Members::take()
{
    _places.clear();
    return Json(std::exchange(_members, {}));
}

void printJson(std::ostream& out, Json const& value, int indent)
{
    std::string text;
    appendJson(text, value, indent);
    out << text;
}

JsonStream::JsonStream(std::ostream& out, char bracket, int indent) : _out(out), _bracket(bracket), _indent(indent)
{
    _out << bracket;
}

JsonStream::~JsonStream()
{
    if (!_empty) {
        _out << '\n' << std::string(static_cast<std::size_t>(_indent), ' ');
    }
    _out << (_bracket == '{' ? '}' : ']');
}

void JsonStream::next()
{
    std::string text = _empty ? "" : ",";
    appendBreak(text, _indent + step);
    _out << text;
    _empty = false;
}

void JsonStream::next(std::string const& key)
{
    next();
    std::string text;
    appendText(text, key);
    _out << text << ": ";
}

void JsonStream::add(Json const& value)
{
    next();
    printJson(_out, value, _indent + step);
}

void JsonStream::add(std::string const& key, Json const& value)
{
    next(key);
    printJson(_out, value, _indent + step);
}

}  // namespace Tool
