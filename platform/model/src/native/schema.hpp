#ifndef VARO_MODEL_NATIVE_SCHEMA_HPP
#define VARO_MODEL_NATIVE_SCHEMA_HPP

#include "native/name_rules.hpp"
#include "native/native_codes.hpp"
#include "schema/schema.hpp"
#include "xml/document.hpp"

/// What the tables of the native dialect have of their own.
namespace Varo::Model::Native {

using namespace Schema;

/// Limits of which the lower one may not be above the upper one.
template <auto lower, auto upper, class Record = RecordOf<lower>>
constexpr Rule<Record> inOrder(char const* attribute)
{
    return {attribute,
            [](Record const& record, XmlNode /*node*/) { return record.*lower > record.*upper; },
            {&codes::reversedLimits, "The limit min is greater than max."}};
}

}  // namespace Varo::Model::Native

#endif
