#ifndef TOOL_SUPPORT_JSON_HPP
#define TOOL_SUPPORT_JSON_HPP

#include <cstddef>
#include <cstdint>
#include <map>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

#include <nlohmann/json.hpp>

namespace Tool {

/// JSON whose objects keep the order of their members and whose numbers with a fraction are single-precision.
using Json =
    nlohmann::basic_json<nlohmann::ordered_map, std::vector, std::string, bool, std::int64_t, std::uint64_t, float>;

struct Member {
    char const* key;
    Json value;
};

/// An object of these members, no two of which have one key. A Json that is made of braces is the same, but makes
/// several of each member on its way. There is room for more of them.
template <std::size_t count>
Json objectOf(Member (&&members)[count], std::size_t more = 0)
{
    Json::object_t object;
    object.reserve(count + more);
    for (Member& member : members) {
        object.emplace_back(member.key, std::move(member.value));
    }
    return object;
}

/// Adds a member, of a key that the object does not have, without a search for it.
inline void append(Json& object, Member member)
{
    object.get_ref<Json::object_t&>().emplace_back(member.key, std::move(member.value));
}

/// Collects the members of an object of any size: to add to a Json takes the longer, the more it holds.
class Members {
public:
    /// The last of those with one name counts, where the first stood.
    void set(std::string const& name, Json value);

    /// The object; this is empty then.
    Json take();

private:
    Json::object_t _members;
    std::map<std::string, std::size_t> _places;  ///< sorted, because names that share a hash could be chosen
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

    /// Starts a member of an object; its value is to be written next.
    void next(std::string const& key);
    void add(Json const& value);
    void add(std::string const& key, Json const& value);

private:
    void begin();
    void begin(std::string const& key);
    void write();

    std::ostream& _out;
    std::string _text;  ///< that is not written yet
    char _bracket;
    int _indent;
    bool _empty = true;
};

}  // namespace Tool

#endif
