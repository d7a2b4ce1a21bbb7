#ifndef VARO_MODEL_TABLE_HPP
#define VARO_MODEL_TABLE_HPP

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace Varo::Model {

/// The records of one kind, in the order of the description, to be found by their names, which differ.
///
/// Plain data: reading from several threads is safe. References and indices stay valid as long as nothing is added.
template <class Config>
class Table {
public:
    /// Without records.
    Table() = default;
    /// As a robot lists them: `names` may state the order of the records; those that it leaves out follow in order of
    /// their keys, under which records are found whatever they themselves are called.
    Table(std::vector<std::string> const& names, std::map<std::string, Config> byName)
    {
        reserve(byName.size());
        for (std::string const& name : names) {
            if (auto found = byName.extract(name)) {
                addUnderKey(std::move(found.key()), std::move(found.mapped()));
            }
        }
        while (!byName.empty()) {
            auto first = byName.extract(byName.begin());
            addUnderKey(std::move(first.key()), std::move(first.mapped()));
        }
        sortNames();
    }

    /// Makes room for so many records.
    void reserve(std::size_t size) { _records.reserve(size); }
    /// The record can be found once the names are sorted.
    void add(Config&& config) { _records.push_back(std::move(config)); }
    /// A new record, to be filled in before another one is added.
    Config& add() { return _records.emplace_back(); }
    /// To be called when all records are there, and before any is looked for.
    void sortNames()
    {
        std::vector<SortKey> keys(_records.size());
        for (std::uint32_t index = 0; index < keys.size(); ++index) {
            keys[index] = {startOf(nameOf(index)), index};
        }
        auto const precedes = [this](SortKey a, SortKey b) {
            return a.start == b.start ? nameOf(a.index) < nameOf(b.index) : a.start < b.start;
        };
        if (!std::is_sorted(keys.begin(), keys.end(), precedes)) {
            std::stable_sort(keys.begin(), keys.end(), precedes);
        }
        _nameOrder.resize(keys.size());
        std::transform(keys.begin(), keys.end(), _nameOrder.begin(), [](SortKey key) { return key.index; });
    }

    /// How many records there are.
    std::size_t size() const { return _records.size(); }
    /// Whether there are none.
    bool empty() const { return _records.empty(); }

    /// The first record in the order of the description.
    auto begin() const { return _records.begin(); }
    /// Behind the last one.
    auto end() const { return _records.end(); }
    /// The record of that index in the order of the description.
    Config const& operator[](std::size_t index) const { return _records[index]; }
    /// The same, to be changed; its name must stay.
    Config& operator[](std::size_t index) { return _records[index]; }

    /// The indices of the records in ascending order of their names, which are compared byte by byte.
    std::vector<std::uint32_t> const& nameOrder() const { return _nameOrder; }
    /// The name under which the record of that index is found: its own, unless a robot lists it under another.
    std::string const& nameOf(std::size_t index) const { return _keys.empty() ? _records[index].name : _keys[index]; }

    /// Null for an unknown name.
    Config const* find(std::string_view name) const
    {
        auto const precedes = [this](std::uint32_t index, std::string_view wanted) { return nameOf(index) < wanted; };
        auto const found = std::lower_bound(_nameOrder.begin(), _nameOrder.end(), name, precedes);
        return found == _nameOrder.end() || nameOf(*found) != name ? nullptr : &_records[*found];
    }
    /// Whether there is a record of that name.
    bool contains(std::string_view name) const { return find(name) != nullptr; }

    /// What the listings of a robot hand out.
    std::vector<std::string> names() const
    {
        std::vector<std::string> names;
        names.reserve(size());
        for (std::size_t i = 0; i < size(); ++i) {
            names.push_back(nameOf(i));
        }
        return names;
    }
    /// The same by their names.
    std::map<std::string, Config> byName() const
    {
        std::map<std::string, Config> byName;
        for (std::uint32_t const index : _nameOrder) {
            byName.emplace_hint(byName.end(), nameOf(index), _records[index]);
        }
        return byName;
    }

private:
    /// Most names differ in their first characters, so that sorting need not look at the records.
    struct SortKey {
        std::uint64_t start;
        std::uint32_t index;
    };
    /// The first eight characters, which compare as the names do unless they are the same.
    static std::uint64_t startOf(std::string const& name)
    {
        std::uint64_t start = 0;
        for (std::size_t i = 0; i < sizeof start; ++i) {
            start = start << 8U | (i < name.size() ? static_cast<unsigned char>(name[i]) : 0U);
        }
        return start;
    }

    void addUnderKey(std::string key, Config config)
    {
        if (_keys.empty() && key != config.name) {
            _keys = names();
        }
        if (!_keys.empty() || key != config.name) {
            _keys.push_back(std::move(key));
        }
        add(std::move(config));
    }

    std::vector<Config> _records;
    std::vector<std::uint32_t> _nameOrder;
    std::vector<std::string> _keys;  ///< empty where records are found under the names that they state
};

}  // namespace Varo::Model

#endif
