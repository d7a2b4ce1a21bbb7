# One room of the library: an object library that sees its own headers and those of the rooms it names, and no others.
# varo_room(NAME SOURCES file... [PUBLIC room...] [PRIVATE target...])
set_property(GLOBAL PROPERTY VARO_ROOMS)

function(varo_room name)
    cmake_parse_arguments(ROOM "" "" "SOURCES;PUBLIC;PRIVATE" ${ARGN})
    add_library(${name} OBJECT ${ROOM_SOURCES})
    target_include_directories(${name}
        PUBLIC ${PROJECT_SOURCE_DIR}/platform/export/include
        PRIVATE src
    )
    # What other rooms use, and what of that users do not: internal/ is not installed.
    foreach(folder include internal)
        if(IS_DIRECTORY ${CMAKE_CURRENT_SOURCE_DIR}/${folder})
            target_include_directories(${name} PUBLIC ${folder})
        endif()
    endforeach()
    target_link_libraries(${name} PUBLIC ${ROOM_PUBLIC} PRIVATE ${ROOM_PRIVATE} varo_build_flags)
    set_property(GLOBAL APPEND PROPERTY VARO_ROOMS ${name})
endfunction()
