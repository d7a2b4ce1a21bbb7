# The page that `varo-robot view` writes, bundled by npm's packages and put into the tool. Without npm the tool is built
# without it, and says so.
set(VAROROBOTMODEL_VIEWER AUTO CACHE STRING "Build the page of varo-robot view: ON, OFF, or AUTO, if npm is there")
set_property(CACHE VAROROBOTMODEL_VIEWER PROPERTY STRINGS AUTO ON OFF)
set(VAROROBOTMODEL_VIEWER_PAGE "" CACHE FILEPATH "The page itself, if it was bundled before: no npm is needed then")
set(viewer_page_folder ${CMAKE_CURRENT_LIST_DIR})

# Writes build/.../viewer/page.html.
function(build_viewer_page page)
    set(viewer ${PROJECT_SOURCE_DIR}/web/viewer)
    file(GLOB_RECURSE sources CONFIGURE_DEPENDS ${viewer}/src/*)
    add_custom_command(OUTPUT ${page}
        COMMAND ${viewer}/install
        COMMAND ${VAROROBOTMODEL_NODE} ${viewer}/build.mjs ${page}
        DEPENDS ${sources} ${viewer}/build.mjs ${viewer}/install ${viewer}/package-lock.json
        COMMENT "Bundling the page of varo-robot view (-DVAROROBOTMODEL_VIEWER=OFF leaves it out)"
        VERBATIM
    )
endfunction()

# Adds a source that defines viewerPage() to the target.
function(add_viewer_page target)
    find_program(VAROROBOTMODEL_NODE node)
    find_program(VAROROBOTMODEL_NPM npm)
    set(page "")
    if(VAROROBOTMODEL_VIEWER_PAGE)
        set(page ${VAROROBOTMODEL_VIEWER_PAGE})
    elseif(VAROROBOTMODEL_NODE AND VAROROBOTMODEL_NPM AND VAROROBOTMODEL_VIEWER)
        set(page ${CMAKE_CURRENT_BINARY_DIR}/viewer/page.html)
        build_viewer_page(${page})
    elseif(VAROROBOTMODEL_VIEWER STREQUAL ON)
        message(FATAL_ERROR "The page of varo-robot view takes node and npm, which are not there.")
    elseif(VAROROBOTMODEL_VIEWER)
        message(STATUS "varo-robot view is left out: it takes node and npm")
    endif()
    set(source ${CMAKE_CURRENT_BINARY_DIR}/viewer/viewer_page.cpp)
    add_custom_command(OUTPUT ${source}
        COMMAND ${CMAKE_COMMAND} -DPAGE=${page} -DSOURCE=${source} -P ${viewer_page_folder}/WriteViewerPage.cmake
        DEPENDS ${page} ${viewer_page_folder}/WriteViewerPage.cmake
        VERBATIM
    )
    target_sources(${target} PRIVATE ${source})
endfunction()
