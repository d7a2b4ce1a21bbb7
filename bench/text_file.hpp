#ifndef VARO_BENCH_TEXT_FILE_HPP
#define VARO_BENCH_TEXT_FILE_HPP

#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>

namespace Bench {

inline std::string readText(std::filesystem::path const& file)
{
    std::string text(std::filesystem::file_size(file), '\0');
    std::ifstream stream(file, std::ios::binary);
    if (!stream.read(text.data(), static_cast<std::streamsize>(text.size()))) {
        throw std::runtime_error("cannot read " + file.string());
    }
    return text;
}

/// As tables call the file.
inline std::string nameOf(std::filesystem::path const& file)
{
    return file.filename().string();
}

}  // namespace Bench

#endif
