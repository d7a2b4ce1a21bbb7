#include "support/output_file.hpp"

#include <cerrno>
#include <filesystem>
#include <optional>
#include <system_error>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "support/description.hpp"

namespace Tool {

namespace {

namespace fs = std::filesystem;
using Varo::Model::Severity;

[[noreturn]] void failWith(int error)
{
    throw std::system_error(error, std::generic_category());
}

void expect(bool worked)
{
    if (!worked) {
        failWith(errno);
    }
}

/// An open file, for writing.
class Output {
public:
    explicit Output(int descriptor) : _descriptor(descriptor) { expect(descriptor >= 0); }
    Output(Output const&) = delete;
    Output& operator=(Output const&) = delete;
    ~Output()
    {
        if (_descriptor >= 0) {
            ::close(_descriptor);
        }
    }

    int descriptor() const { return _descriptor; }

    void write(std::string_view text) const
    {
        while (!text.empty()) {
            ssize_t const count = ::write(_descriptor, text.data(), text.size());
            if (count >= 0) {
                text.remove_prefix(static_cast<std::size_t>(count));
            } else if (errno != EINTR) {
                failWith(errno);
            }
        }
    }

    /// Some file systems say only here that there was no room.
    void close() { expect(::close(std::exchange(_descriptor, -1)) == 0); }

private:
    int _descriptor;
};

/// Goes when nothing has come of it.
class TemporaryFile {
public:
    explicit TemporaryFile(fs::path const& folder)
        : _name((folder / ".varo-robot-XXXXXX").string()), _output(::mkostemp(_name.data(), O_CLOEXEC))
    {}
    TemporaryFile(TemporaryFile const&) = delete;
    TemporaryFile& operator=(TemporaryFile const&) = delete;
    ~TemporaryFile()
    {
        if (!_name.empty()) {
            ::unlink(_name.c_str());
        }
    }

    Output& output() { return _output; }

    void rename(fs::path const& name)
    {
        fs::rename(_name, name);
        _name.clear();
    }

private:
    std::string _name;
    Output _output;
};

/// Of the file that a name leads to, nothing when there is none.
std::optional<struct stat> statusOf(std::string const& file)
{
    struct stat status = {};
    if (::stat(file.c_str(), &status) == 0) {
        return status;
    }
    expect(errno == ENOENT);
    return std::nullopt;
}

/// Where symbolic links lead in the end (they do, or the file had no status), whether there is a file or not; nothing
/// when one of them stands for an open file of a process, as /dev/stdout does.
std::optional<fs::path> placeOf(fs::path file)
{
    while (fs::is_symlink(file)) {
        fs::path const folder = fs::canonical(file.has_parent_path() ? file.parent_path() : ".");
        if (folder.string().rfind("/proc/", 0) == 0) {
            return std::nullopt;
        }
        file = folder / fs::read_symlink(file);
    }
    return file;
}

/// Appending, since what an open file holds already is not ours.
void writeInPlace(std::string const& file, std::string_view text)
{
    Output output(::open(file.c_str(), O_WRONLY | O_APPEND | O_NOCTTY | O_CLOEXEC));
    output.write(text);
    output.close();
}

mode_t modeOfNewFiles()
{
    mode_t const mask = ::umask(0);
    ::umask(mask);
    return 0666 & ~mask;
}

/// The new file is to be used by the same people as the old one.
void handDownAccess(int descriptor, std::optional<struct stat> const& old)
{
    if (old) {
        [[maybe_unused]] int const ignored = ::fchown(descriptor, old->st_uid, old->st_gid);
    }
    expect(::fchmod(descriptor, old ? old->st_mode & 0777 : modeOfNewFiles()) == 0);
}

void replaceFile(fs::path const& place, std::string_view text, std::optional<struct stat> const& old)
{
    if (old) {
        expect(::access(place.c_str(), W_OK) == 0);  // renaming does not ask whether the file may be written
    }
    TemporaryFile file(place.has_parent_path() ? place.parent_path() : ".");
    Output& output = file.output();
    output.write(text);
    handDownAccess(output.descriptor(), old);
    expect(::fsync(output.descriptor()) == 0);
    output.close();
    file.rename(place);
}

void writeUnlessKept(std::string const& file, std::string_view text, Existing existing)
{
    auto const old = statusOf(file);
    if (old && S_ISDIR(old->st_mode)) {
        failWith(EISDIR);
    }
    bool const isDevice = old && !S_ISREG(old->st_mode);
    auto const place = isDevice ? std::nullopt : placeOf(file);
    if (!place) {
        writeInPlace(file, text);
    } else if (old && existing == Existing::isKept) {
        throw Refused(file, {fileFinding(Severity::error, codes::existingFile, "It is there already.",
                                         "Name another file, or replace this one with --force.")});
    } else {
        replaceFile(*place, text, old);
    }
}

}  // namespace

void writeFile(std::string const& file, std::string_view text, Existing existing)
{
    try {
        writeUnlessKept(file, text, existing);
    } catch (std::system_error const& error) {
        bool const isDenied = error.code() == std::errc::permission_denied;
        throw Refused(file,
                      {fileFinding(Severity::error, codes::unwritableFile,
                                   "It cannot be written: " + error.code().message() + ".",
                                   isDenied ? "The file and the folder that it is in have to be writable." : "")});
    }
}

bool isSameFile(std::string const& a, std::string const& b)
{
    std::error_code error;
    return fs::equivalent(a, b, error);
}

}  // namespace Tool
