#include <cstddef>
#include <fstream>
#include <iostream>
#include <iterator>
#include <string>

#include <dlfcn.h>

// Loads a plugin that uses the library, lets it work, unloads it, and tells whether the library has gone with it.
// host PLUGIN DESCRIPTION
namespace {

bool isLibraryLoaded()
{
    std::ifstream maps("/proc/self/maps");
    std::string const text((std::istreambuf_iterator<char>(maps)), {});
    return text.find("libvarorobotmodel") != std::string::npos;
}

}  // namespace

int main(int, char** arguments)
{
    void* const plugin = dlopen(arguments[1], RTLD_NOW | RTLD_LOCAL);
    if (plugin == nullptr) {
        std::cerr << dlerror() << '\n';
        return 1;
    }
    auto const countLinks = reinterpret_cast<std::size_t (*)(char const*)>(dlsym(plugin, "countLinks"));
    std::cout << countLinks(arguments[2]) << " links, " << (isLibraryLoaded() ? "loaded" : "not loaded");
    dlclose(plugin);
    std::cout << ", " << (isLibraryLoaded() ? "still loaded" : "unloaded") << '\n';
}
