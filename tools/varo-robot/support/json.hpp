#ifndef TOOL_SUPPORT_JSON_HPP
#define TOOL_SUPPORT_JSON_HPP

#include <cstddef>
#include <cstdint>
#include <ostream>
#include <string>
#include <unordered_map>
#include <vector>

#include <nlohmann/json.hpp>

namespace Tool {

/// JSON whose objects keep the order of their members and whose numbers with a fraction are single-precision.
using Json =
    nlohmann::basic_json<nlohmann::ordered_map, std::vector, std::string, bool, std::int64_t, std::uint64_t, float>;

/// Collects the members of an object of any size: to add to a Json takes the longer, the more it holds.
class Members {
public:
    /// The last of those with one name counts, where the first stood.
    void set(std::string const& name, Json value);

    /// The object; this is empty then.
    Json take();

private:
    Json::object_t _members;
    std::unordered_map<std::string, std::size_t> _places;
};

/// Writes the value over several lines, except for arrays of plain values, each of which stands on one. Numbers are
/// written as `shortest` does, infinities and NaN as null. `indent` is that of the line on which the value begins.
void printJson(std::ostream& out, Json const& value, int indent = 0);

/// Writes a JSON object or array whose entries come one by one, so that it need not be in memory as a whole.
class JsonStream {
public:
    /// Opens an object or array: `bracket` is '{' or '['.
    JsonStream(std::ostream& out, char bracket, int indent = 0);
    JsonStream(JsonStream const&) = delete;
    JsonStream& operator=(JsonStream const&) = delete;
    /// Closes it.
    ~JsonStream();

    /// Starts an entry of an array.
    void next();
    /// Starts a member of an object; its value is to be written next.
    void next(std::string const& key);
    void add(Json const& value);
    void add(std::string const& key, Json const& value);

private:
    std::ostream& _out;
    char _bracket;
    int _indent;
    bool _empty = true;
};

}  // namespace Tool

#endif
