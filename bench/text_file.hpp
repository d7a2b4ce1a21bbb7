#ifndef VARO_BENCH_TEXT_FILE_HPP
#define VARO_BENCH_TEXT_FILE_HPP

#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>

namespace Bench {

inline std::string readText(std::filesystem::path const& file)
{
    std::ifstream stream(file, std::ios::binary);
    if (!stream) {
        throw std::runtime_error("cannot read " + file.string());
    }
    return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
}

/// As tables call the file.
inline std::string nameOf(std::filesystem::path const& file)
{
    return file.filename().string();
}

}  // namespace Bench

#endif
