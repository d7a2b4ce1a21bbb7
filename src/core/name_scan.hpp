#ifndef VARO_CORE_NAME_SCAN_HPP
#define VARO_CORE_NAME_SCAN_HPP

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string_view>
#include <vector>

#include <boost/shared_ptr.hpp>

#include "varo/model/name_index.hpp"

namespace Sim {

/// Looks for names in a registry, in its order. The scan goes over hashes that stand packed beside it, since the names
/// themselves lie all over the memory. They are made when somebody first asks, in whichever thread.
class NameScan {
public:
    NameScan() = default;
    NameScan(NameScan const&) = delete;
    NameScan& operator=(NameScan const&) = delete;
    ~NameScan() { delete _hashes.load(); }

    /// The first of the elements, which are always the same, that has the name and `isMeant`; an empty pointer when
    /// there is none.
    template <class T, class IsMeant>
    boost::shared_ptr<T> const& find(std::string_view name, std::vector<boost::shared_ptr<T>> const& elements,
                                     IsMeant isMeant) const
    {
        static boost::shared_ptr<T> const nothing;
        Hashes const& hashes = hashesOf(elements);
        Hash const wanted = hashOf(name);
        for (std::size_t at = next(hashes, wanted, 0); at < hashes.size(); at = next(hashes, wanted, at + 1)) {
            if (elements[at]->name() == name && isMeant(*elements[at])) {
                return elements[at];
            }
        }
        return nothing;
    }

    template <class T>
    boost::shared_ptr<T> const& find(std::string_view name, std::vector<boost::shared_ptr<T>> const& elements) const
    {
        return find(name, elements, [](T const& /*element*/) { return true; });
    }

private:
    using Hash = std::uint16_t;  // of a thousand other names, hardly one shares it
    using Hashes = std::vector<Hash>;

    static Hash hashOf(std::string_view name) { return static_cast<Hash>(Varo::Model::NameIndex::hashOf(name)); }

    /// Where the wanted one next stands, from `at` on; the size when it stands nowhere.
    static std::size_t next(Hashes const& hashes, Hash wanted, std::size_t at);

    template <class T>
    Hashes const& hashesOf(std::vector<boost::shared_ptr<T>> const& elements) const
    {
        Hashes const* hashes = _hashes.load(std::memory_order_acquire);
        if (hashes == nullptr) {
            auto made = std::make_unique<Hashes>();
            made->reserve(elements.size());
            for (auto const& element : elements) {
                made->push_back(hashOf(element->name()));
            }
            if (_hashes.compare_exchange_strong(hashes, made.get())) {
                hashes = made.release();  // else another thread was first
            }
        }
        return *hashes;
    }

    mutable std::atomic<Hashes const*> _hashes = nullptr;
};

}  // namespace Sim

#endif
