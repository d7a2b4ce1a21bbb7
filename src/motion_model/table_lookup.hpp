#ifndef SIM_TABLE_LOOKUP_HPP
#define SIM_TABLE_LOOKUP_HPP

#include <cstdint>
#include <list>
#include <map>
#include <string>

#include "varo/model/table.hpp"

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
std::list<std::string> namesIn(Varo::Model::Table<Record> const& table)
{
    std::list<std::string> names;
    for (std::uint32_t const index : table.nameOrder()) {
        names.push_back(table.nameOf(index));
    }
    return names;
}

}  // namespace Sim

#endif
