#ifndef VARO_MODEL_NATIVE_SCHEMA_HPP
#define VARO_MODEL_NATIVE_SCHEMA_HPP

#include <string>
#include <string_view>

#include <pugixml.hpp>

#include "native/values.hpp"
#include "range.hpp"

/// What the native dialect consists of, as tables: which elements there are, what each may hold, and where it goes.
///
/// The reader and the writer obey these tables, and the XML schema and the reference in the documentation are written
/// from them. An attribute names its place in the records by pointer to member, from which the type of its value
/// follows.
namespace Varo::Model::Native {

class ElementReader;
class ElementWriter;

struct Attribute {
    std::string_view name;
    ValueType const* type;
    std::string_view unit;  ///< may be empty
    std::string_view meaning;
    bool required;
    std::string_view defaultText;  ///< what leaving an optional attribute out amounts to
    /// Writes the value of `text` into the record; false, with the record unchanged, when it has none.
    bool (*store)(std::string_view text, void* record);
    /// Whether a new record holds the value of `text`.
    bool (*isDefault)(std::string_view text);
    /// The text of the record's value; of a new record's when it is null.
    std::string (*print)(void const* record);
};

enum class Occurrence { optional, once, any };

struct Element;

struct Child {
    Element const* element;
    Occurrence occurrence;
    /// Reads the child `node` into the record of its parent.
    void (*read)(ElementReader& reader, Element const& element, pugi::xml_node node, void* parent);
    /// Writes what the record of the parent has to say in such children.
    void (*write)(ElementWriter& writer, Element const& element, void const* parent);
};

/// An attribute, or all attributes that `selector` (as of an xs:unique) finds, that no two elements share.
struct Unique {
    std::string_view name;
    std::string_view selector;
    std::string_view field;
};

struct Element {
    std::string_view name;
    std::string_view meaning;
    Range<Attribute> attributes;
    Range<Child> children = {};
    Attribute const* text = nullptr;  ///< null when the element holds no text
    Range<Unique> uniques = {};
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

/// `Base` is the type that the pointer to the record comes as, when it is a base of that which has the member.
template <auto member, class Type, class Base>
bool storeMember(std::string_view text, void* record)
{
    return Type::parse(text, static_cast<RecordOf<member>*>(static_cast<Base*>(record))->*member);
}

template <auto member, class Type>
bool isDefaultOfMember(std::string_view text)
{
    RecordOf<member> record;
    return Type::parse(text, record.*member) && record.*member == RecordOf<member>().*member;
}

template <auto member, class Type, class Base>
std::string printMember(void const* record)
{
    if (record == nullptr) {
        return Type::print(RecordOf<member>().*member);
    }
    return Type::print(static_cast<RecordOf<member> const*>(static_cast<Base const*>(record))->*member);
}

template <auto member, class Type = DefaultType<member>>
constexpr Attribute required(std::string_view name, std::string_view unit, std::string_view meaning)
{
    using Record = RecordOf<member>;
    return {name,
            &Type::type,
            unit,
            meaning,
            true,
            {},
            storeMember<member, Type, Record>,
            nullptr,
            printMember<member, Type, Record>};
}

template <auto member, class Type = DefaultType<member>, class Base = RecordOf<member>>
constexpr Attribute optional(std::string_view name, std::string_view defaultText, std::string_view unit,
                             std::string_view meaning)
{
    return {name,
            &Type::type,
            unit,
            meaning,
            false,
            defaultText,
            storeMember<member, Type, Base>,
            isDefaultOfMember<member, Type>,
            printMember<member, Type, Base>};
}

/// The text between an element's tags.
template <auto member, class Type = DefaultType<member>>
constexpr Attribute content(std::string_view meaning)
{
    return required<member, Type>({}, {}, meaning);
}

}  // namespace Varo::Model::Native

#endif
