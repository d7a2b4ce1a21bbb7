# varo_install_user(TARGET FOLDER COMPONENT): installs a program or module that uses the library, which it finds by its
# RUNPATH: in the build tree where the library was built, installed by the way from FOLDER, so that the tree may be moved.
#
# What is installed is linked for itself, as TARGET_installed. Of a target that is installed as it is built, CMake changes
# the RUNPATH when it installs it, and ends that in the build tree with a colon, to make room: behind it stands an empty
# entry, which is the folder that the program happens to be started in.
function(varo_install_user target folder component)
    set(installed ${target}_installed)
    get_target_property(type ${target} TYPE)
    if(type STREQUAL EXECUTABLE)
        add_executable(${installed} $<TARGET_OBJECTS:${target}>)
    else()
        add_library(${installed} MODULE $<TARGET_OBJECTS:${target}>)
    endif()
    target_link_libraries(${installed} PRIVATE $<TARGET_PROPERTY:${target},LINK_LIBRARIES>)

    file(RELATIVE_PATH way /${folder} /${CMAKE_INSTALL_LIBDIR})
    set_target_properties(${installed} PROPERTIES
        LINKER_LANGUAGE CXX
        OUTPUT_NAME $<TARGET_FILE_NAME:${target}>
        PREFIX ""
        SUFFIX ""
        RUNTIME_OUTPUT_DIRECTORY ${CMAKE_CURRENT_BINARY_DIR}/installed
        LIBRARY_OUTPUT_DIRECTORY ${CMAKE_CURRENT_BINARY_DIR}/installed
        BUILD_WITH_INSTALL_RPATH ON
        INSTALL_RPATH $ORIGIN/${way}
    )
    install(TARGETS ${installed}
        RUNTIME DESTINATION ${folder} COMPONENT ${component}
        LIBRARY DESTINATION ${folder} COMPONENT ${component}
    )
endfunction()
