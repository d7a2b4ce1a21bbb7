#ifndef ZU_LOG_HPP
#define ZU_LOG_HPP

#include <functional>
#include <string>
#include <string_view>

#include "varo/export.hpp"

/// Diagnostics by category and numeric level: the higher the level, the chattier the line.
///
/// Every operation may be called from any thread at any time. Only std::bad_alloc is thrown, and what a sink throws.
namespace zu::log {

/// Levels in common use; any integer is a level.
enum Level : int { silent = 0, fatal = 1, error = 2, warning = 3, info = 4, verbose = 5, debug = 6 };

/// One line on its way to the sink; the views live as long as the sink's call.
struct Record {
    std::string_view category;  ///< as handed to log()
    int level;  ///< of the line, not of the category
    std::string_view origin;  ///< the function that speaks
    std::string_view message;  ///< one line, without its end
};

/// Where lines go, see setSink().
using Sink = std::function<void(Record const&)>;

/// Makes the category known, at level `error`; does nothing when it is known already.
VAROROBOTMODEL_API void addCategory(std::string const& category);

/// The level up to which lines of the category are emitted; an unknown category is at `error`.
VAROROBOTMODEL_API int level(std::string const& category);

/// Sets the category's level, adding the category when it is new.
VAROROBOTMODEL_API void setLevel(std::string const& category, int level);

/// Hands the line to the sink when the category's level is at least `lineLevel`; drops it otherwise.
VAROROBOTMODEL_API void log(std::string const& category, int lineLevel, std::string_view origin,
                            std::string_view message);

/// Replaces where lines go; an empty function restores the default, a line each on standard error.
///
/// The sink is called on the thread that logs, by several threads at once when several log, so what it shares it has to
/// guard. It may do what it likes: call this namespace, setSink included, or build models. A line that is logged while
/// the sink runs, by the sink's own thread, does not come back to it but goes to standard error. What the sink throws
/// reaches the caller of `log`.
///
/// `setSink` does not wait: lines that other threads are about to log may still reach the old sink after it returned.
/// The old sink itself, with what it holds by value, lives until the last of them is through; what it only refers to
/// has to outlive them, or the threads that log have to be done.
VAROROBOTMODEL_API void setSink(Sink sink);

}  // namespace zu::log

#endif
