#ifndef VARO_MODEL_SCHEMA_NAME_RULE_HPP
#define VARO_MODEL_SCHEMA_NAME_RULE_HPP

#include <string_view>

#include "varo/model/finding.hpp"

namespace Varo::Model::Schema {

/// What a table finds fault with, and how it says so.
struct Complaint {
    FindingCode const* code = nullptr;  ///< null when nothing can be wrong
    std::string_view message = {};  ///< in which % stands for the name that it is about
    std::string_view hint = {};
};

/// What a name is from where it stands on, which it must not have been before.
struct GivenName {
    unsigned kinds = 0;
    Complaint twice = {};
    bool isLocal = false;  ///< whether only elements of one parent must not share it
    bool isNumber = false;  ///< which may be written in several ways
};

/// What a name must be anywhere in the text.
struct WantedName {
    unsigned kinds = 0;  ///< one of them; 0 when all is right
    Complaint unknown = {};  ///< without a hint, the name that was probably meant is suggested
    bool blamesElement = false;  ///< whether that is reported at the element and not at the attribute
};

/// What it means that a name stands in an attribute. What the kinds of names are is for the dialect to say.
struct NameRule {
    GivenName gives;
    WantedName wants = {};
};

}  // namespace Varo::Model::Schema

#endif
