#ifndef VARO_MODEL_NAME_HASH_HPP
#define VARO_MODEL_NAME_HASH_HPP

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

namespace Varo::Model {

/// What hashes of names depend on beside the names. Nobody who writes a description can know that of a process, and
/// choose names that all have one hash: a table of those would take time that grows with the square of its size.
struct HashSecret {
    std::uint64_t start;
    std::uint64_t factor;  ///< odd
};

/// That of this process, which is drawn when the library is loaded.
extern HashSecret const hashSecret;

namespace Hashing {

/// Both halves of the product, one upon the other: each bit depends on all bits of both factors. The lower half alone
/// would show a difference in the highest bit whatever the secret is.
inline std::uint64_t folded(std::uint64_t a, std::uint64_t b)
{
#ifdef __SIZEOF_INT128__
    __extension__ typedef unsigned __int128 Wide;
    Wide const product = static_cast<Wide>(a) * b;
    return static_cast<std::uint64_t>(product) ^ static_cast<std::uint64_t>(product >> 64U);
#else
    std::uint64_t const low = (a & 0xFFFFFFFFU) * (b & 0xFFFFFFFFU);
    std::uint64_t const middle = (a >> 32U) * (b & 0xFFFFFFFFU) + (low >> 32U);
    std::uint64_t const cross = (a & 0xFFFFFFFFU) * (b >> 32U) + (middle & 0xFFFFFFFFU);
    std::uint64_t const high = (a >> 32U) * (b >> 32U) + (middle >> 32U) + (cross >> 32U);
    return (low & 0xFFFFFFFFU) ^ (cross << 32U) ^ high;
#endif
}

template <class Word>
Word wordAt(char const* at)
{
    Word word;
    std::memcpy(&word, at, sizeof word);
    return word;
}

/// All bytes of a name of at most eight.
inline std::uint64_t shortWord(char const* at, std::size_t size)
{
    if (size >= 4) {
        std::uint64_t const first = wordAt<std::uint32_t>(at);
        return first << 32U | wordAt<std::uint32_t>(at + size - 4);
    }
    auto const byte = [at](std::size_t index) { return std::uint64_t{static_cast<unsigned char>(at[index])}; };
    return size == 0 ? 0 : byte(0) << 16U | byte(size / 2) << 8U | byte(size - 1);
}

}  // namespace Hashing

/// Eight bytes at a time: names are short, and most work on them is finding them.
inline std::uint64_t hashOf(std::string_view name, HashSecret const& secret)
{
    constexpr std::size_t step = sizeof(std::uint64_t);
    constexpr std::uint64_t far = 0x9E3779B97F4A7C15U;  // 2^64 by the golden ratio: lengths change what letters do not
    char const* const end = name.data() + name.size();
    std::uint64_t hash = secret.start + name.size() * far;
    if (name.size() <= step) {
        hash ^= Hashing::shortWord(name.data(), name.size());
    } else {
        for (char const* at = name.data(); at + step < end; at += step) {
            hash = Hashing::folded(hash ^ Hashing::wordAt<std::uint64_t>(at), secret.factor);
        }
        hash ^= Hashing::wordAt<std::uint64_t>(end - step);  // with bytes that were taken before, or not
    }
    return Hashing::folded(hash, secret.factor);
}

/// For tables of the standard library, whose own hash of texts is the same in every process. Not noexcept, for which
/// libstdc++ would keep no hashes, but work them out again whenever it looks for a name.
struct NameHash {
    std::size_t operator()(std::string_view name) const { return static_cast<std::size_t>(hashOf(name, hashSecret)); }
};

}  // namespace Varo::Model

#endif
