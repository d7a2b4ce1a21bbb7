#ifndef VARO_BENCH_BARE_PARSE_HPP
#define VARO_BENCH_BARE_PARSE_HPP

#include <string>

#include <pugixml.hpp>

namespace Bench {

/// The least that any reader of the text has to do.
inline void parseBare(std::string const& text)
{
    pugi::xml_document document;
    document.load_buffer(text.data(), text.size());
}

}  // namespace Bench

#endif
