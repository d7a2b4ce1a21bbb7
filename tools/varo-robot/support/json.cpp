#include "support/json.hpp"

#include <algorithm>
#include <cmath>

#include "support/numbers.hpp"

namespace Tool {

namespace {

constexpr int step = 2;

void printScalar(std::ostream& out, Json const& value)
{
    if (value.is_number_float()) {
        float const number = value.get<float>();
        out << (std::isfinite(number) ? shortest(number) : "null");
    } else {
        out << value.dump(-1, ' ', false, Json::error_handler_t::replace);
    }
}

bool isPlain(Json const& value)
{
    return !value.is_structured() || value.empty();
}

void printRow(std::ostream& out, Json const& array)
{
    char const* separator = "[";
    for (Json const& entry : array) {
        out << separator;
        printScalar(out, entry);
        separator = ", ";
    }
    out << ']';
}

}  // namespace

void printJson(std::ostream& out, Json const& value, int indent)
{
    if (isPlain(value)) {
        printScalar(out, value);
    } else if (value.is_object()) {
        JsonStream object(out, '{', indent);
        for (auto const& [key, member] : value.items()) {
            object.add(key, member);
        }
    } else if (std::all_of(value.begin(), value.end(), isPlain)) {
        printRow(out, value);
    } else {
        JsonStream array(out, '[', indent);
        for (Json const& entry : value) {
            array.add(entry);
        }
    }
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
    _out << (_empty ? "\n" : ",\n") << std::string(static_cast<std::size_t>(_indent + step), ' ');
    _empty = false;
}

void JsonStream::next(std::string const& key)
{
    next();
    printScalar(_out, key);
    _out << ": ";
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
