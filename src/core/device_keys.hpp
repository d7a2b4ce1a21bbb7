#ifndef VARO_CORE_DEVICE_KEYS_HPP
#define VARO_CORE_DEVICE_KEYS_HPP

#include <atomic>
#include <initializer_list>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace Sim {

/// The keys of a device: those that a description states, or those that follow from the device's name. The latter are
/// made when somebody first asks, which few do of few devices. Several threads may ask at once.
class DeviceKeys {
public:
    using Keys = std::vector<std::string>;
    using Make = Keys (*)(std::vector<std::string> const& names, int kinds);

    DeviceKeys(Keys keys)  // NOLINT(google-explicit-constructor): devices take any keys
        : _keys(new Keys(std::move(keys)))
    {}
    DeviceKeys(std::initializer_list<std::string> keys) : DeviceKeys(Keys(keys)) {}
    DeviceKeys(Make make, int kinds) : _make(make), _kinds(kinds) {}
    /// Those of a record, which outlives this.
    static DeviceKeys of(Keys const& record)
    {
        DeviceKeys keys(nullptr, 0);
        keys._keys.store(&record, std::memory_order_relaxed);
        keys._areRecords = true;
        return keys;
    }
    /// A copy outlives the record.
    DeviceKeys(DeviceKeys const& other) : _make(other._make), _kinds(other._kinds)
    {
        if (_make == nullptr) {
            _keys = new Keys(*other._keys.load());
        }
    }
    DeviceKeys(DeviceKeys&& other) noexcept
        : _keys(other._keys.load(std::memory_order_relaxed)),
          _make(other._make),
          _kinds(other._kinds),
          _areRecords(other._areRecords)
    {
        other._keys.store(nullptr, std::memory_order_relaxed);  // an exchange would cost more: nobody else asks yet
    }
    DeviceKeys& operator=(DeviceKeys const&) = delete;
    ~DeviceKeys()
    {
        if (!_areRecords) {
            delete _keys.load();
        }
    }

    /// Of the device of that name, always the same. Valid as long as this.
    Keys const& of(std::string const& name) const
    {
        Keys const* keys = _keys.load(std::memory_order_acquire);
        if (keys == nullptr) {
            auto made = std::make_unique<Keys const>(_make({name}, _kinds));
            if (_keys.compare_exchange_strong(keys, made.get())) {
                keys = made.release();  // else another thread was first
            }
        }
        return *keys;
    }

private:
    mutable std::atomic<Keys const*> _keys = nullptr;
    Make _make = nullptr;  ///< null where the keys were stated
    int _kinds = 0;
    bool _areRecords = false;
};

}  // namespace Sim

#endif
