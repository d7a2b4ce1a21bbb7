#ifndef VARO_CORE_ELEMENT_ARENA_HPP
#define VARO_CORE_ELEMENT_ARENA_HPP

#include <algorithm>
#include <cstddef>
#include <memory>
#include <new>
#include <utility>
#include <vector>

#include <boost/shared_ptr.hpp>

#include "core/element_ref.hpp"

namespace Sim {

/// Makes and owns the elements of one model: one allocation serves many, and all end with the arena, the last made
/// first. Not safe for threads: one thread builds a model.
class ElementArena {
public:
    ElementArena() = default;
    ElementArena(ElementArena const&) = delete;
    ElementArena& operator=(ElementArena const&) = delete;
    ~ElementArena()
    {
        while (_last != nullptr) {
            std::exchange(_last, _last->before)->destroy();
        }
    }

    /// What an element takes.
    template <class T>
    static constexpr std::size_t sizeOf()
    {
        return sizeof(Piece<T>);
    }

    /// Says how many bytes there will be, more or less.
    void expect(std::size_t size) { _expected = size; }

    template <class T, class... Arguments>
    boost::shared_ptr<T> make(Arguments&&... arguments)
    {
        void* const place = allocate(sizeof(Piece<T>), alignof(Piece<T>));
        auto* const piece = ::new (place) Piece<T>(_last, std::forward<Arguments>(arguments)...);
        _last = piece;
        return uncounted(&piece->value);
    }

private:
    /// What is known of a piece whatever its type.
    struct AnyPiece {
        AnyPiece* before;
        void (*end)(AnyPiece& piece);

        void destroy() { end(*this); }
    };

    template <class T>
    struct Piece : AnyPiece {
        template <class... Arguments>
        explicit Piece(AnyPiece* madeBefore, Arguments&&... arguments)
            : AnyPiece{madeBefore, [](AnyPiece& piece) { static_cast<Piece&>(piece).~Piece(); }},
              value(std::forward<Arguments>(arguments)...)
        {}

        T value;
    };

    /// Cuts pieces off chunks that are as large as what is still expected, within bounds: ones that grow, as those of
    /// the standard library do, would leave a good part of the last one unused.
    void* allocate(std::size_t size, std::size_t alignment)
    {
        if (std::align(alignment, size, _free, _left) == nullptr) {
            constexpr std::size_t smallest = 8192;
            constexpr std::size_t largest = 65536;  // larger ones, the system hands out and takes back one by one
            std::size_t const chunk = std::clamp(_expected, smallest, largest);
            _expected -= std::min(_expected, chunk);
            addChunk(std::max(chunk, size + alignment));
            std::align(alignment, size, _free, _left);
        }
        void* const piece = _free;
        _free = static_cast<std::byte*>(_free) + size;
        _left -= size;
        return piece;
    }

    void addChunk(std::size_t size)
    {
        std::unique_ptr<std::byte[]> chunk(new std::byte[size]);  // not filled with zeros, as by make_unique
        _chunks.push_back(std::move(chunk));
        _free = _chunks.back().get();
        _left = size;
    }

    std::vector<std::unique_ptr<std::byte[]>> _chunks;
    void* _free = nullptr;
    std::size_t _left = 0;  ///< bytes from there to the end of the chunk
    std::size_t _expected = 0;  ///< bytes beyond the chunks that there are
    AnyPiece* _last = nullptr;
};

}  // namespace Sim

#endif
