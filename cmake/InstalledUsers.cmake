# varo_install_user(TARGET FOLDER COMPONENT): installs a program or module that uses the library, which it finds by its
# RUNPATH: in the build tree where the library was built, installed by the way from FOLDER, so that the tree may be moved.
#
# Not by install(TARGETS), for whose sake CMake ends the RUNPATH in the build tree with a colon: behind it stands an
# empty entry, which is the folder that the program happens to be started in.
function(varo_install_user target folder component)
    file(RELATIVE_PATH way /${folder} /${CMAKE_INSTALL_LIBDIR})
    set(installed $ORIGIN/${way})
    # What is installed is written over what is built, which has to be as long at least.
    string(LENGTH ${installed} length)
    string(REPEAT / ${length} padding)
    set_target_properties(${target} PROPERTIES BUILD_RPATH ${PROJECT_BINARY_DIR}${padding})

    set(change "RPATH_SET FILE \"\${file}\" NEW_RPATH [[${installed}]]")
    if(CMAKE_SKIP_INSTALL_RPATH)
        set(change "RPATH_REMOVE FILE \"\${file}\"")
    endif()
    install(PROGRAMS $<TARGET_FILE:${target}> DESTINATION ${folder} COMPONENT ${component})
    install(CODE "
        set(file \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/${folder}/$<TARGET_FILE_NAME:${target}>\")
        file(${change})
    " COMPONENT ${component})
endfunction()
