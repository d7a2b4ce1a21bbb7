#ifndef VARO_CORE_ELEMENT_REF_HPP
#define VARO_CORE_ELEMENT_REF_HPP

#include <memory>

#include <boost/shared_ptr.hpp>
#include <boost/weak_ptr.hpp>

namespace Sim {

/// A shared pointer without a count, to what somebody else keeps alive: an arena its elements, a model its records.
template <class T>
boost::shared_ptr<T> uncounted(T* value)
{
    return {boost::shared_ptr<T>(), value};
}

/// What one element refers to another by; it keeps nothing alive. The elements of a model live equally long, so that
/// plain pointers do, which cost nothing to make and to drop; to elements made elsewhere it is a weak pointer.
template <class T>
class ElementRef {
public:
    ElementRef() = default;
    template <class Element>
    ElementRef(boost::shared_ptr<Element> const& element)  // NOLINT(google-explicit-constructor): as of weak pointers
        : _element(element.get()),
          _madeElsewhere(element.use_count() == 0 ? nullptr : std::make_unique<boost::weak_ptr<T>>(element))
    {}
    ElementRef(ElementRef const& other)
        : _element(other._element),
          _madeElsewhere(other._madeElsewhere == nullptr ? nullptr
                                                         : std::make_unique<boost::weak_ptr<T>>(*other._madeElsewhere))
    {}
    ElementRef(ElementRef&&) noexcept = default;
    ElementRef& operator=(ElementRef const&) = delete;
    ElementRef& operator=(ElementRef&&) noexcept = default;
    ~ElementRef() = default;

    /// Empty where there is none, or no more.
    boost::shared_ptr<T> lock() const
    {
        return _madeElsewhere == nullptr ? uncounted(_element) : _madeElsewhere->lock();
    }

private:
    T* _element = nullptr;
    std::unique_ptr<boost::weak_ptr<T>> _madeElsewhere;
};

}  // namespace Sim

#endif
