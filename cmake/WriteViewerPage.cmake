# Writes SOURCE, which defines viewerPage() with what the file PAGE holds, and empty when there is none.
set(bytes "")
if(PAGE)
    file(READ ${PAGE} bytes HEX)
    string(REGEX REPLACE "([0-9a-f][0-9a-f])" "0x\\1," bytes "${bytes}")
    string(REGEX REPLACE "(0x..,0x..,0x..,0x..,0x..,0x..,0x..,0x..,0x..,0x..,0x..,0x..,0x..,0x..,0x..,0x..,)" "\\1\n" bytes "${bytes}")
endif()
file(WRITE ${SOURCE} "// Written by WriteViewerPage.cmake.
#include \"view/page.hpp\"

namespace Tool {

namespace {

constexpr unsigned char bytes[] = {
${bytes}0};

}  // namespace

std::string_view viewerPage()
{
    return {reinterpret_cast<char const*>(bytes), sizeof(bytes) - 1};
}

}  // namespace Tool
")
