#include "varo/model/text_file.hpp"

#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <new>
#include <optional>
#include <system_error>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "varo/model/model_utils.hpp"

namespace Varo::Model {

namespace {

constexpr std::size_t blockSize = std::size_t{64} * 1024;
constexpr std::size_t mostBytes = ModelUtils::maxTextSize + 1;

/// Closes it at its end.
class Descriptor {
public:
    explicit Descriptor(int number) : _number(number) {}
    Descriptor(Descriptor const&) = delete;
    Descriptor& operator=(Descriptor const&) = delete;
    ~Descriptor()
    {
        if (_number >= 0) {
            ::close(_number);
        }
    }

    int number() const { return _number; }

private:
    int _number;
};

TextFile inTheWay(int error, std::string const& reason, bool isOpened)
{
    return {{}, "It cannot be read: " + reason + ".", isOpened, error};
}

/// The system's own words; lack of memory is no fault of the file.
TextFile inTheWay(int error, bool isOpened)
{
    if (error == ENOMEM) {
        throw std::bad_alloc();
    }
    return inTheWay(error, std::generic_category().message(error), isOpened);
}

/// Nothing when the system has none to tell.
std::optional<struct stat> statusOf(int descriptor)
{
    struct stat status = {};
    return ::fstat(descriptor, &status) == 0 ? std::optional(status) : std::nullopt;
}

bool isDevice(struct stat const& status)
{
    return S_ISCHR(status.st_mode) || S_ISBLK(status.st_mode);
}

/// As when /dev/stdin is named and a terminal is behind it.
bool isStandardInput(struct stat const& status)
{
    auto const input = statusOf(STDIN_FILENO);
    return input && isDevice(*input) && input->st_rdev == status.st_rdev;
}

/// Zero, or what is in the way.
int readToEnd(int descriptor, std::string& text)
{
    while (text.size() < mostBytes) {
        std::size_t const size = text.size();
        std::size_t const room = text.capacity() - size;
        text.resize(std::min(size + (room > 0 ? std::min(room, blockSize) : blockSize), mostBytes));
        ssize_t const count = ::read(descriptor, &text[size], text.size() - size);
        int const error = count < 0 ? errno : 0;
        text.resize(size + static_cast<std::size_t>(std::max<ssize_t>(count, 0)));
        if (count == 0 || (count < 0 && error != EINTR)) {
            return error;
        }
    }
    return 0;
}

}  // namespace

TextFile readTextFile(int descriptor)
{
    TextFile file;
    file.isOpened = true;
    auto const status = statusOf(descriptor);
    if (status && S_ISREG(status->st_mode)) {
        // A byte more, so that the end is seen without room for another block.
        file.text.reserve(std::min(static_cast<std::size_t>(status->st_size) + 1, mostBytes));
    }
    int const error = readToEnd(descriptor, file.text);
    return error == 0 ? std::move(file) : inTheWay(error, true);
}

TextFile readTextFile(std::string const& path)
{
    if (path.find('\0') != std::string::npos) {
        return inTheWay(ENOENT, false);  // the system would look at the part before it only
    }
    struct stat status = {};
    if (::stat(path.c_str(), &status) != 0) {
        return inTheWay(errno, false);
    }
    if (isDevice(status) && !isStandardInput(status)) {
        return inTheWay(ENOTSUP, "It is a device", true);
    }
    Descriptor const file(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NOCTTY));
    return file.number() < 0 ? inTheWay(errno, false) : readTextFile(file.number());
}

}  // namespace Varo::Model
