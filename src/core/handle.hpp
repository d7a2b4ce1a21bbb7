#ifndef VARO_CORE_HANDLE_HPP
#define VARO_CORE_HANDLE_HPP

#include <stdexcept>
#include <vector>

#include <boost/shared_ptr.hpp>

// What the getters of all handles share: the null test with its message, and the way from shared to raw pointers.
namespace Sim {

/// The implementation behind a handle, read as the handle's own kind.
template <class Impl, class Root>
Impl const& implOf(Root const* impl, char const* message)
{
    if (impl == nullptr) {
        throw std::runtime_error(message);
    }
    return static_cast<Impl const&>(*impl);
}

template <class Impl>
Impl const& implOf(Impl const* impl, char const* message)
{
    return implOf<Impl, Impl>(impl, message);
}

/// The pointers of shared elements, one for one. What they point to lives on: the model owns it too.
template <class T>
std::vector<T const*> rawPointers(std::vector<boost::shared_ptr<T>> const& elements)
{
    std::vector<T const*> result;
    result.reserve(elements.size());
    for (auto const& element : elements) {
        result.push_back(element.get());
    }
    return result;
}

}  // namespace Sim

#endif
