# How our own code is compiled. The warnings are errors only where this project is the one being built.
if(PROJECT_IS_TOP_LEVEL AND NOT CMAKE_BUILD_TYPE AND NOT CMAKE_CONFIGURATION_TYPES)
    set(CMAKE_BUILD_TYPE Release CACHE STRING "" FORCE)
endif()

set(CMAKE_CXX_STANDARD 17)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

if(PROJECT_IS_TOP_LEVEL)
    find_program(CCACHE ccache)
    if(CCACHE)
        set(CMAKE_CXX_COMPILER_LAUNCHER ${CCACHE})
    endif()
endif()

set(VAROROBOTMODEL_SANITIZE "" CACHE STRING "Sanitizers to build with, as -fsanitize takes them")

# What makes a fault harder to abuse, in optimised builds and where the compiler has it: guards on the stack, checks of
# the buffers of the C library, indirect jumps to marked places only, tables that cannot be written once all is loaded.
# Symbols that are unique in the process would keep the library in it for ever.
include(CheckCXXCompilerFlag)
set(optimised $<CONFIG:Release,RelWithDebInfo,MinSizeRel>)
foreach(flag stack-protector-strong stack-clash-protection cf-protection no-gnu-unique)
    string(MAKE_C_IDENTIFIER COMPILER_HAS_${flag} has_flag)
    check_cxx_compiler_flag(-f${flag} ${has_flag})
    if(${has_flag})
        add_compile_options($<${optimised}:-f${flag}>)
    endif()
endforeach()
add_link_options($<${optimised}:LINKER:-z,relro,-z,now>)
if(NOT VAROROBOTMODEL_SANITIZE)
    add_compile_options($<${optimised}:-U_FORTIFY_SOURCE> $<${optimised}:-D_FORTIFY_SOURCE=2>)
endif()

# For those who only build it: another compiler, or one that optimises in another way, may warn of more.
option(VAROROBOTMODEL_WERROR "Take warnings for errors" ON)
set(warnings -Wall -Wextra -Wpedantic -Wconversion -Wshadow)
if(VAROROBOTMODEL_WERROR)
    list(APPEND warnings -Werror)
endif()

add_library(varo_build_flags INTERFACE)
if(PROJECT_IS_TOP_LEVEL)
    target_compile_options(varo_build_flags INTERFACE ${warnings})
endif()
if(VAROROBOTMODEL_SANITIZE)
    add_compile_options(-fsanitize=${VAROROBOTMODEL_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all)
    add_link_options(-fsanitize=${VAROROBOTMODEL_SANITIZE})
endif()
