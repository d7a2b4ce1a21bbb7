#include <cstdio>
#include <cstdlib>

#include <dlfcn.h>

// To be preloaded into the tool: every text that goes to the reader, which makes a SourceText of it, adds a byte to the
// file $PARSE_LOG. The constructor under its name in the library, where its arguments are two addresses.
#define MAKE_SOURCE_TEXT _ZN4Varo5Model10SourceTextC1ENSt7__cxx1112basic_stringIcSt11char_traitsIcESaIcEEE
#define TEXT_OF(name) #name
#define NAME_OF(name) TEXT_OF(name)

extern "C" void MAKE_SOURCE_TEXT(void* made, void* text)
{
    if (std::FILE* const log = std::fopen(std::getenv("PARSE_LOG"), "a")) {
        std::fputc('.', log);
        std::fclose(log);
    }
    auto const make = reinterpret_cast<void (*)(void*, void*)>(dlsym(RTLD_NEXT, NAME_OF(MAKE_SOURCE_TEXT)));
    make(made, text);
}
