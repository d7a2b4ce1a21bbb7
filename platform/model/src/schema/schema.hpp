#ifndef VARO_MODEL_SCHEMA_SCHEMA_HPP
#define VARO_MODEL_SCHEMA_SCHEMA_HPP

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <optional>
#include <string>
#include <string_view>
#include <type_traits>

#include "range.hpp"
#include "schema/name_rule.hpp"
#include "schema/values.hpp"
#include "xml/document.hpp"

/// What a dialect consists of, as tables: which elements there are, what each may hold, and where it goes.
///
/// The reader and the writer obey these tables, and schema and reference in the documentation are written from them.
/// What is wrong with a text follows from them too; how a dialect takes that is for its ElementReader to say. An
/// attribute names its place in the records by pointer to member, from which the type of its value follows. What can be
/// said without knowing the record stands in the `Info` that a row derives from.
namespace Varo::Model::Schema {

class ElementReader;
class ElementWriter;

struct AttributeInfo {
    std::string_view name;
    ValueType const* type;
    std::string_view unit;  ///< may be empty
    std::string_view meaning;
    bool required;
    std::string_view defaultText;  ///< what leaving an optional attribute out amounts to
    bool (*isDefault)(std::string_view text);  ///< whether a new record holds the value of `text`; null when leaving
                                               ///< the attribute out says something else than any text
    NameRule const* names = nullptr;  ///< null when the value is no name
    Complaint missing = {};  ///< about an element without the attribute, where the dialect has no words of its own
    bool isName = false;  ///< that `names` is not null, which g++ with sanitizers takes for no constant
};

template <class Record>
struct Attribute : AttributeInfo {
    using Store = bool (*)(std::string_view text, Record& record);
    using Print = std::string (*)(Record const& record);
    using IsNew = bool (*)(Record const& record);

    constexpr Attribute with(NameRule const& rule) const
    {
        Attribute copy = *this;
        copy.names = &rule;
        copy.isName = true;
        return copy;
    }

    constexpr Attribute orElse(Complaint const& complaint) const
    {
        Attribute copy = *this;
        copy.missing = complaint;
        return copy;
    }

    /// An older form of what the writer writes in another way.
    constexpr Attribute onlyRead() const
    {
        return printedBy([](Record const&) { return std::string(); });
    }

    /// One that is written in a way of its own.
    constexpr Attribute printedBy(Print itsPrint) const
    {
        Attribute copy = *this;
        copy.print = itsPrint;
        copy.isNew = nullptr;
        return copy;
    }

    /// One that stands in what is written even where it could be left out.
    constexpr Attribute alwaysWritten() const
    {
        Attribute copy = *this;
        copy.writesDefault = true;
        return copy;
    }

    Store store;  ///< false when the text is not of the type; a tolerant type may take a part of it all the same
    Print print;
    bool writesDefault = false;
    IsNew isNew = nullptr;  ///< whether the value is that of a new record, down to the sign of a zero; null where only
                            ///< the texts tell
};

enum class Occurrence { optional, once, any };

struct ElementInfo;

struct ChildInfo {
    ElementInfo const* element;
    Occurrence occurrence;
};

template <class Parent>
struct Child : ChildInfo {
    using Read = void (*)(ElementReader& reader, XmlNode node, Parent& parent);
    using Write = void (*)(ElementWriter& writer, Parent const& parent);
    using Clear = void (*)(Parent& parent);
    using AreSame = bool (*)(Parent const& a, Parent const& b);

    Read read;  ///< into the record of the parent
    Write write;  ///< what the record of the parent has to say in such children; null for those of another row
    Clear clear = nullptr;  ///< makes the record of the parent one without such children; null where nobody asks
    AreSame areSame = nullptr;  ///< whether both surely have the same to say there; null where writing has to tell
};

/// Something that attributes or children together may be wrong in.
template <class Record>
struct Rule {
    char const* attribute;  ///< at which it is reported; empty for the element
    bool (*isBroken)(Record const& record, XmlNode node);
    Complaint complaint;
};

/// The rows of a table of which only the base is to be seen.
template <class Info>
class Infos {
public:
    class Iterator {
    public:
        Iterator(char const* row, std::size_t step) : _row(row), _step(step) {}
        Info const& operator*() const { return *reinterpret_cast<Info const*>(_row); }
        Iterator& operator++() { return _row += _step, *this; }
        bool operator!=(Iterator const& other) const { return _row != other._row; }

    private:
        char const* _row;
        std::size_t _step;
    };

    template <class Row>
    constexpr explicit Infos(Range<Row> rows) : _first(rows.begin()), _size(rows.size()), _step(sizeof(Row))
    {}

    std::size_t size() const { return _size; }
    Info const& operator[](std::size_t index) const { return *Iterator(row(index), _step); }
    Iterator begin() const { return {row(0), _step}; }
    Iterator end() const { return {row(_size), _step}; }

private:
    char const* row(std::size_t index) const { return reinterpret_cast<char const*>(_first) + index * _step; }

    Info const* _first;
    std::size_t _size;
    std::size_t _step;
};

/// A set of rows of one table, none of which has more than 32.
using RowSet = std::uint32_t;

struct ElementInfo {
    std::string_view name;
    std::string_view meaning;
    Infos<AttributeInfo> attributes;
    Infos<ChildInfo> children;
    AttributeInfo const* text;  ///< null when the element holds no text
    RowSet notableAttributes;  ///< whose absence says something: the required ones, and those that are names
    RowSet requiredChildren;
};

constexpr std::string_view nameOf(AttributeInfo const& attribute)
{
    return attribute.name;
}
constexpr std::string_view nameOf(ChildInfo const& child)
{
    return child.element->name;
}

template <class Row, class IsIn>
constexpr RowSet rowsWhere(Range<Row> rows, IsIn isIn)
{
    RowSet set = 0;
    for (std::size_t i = 0; i < rows.size(); ++i) {
        set |= isIn(rows[i]) ? RowSet{1} << i : 0;
    }
    return set;
}

template <class R>
struct Element : ElementInfo {
    using Record = R;

    constexpr Element(std::string_view tag, std::string_view about, Range<Attribute<Record>> itsAttributes,
                      Range<Child<Record>> itsChildren = {}, Range<Rule<Record>> itsRules = {},
                      Attribute<Record> const* itsText = nullptr)
        : ElementInfo{tag,
                      about,
                      Infos<AttributeInfo>(itsAttributes),
                      Infos<ChildInfo>(itsChildren),
                      itsText,
                      rowsWhere(itsAttributes, [](AttributeInfo const& row) { return row.required || row.isName; }),
                      rowsWhere(itsChildren, [](ChildInfo const& row) { return row.occurrence == Occurrence::once; })},
          attributeRows(itsAttributes),
          childRows(itsChildren),
          rules(itsRules),
          textRow(itsText)
    {}

    Range<Attribute<Record>> attributeRows;
    Range<Child<Record>> childRows;
    Range<Rule<Record>> rules;
    Attribute<Record> const* textRow;
};

template <auto>
struct MemberPointer;
template <class R, class V, V R::*member>
struct MemberPointer<member> {
    using Record = R;
    using Value = V;
};
template <auto member>
using RecordOf = typename MemberPointer<member>::Record;
template <auto member>
using DefaultType = TypeOf<typename MemberPointer<member>::Value>;

template <class>
constexpr bool isOptional = false;
template <class Value>
constexpr bool isOptional<std::optional<Value>> = true;

/// Most values are, so that this spares writers most of the printing.
template <auto member, class Record>
bool isAsInNew(Record const& record)
{
    using Value = typename MemberPointer<member>::Value;
    static Value const fresh = Record().*member;
    if constexpr (isOptional<Value>) {
        return !(record.*member) && !fresh;
    } else if constexpr (std::is_trivially_copyable_v<Value>) {
        // NOLINTNEXTLINE(bugprone-suspicious-memory-comparison): 0 and -0 are to differ
        return std::memcmp(&(record.*member), &fresh, sizeof fresh) == 0;
    } else if constexpr (std::is_same_v<Value, std::string>) {
        return record.*member == fresh;
    } else {
        return false;
    }
}

template <auto member, class Type, class Record>
constexpr Attribute<Record> memberRow(AttributeInfo const& info)
{
    return {info, [](std::string_view text, Record& record) { return Type::parse(text, record.*member); },
            [](Record const& record) { return Type::print(record.*member); }, false, isAsInNew<member, Record>};
}

template <auto member, class Type = DefaultType<member>, class Record = RecordOf<member>>
constexpr Attribute<Record> required(std::string_view name, std::string_view unit, std::string_view meaning)
{
    return memberRow<member, Type, Record>({name, &Type::type, unit, meaning, true, {}, nullptr, nullptr, {}});
}

template <auto member, class Type = DefaultType<member>, class Record = RecordOf<member>>
constexpr Attribute<Record> optional(std::string_view name, std::string_view defaultText, std::string_view unit,
                                     std::string_view meaning)
{
    auto const isDefault = [](std::string_view text) {
        Record record;
        return Type::parse(text, record.*member) && record.*member == Record().*member;
    };
    return memberRow<member, Type, Record>(
        {name, &Type::type, unit, meaning, false, defaultText, isDefault, nullptr, {}});
}

/// An optional attribute of which the record also holds whether it stands there.
template <auto member, class Type = DefaultType<member>, class Record = RecordOf<member>>
constexpr Attribute<Record> withoutDefault(std::string_view name, std::string_view unit, std::string_view meaning)
{
    return memberRow<member, Type, Record>({name, &Type::type, unit, meaning, false, {}, nullptr, nullptr, {}});
}

/// An attribute that is a name.
template <auto member, class Record = RecordOf<member>>
constexpr Attribute<Record> named(std::string_view name, NameRule const& rule, std::string_view meaning)
{
    return required<member, Name, Record>(name, "", meaning).with(rule);
}

/// An attribute, or without a name the text between the tags, that is all that its record holds.
template <class Type>
constexpr Attribute<std::string> whole(std::string_view name, std::string_view meaning)
{
    return {{name, &Type::type, {}, meaning, true, {}, nullptr, nullptr, {}},
            [](std::string_view text, std::string& record) { return Type::parse(text, record); },
            [](std::string const& record) { return record; }};
}

}  // namespace Varo::Model::Schema

#endif
