#include "zu/log.hpp"

#include <cstdio>
#include <map>
#include <memory>
#include <mutex>
#include <utility>

namespace zu::log {

namespace {

char const* wordFor(int level)
{
    if (level <= fatal) {
        return "critical";
    }
    switch (level) {
    case error: return "error";
    case warning: return "warning";
    case info: return "info";
    case verbose: return "debug";
    default: return "trace";
    }
}

/// One call for the whole line, so that lines of several threads or processes do not mix.
void writeToStandardError(Record const& record)
{
    std::string line;
    line.append("[").append(wordFor(record.level)).append("] ");
    line.append(record.category).append(": ").append(record.origin).append(": ").append(record.message).append("\n");
    std::fwrite(line.data(), 1, line.size(), stderr);
    std::fflush(stderr);
}

struct State {
    std::mutex mutex;
    std::map<std::string, int> levels;
    std::shared_ptr<Sink const> sink = std::make_shared<Sink const>(writeToStandardError);
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

/// Where a line of that level goes now; null when nobody wants it.
std::shared_ptr<Sink const> sinkFor(std::string const& category, int lineLevel)
{
    State& shared = state();
    std::lock_guard const lock(shared.mutex);
    return levelOf(shared, category) >= lineLevel ? shared.sink : nullptr;
}

thread_local bool isInsideSink = false;

/// Marks this thread as being inside a sink, as long as it lives.
struct SinkCall {
    SinkCall() { isInsideSink = true; }
    SinkCall(SinkCall const&) = delete;
    SinkCall& operator=(SinkCall const&) = delete;
    ~SinkCall() { isInsideSink = false; }
};

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
    // The sink is called without the lock, since it may do whatever its owner likes, and held, since it may be replaced
    // meanwhile.
    std::shared_ptr<Sink const> const sink = sinkFor(category, lineLevel);
    if (sink == nullptr) {
        return;
    }
    Record const record = {category, lineLevel, origin, message};
    if (isInsideSink) {
        writeToStandardError(record);
    } else {
        SinkCall const call;
        (*sink)(record);
    }
}

void setSink(Sink sink)
{
    auto next = std::make_shared<Sink const>(sink ? std::move(sink) : Sink(writeToStandardError));
    State& shared = state();
    std::lock_guard const lock(shared.mutex);
    shared.sink.swap(next);  // what the old one holds goes once the lock is released
}

}  // namespace zu::log
