#include "varo/model/name_hash.hpp"

#include <chrono>

#include <unistd.h>

namespace Varo::Model {

namespace {

/// A system without random numbers still loads the library at another address, at another time.
HashSecret secretOfChance()
{
    auto const place = reinterpret_cast<std::uintptr_t>(&hashSecret);
    auto const time = static_cast<std::uint64_t>(std::chrono::steady_clock::now().time_since_epoch().count());
    return {place, time};
}

HashSecret drawSecret()
{
    HashSecret secret = {};
    if (::getentropy(&secret, sizeof secret) != 0) {
        secret = secretOfChance();
    }
    secret.factor |= 1U;
    return secret;
}

}  // namespace

HashSecret const hashSecret = drawSecret();

}  // namespace Varo::Model
