#include "support/terminal.hpp"

#include <algorithm>
#include <cctype>
#include <cstdlib>

#include <sys/ioctl.h>
#include <unistd.h>

namespace Tool {

namespace {

std::string environment(char const* name)
{
    char const* const value = std::getenv(name);
    return value == nullptr ? "" : value;
}

bool wantsColour(int fileDescriptor)
{
    return isatty(fileDescriptor) != 0 && environment("NO_COLOR").empty() && environment("TERM") != "dumb";
}

char const* sequenceOf(Ink ink)
{
    switch (ink) {
    case Ink::heading:
    case Ink::link: return "\033[1m";
    case Ink::joint: return "\033[36m";
    case Ink::faint: return "\033[2m";
    case Ink::error: return "\033[1;31m";
    case Ink::warning: return "\033[1;35m";
    case Ink::note: return "\033[1;34m";
    case Ink::plain: break;
    }
    return "";
}

}  // namespace

bool isUtf8Locale()
{
    // The first of these that is set decides; whether that locale is installed here does not matter to the terminal.
    for (char const* const name : {"LC_ALL", "LC_CTYPE", "LANG"}) {
        std::string value = environment(name);
        if (!value.empty()) {
            std::transform(value.begin(), value.end(), value.begin(),
                           [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
            return value.find("utf-8") != std::string::npos || value.find("utf8") != std::string::npos;
        }
    }
    return false;
}

Palette::Palette(int fileDescriptor) : _colourful(wantsColour(fileDescriptor)) {}

std::string Palette::paint(Ink ink, std::string_view text) const
{
    if (!_colourful || ink == Ink::plain) {
        return std::string(text);
    }
    return sequenceOf(ink) + std::string(text) + "\033[0m";
}

std::size_t columnsOf(std::string_view text)
{
    return static_cast<std::size_t>(std::count_if(
        text.begin(), text.end(), [](char c) { return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U; }));
}

std::size_t outputWidth()
{
    winsize size = {};
    bool const isKnown = isatty(STDOUT_FILENO) != 0 && ioctl(STDOUT_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_col > 0;
    return isKnown ? size.ws_col : unboundedWidth;
}

std::string shortened(std::string_view text, std::size_t columns)
{
    constexpr char escape = '\033';
    std::size_t taken = 0;
    std::size_t end = 0;  // of what stays when there is an ellipsis behind it
    for (std::size_t at = 0; at < text.size();) {
        std::size_t const begin = at;
        if (text[at] == escape) {
            at = std::min(text.find('m', at), text.size() - 1) + 1;
            continue;
        }
        do {
            ++at;
        } while (at < text.size() && (static_cast<unsigned char>(text[at]) & 0xC0U) == 0x80U);
        end = taken + 1 == columns ? begin : end;
        if (++taken > columns) {
            bool const isColoured = text.substr(0, end).find(escape) != text.npos;
            char const* const ellipsis = isUtf8Locale() ? "…" : "~";
            return std::string(text.substr(0, end)) + ellipsis + (isColoured ? "\033[0m" : "");
        }
    }
    return std::string(text);
}

}  // namespace Tool
