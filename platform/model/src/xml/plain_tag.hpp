#ifndef VARO_MODEL_XML_PLAIN_TAG_HPP
#define VARO_MODEL_XML_PLAIN_TAG_HPP

namespace Varo::Model {

/// A tag that needs no closer look, as nearly all are.
struct PlainTag {
    char const* end = nullptr;  ///< behind its `>`; null for a tag that takes a closer look
    bool isEmptyElement = false;
};

// All of ASCII, without control characters, without white space where mere style puts it, and surely right. The text
// ends in a character of value zero.

/// Behind the white space that begins there.
char const* skipWhiteSpace(char const* at);

/// Of a start tag: its attributes are apart from each other and of different names, and their values hold neither
/// references nor `<`.
PlainTag readPlainStartTag(char const* less);

PlainTag readPlainEndTag(char const* less);

}  // namespace Varo::Model

#endif
