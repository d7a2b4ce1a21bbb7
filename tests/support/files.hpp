#ifndef VARO_TESTS_FILES_HPP
#define VARO_TESTS_FILES_HPP

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace Tests {

inline std::string readFile(std::filesystem::path const& path)
{
    std::ifstream file(path, std::ios::binary);
    EXPECT_TRUE(file) << path;
    return {std::istreambuf_iterator<char>(file), {}};
}

/// In order of name; none when there is no such folder.
inline std::vector<std::string> filesIn(std::string const& folder, std::string const& extension)
{
    std::vector<std::string> files;
    if (std::filesystem::is_directory(folder)) {
        for (auto const& entry : std::filesystem::directory_iterator(folder)) {
            if (entry.path().extension() == extension) {
                files.push_back(entry.path().string());
            }
        }
    }
    std::sort(files.begin(), files.end());
    return files;
}

/// Real robots, which may stand beside the sources; the environment can name another folder.
inline std::string realRobotsFolder()
{
    char const* const named = std::getenv("VARO_URDF_FOLDER");
    return named != nullptr ? named : VARO_SOURCE_DIR "/../shared/robots";
}

/// The example robots, in either dialect.
inline std::vector<std::string> exampleFiles()
{
    std::vector<std::string> files = filesIn(VARO_SOURCE_DIR "/robots", ".xml");
    for (std::string const& file : filesIn(VARO_SOURCE_DIR "/robots", ".urdf")) {
        files.push_back(file);
    }
    return files;
}

}  // namespace Tests

#endif
