#ifndef VARO_MODEL_NATIVE_NAMES_HPP
#define VARO_MODEL_NATIVE_NAMES_HPP

#include <cstddef>
#include <cstdint>
#include <deque>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "native/name_rules.hpp"
#include "robot/suggestions.hpp"
#include "varo/model/diagnostics.hpp"
#include "varo/model/hash_slots.hpp"
#include "varo/model/records.hpp"
#include "xml/document.hpp"

namespace Varo::Model::Native {

/// All names in one text, each of which keeps its rule.
class Names {
public:
    explicit Names(Diagnostics& diagnostics) : _diagnostics(diagnostics) {}

    /// Makes room for the names of so many records, most of which one other element refers to.
    void reserve(std::size_t records);

    /// A name as it stands in the attribute; its characters must outlive this. Null for an attribute that is left out.
    void use(NameRule const& rule, std::string_view name, XmlNode node, XmlAttribute attribute);

    /// The characters of a name that does not stand in the text itself.
    std::string_view keep(std::string name) { return _kept.emplace_back(std::move(name)); }

    /// The names of records that stand in another text; these must outlive this.
    void addAll(Records const& robot);

    /// The name that the rule is for could not be read.
    void lose(NameRule const& rule) { _isAnyLost = _isAnyLost || (rule.gives.kinds & names::referable) != 0; }
    /// Something that may define names could not be read: whether a name is known can no longer be told.
    void loseAny() { _isAnyLost = true; }
    bool isAnyLost() const { return _isAnyLost; }

    /// Reports what is wrong with the references, once all elements are read.
    void checkReferences(Records const& robot);

private:
    static constexpr std::size_t wholeText = 0;
    struct Entry {
        std::string_view name;
        std::uint32_t scope;  ///< the number of the element within which the name differs from others
        std::uint32_t hash;  ///< of both
        unsigned kinds;
    };
    using EntryIndex = std::uint32_t;
    struct Use {
        NameRule const* rule;
        EntryIndex entry;
        XmlNode node;
        XmlAttribute attribute;
    };

    EntryIndex indexOf(std::string_view name, std::size_t scope = wholeText);
    /// Valid until another name is asked for.
    unsigned& kindsOf(std::string_view name) { return _entries[indexOf(name)].kinds; }
    void findAngles(Records const& robot);
    void checkUses(bool afterChains);
    void reportUnknown(Use const& use);
    void checkCycle(names::Cycle const& cycle);

    Diagnostics& _diagnostics;
    std::deque<std::string> _kept;
    std::vector<Entry> _entries;  ///< by their first mention
    HashSlots _slots;
    EntryIndex _next = 0;  ///< behind the last one asked for, of the whole text: most are mentioned in one order
    std::vector<Use> _uses;  ///< that are to be checked, in the order of the text
    Suggestions _suggestions;
    bool _isAnyLost = false;
    bool _isAngleWanted = false;
};

}  // namespace Varo::Model::Native

#endif
