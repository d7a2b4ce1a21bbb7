#include "view/base64.hpp"

#include <cstdint>

namespace Tool {

std::string base64(std::string_view bytes)
{
    constexpr char digits[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    std::string text;
    text.reserve((bytes.size() + 2) / 3 * 4);
    for (std::size_t at = 0; at < bytes.size(); at += 3) {
        auto const byte = [&](std::size_t i) {
            return at + i < bytes.size() ? static_cast<std::uint32_t>(static_cast<unsigned char>(bytes[at + i])) : 0U;
        };
        std::uint32_t const bits = byte(0) << 16U | byte(1) << 8U | byte(2);
        text += digits[bits >> 18U & 63U];
        text += digits[bits >> 12U & 63U];
        text += at + 1 < bytes.size() ? digits[bits >> 6U & 63U] : '=';
        text += at + 2 < bytes.size() ? digits[bits & 63U] : '=';
    }
    return text;
}

}  // namespace Tool
