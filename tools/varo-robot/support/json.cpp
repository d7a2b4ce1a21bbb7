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
        out += '"';
        out += text;
        out += '"';
    } else {
        out += Json(text).dump(-1, ' ', false, Json::error_handler_t::replace);
    }
}

void appendNumber(std::string& out, float number)
{
    if (std::isfinite(number)) {
        appendShortest(out, number);
    } else {
        out += "null";
    }
}

void appendScalar(std::string& out, Json const& value)
{
    if (value.is_number_float()) {
        appendNumber(out, *value.get_ptr<Json::number_float_t const*>());
    } else if (value.is_string()) {
        appendText(out, value.get_ref<std::string const&>());
    } else if (value.is_null()) {
        out += "null";
    } else if (value.is_boolean()) {
        out += value.get<bool>() ? "true" : "false";
    } else {
        out += value.dump();
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
        appendBreak(_text, _indent);
    }
    _text += _bracket == '{' ? '}' : ']';
    write();
}

void JsonStream::begin()
{
    if (!_empty) {
        _text += ',';
    }
    appendBreak(_text, _indent + step);
    _empty = false;
}

void JsonStream::begin(std::string const& key)
{
    begin();
    appendText(_text, key);
    _text += ": ";
}

/// The string stays as large as the largest entry so far.
void JsonStream::write()
{
    _out << _text;
    _text.clear();
}

void JsonStream::next(std::string const& key)
{
    begin(key);
    write();
}

void JsonStream::add(Json const& value)
{
    begin();
    appendJson(_text, value, _indent + step);
    write();
}

void JsonStream::add(std::string const& key, Json const& value)
{
    begin(key);
    appendJson(_text, value, _indent + step);
    write();
}

}  // namespace Tool
