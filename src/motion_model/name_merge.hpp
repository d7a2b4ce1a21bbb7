#ifndef SIM_NAME_MERGE_HPP
#define SIM_NAME_MERGE_HPP

#include <list>
#include <map>
#include <string>
#include <string_view>

namespace Sim {

/// Merges lists one after the other as sorted lists are merged, although they need not be sorted: walking both lists,
/// an incoming name goes before the merged one when it is less, and behind it otherwise.
///
/// Such a walk places an incoming name before the first merged name that is greater than every incoming name so far.
/// That one is greater than all that stands before it, too; so it is found among the names of that property (`_peaks`)
/// instead of by walking, which would take a time quadratic in the number of lists.
class NameMerge {
public:
    NameMerge() = default;
    NameMerge(NameMerge const&) = delete;
    NameMerge& operator=(NameMerge const&) = delete;

    void add(std::list<std::string> incoming);
    /// The merged list; leaves this object for nothing but its destructor.
    std::list<std::string> take() { return std::move(_merged); }

private:
    using Position = std::list<std::string>::iterator;

    std::list<std::string> _merged;
    std::map<std::string_view, Position> _peaks;
};

}  // namespace Sim

#endif
