#ifndef SIM_TABLE_LOOKUP_HPP
#define SIM_TABLE_LOOKUP_HPP

#include <list>
#include <map>
#include <string>

namespace Sim {

/// Null for an unknown name.
template <typename Value>
Value const* find(std::map<std::string, Value> const& table, std::string const& name)
{
    auto const found = table.find(name);
    return found == table.end() ? nullptr : &found->second;
}

/// Writes one field of a record; false, with nothing written, for none.
template <typename Record, typename Value>
bool readField(Record const* record, Value Record::*field, Value& value)
{
    if (record == nullptr) {
        return false;
    }
    value = record->*field;
    return true;
}

/// In ascending order.
template <typename Record>
std::list<std::string> namesIn(std::map<std::string, Record> const& table)
{
    std::list<std::string> names;
    for (auto const& entry : table) {
        names.push_back(entry.first);
    }
    return names;
}

}  // namespace Sim

#endif
