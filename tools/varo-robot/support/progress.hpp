#ifndef TOOL_SUPPORT_PROGRESS_HPP
#define TOOL_SUPPORT_PROGRESS_HPP

#include <condition_variable>
#include <mutex>
#include <string>
#include <thread>

namespace Tool {

/// Says on standard error what takes so long, from one second on, as long as it lives. Only on a terminal, where the
/// line is gone when it is over.
class Progress {
public:
    /// `work` as in "reading arm.urdf".
    explicit Progress(std::string work);
    Progress(Progress const&) = delete;
    Progress& operator=(Progress const&) = delete;
    ~Progress();

private:
    void report();

    std::string _work;
    std::mutex _mutex;
    std::condition_variable _change;
    bool _isOver = false;
    std::thread _reporter;  ///< none where standard error is no terminal
};

}  // namespace Tool

#endif
