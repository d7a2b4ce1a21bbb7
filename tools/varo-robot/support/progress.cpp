#include "support/progress.hpp"

#include <chrono>
#include <cstdio>

#include <unistd.h>

namespace Tool {

Progress::Progress(std::string work) : _work(std::move(work))
{
    if (isatty(STDERR_FILENO) != 0) {
        _reporter = std::thread([this] { report(); });
    }
}

Progress::~Progress()
{
    if (_reporter.joinable()) {
        {
            std::lock_guard<std::mutex> const lock(_mutex);
            _isOver = true;
        }
        _change.notify_one();
        _reporter.join();
    }
}

void Progress::report()
{
    std::unique_lock<std::mutex> lock(_mutex);
    int seconds = 0;
    while (!_change.wait_for(lock, std::chrono::seconds(1), [this] { return _isOver; })) {
        std::fprintf(stderr, "\r%s, %d s", _work.c_str(), ++seconds);
        std::fflush(stderr);
    }
    if (seconds > 0) {
        std::fputs("\r\033[K", stderr);
    }
}

}  // namespace Tool
