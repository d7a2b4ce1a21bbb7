#include "zu/log.hpp"

#include <map>
#include <mutex>

#include <spdlog/sinks/stdout_sinks.h>
#include <spdlog/spdlog.h>

namespace zu::log {

namespace {

spdlog::level::level_enum severityOf(int level)
{
    if (level <= fatal) {
        return spdlog::level::critical;
    }
    switch (level) {
    case error: return spdlog::level::err;
    case warning: return spdlog::level::warn;
    case info: return spdlog::level::info;
    case verbose: return spdlog::level::debug;
    default: return spdlog::level::trace;
    }
}

/// A line on standard error. The logger is kept out of spdlog's registry: it is nobody else's.
Sink standardErrorSink()
{
    auto const logger =
        std::make_shared<spdlog::logger>("varorobotmodel", std::make_shared<spdlog::sinks::stderr_sink_mt>());
    logger->set_pattern("[%l] %v");
    logger->set_level(spdlog::level::trace);
    return [logger](Record const& record) {
        logger->log(severityOf(record.level), "{}: {}: {}", record.category, record.origin, record.message);
    };
}

struct State {
    std::mutex mutex;
    std::map<std::string, int> levels;
    Sink sink = standardErrorSink();
};

State& state()
{
    static State instance;
    return instance;
}

int levelOf(State const& state, std::string const& category)
{
    auto const found = state.levels.find(category);
    return found == state.levels.end() ? error : found->second;
}

}  // namespace

void addCategory(std::string const& category)
{
    State& shared = state();
    std::lock_guard const lock(shared.mutex);
    shared.levels.try_emplace(category, error);
}

int level(std::string const& category)
{
    State& shared = state();
    std::lock_guard const lock(shared.mutex);
    return levelOf(shared, category);
}

void setLevel(std::string const& category, int level)
{
    State& shared = state();
    std::lock_guard const lock(shared.mutex);
    shared.levels[category] = level;
}

void log(std::string const& category, int lineLevel, std::string_view origin, std::string_view message)
{
    State& shared = state();
    std::lock_guard const lock(shared.mutex);
    if (levelOf(shared, category) >= lineLevel) {
        shared.sink({category, lineLevel, origin, message});
    }
}

void setSink(Sink sink)
{
    if (!sink) {
        sink = standardErrorSink();
    }
    State& shared = state();
    std::lock_guard const lock(shared.mutex);
    shared.sink.swap(sink);  // what the old one holds goes once the lock is released
}

}  // namespace zu::log
