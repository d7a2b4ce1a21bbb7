#ifndef VARO_TESTS_CAPTURED_LOG_HPP
#define VARO_TESTS_CAPTURED_LOG_HPP

#include <mutex>
#include <string>
#include <vector>

#include "zu/log.hpp"

namespace Tests {

/// Collects what is logged while it lives: "category|level|origin|message".
class CapturedLog {
public:
    CapturedLog()
    {
        zu::log::setSink([this](zu::log::Record const& record) {
            std::lock_guard const lock(_mutex);
            lines.push_back(std::string(record.category) + '|' + std::to_string(record.level) + '|' +
                            std::string(record.origin) + '|' + std::string(record.message));
        });
    }
    ~CapturedLog() { zu::log::setSink({}); }

    std::vector<std::string> lines;

private:
    std::mutex _mutex;  // several threads may log at once
};

}  // namespace Tests

#endif
