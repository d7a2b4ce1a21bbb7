# The one library that is installed: the objects of all rooms, and what CMake and pkg-config users need to find it.
include(CMakePackageConfigHelpers)

get_property(rooms GLOBAL PROPERTY VARO_ROOMS)
set(public_headers
    ${PROJECT_SOURCE_DIR}/include
    ${PROJECT_SOURCE_DIR}/platform/export/include
    ${PROJECT_SOURCE_DIR}/platform/log/include
    ${PROJECT_SOURCE_DIR}/platform/math/include
    ${PROJECT_SOURCE_DIR}/platform/model/include
    ${PROJECT_SOURCE_DIR}/platform/posture/include
)
# Under a folder of their own, which is on the include path: sources say "sim/model.hpp" whether installed or not.
set(VARO_INCLUDE_FOLDER ${CMAKE_INSTALL_INCLUDEDIR}/varorobotmodel)

add_library(varorobotmodel SHARED)
add_library(varorobotmodel::varorobotmodel ALIAS varorobotmodel)
target_link_libraries(varorobotmodel PRIVATE ${rooms})
target_include_directories(varorobotmodel INTERFACE $<INSTALL_INTERFACE:${VARO_INCLUDE_FOLDER}>)
foreach(directory ${public_headers})
    target_include_directories(varorobotmodel INTERFACE $<BUILD_INTERFACE:${directory}>)
    install(DIRECTORY ${directory}/ DESTINATION ${VARO_INCLUDE_FOLDER})
endforeach()
target_compile_features(varorobotmodel INTERFACE cxx_std_17)
set(exported_symbols ${PROJECT_SOURCE_DIR}/cmake/exported_symbols.map)
target_link_options(varorobotmodel PRIVATE LINKER:--version-script=${exported_symbols})
set_target_properties(varorobotmodel PROPERTIES
    LINKER_LANGUAGE CXX
    LINK_DEPENDS ${exported_symbols}
    VERSION ${PROJECT_VERSION}
    SOVERSION ${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR}  # before 1.0 every minor version may break the ABI
)

set(package_folder ${CMAKE_INSTALL_LIBDIR}/cmake/varorobotmodel)
install(TARGETS varorobotmodel EXPORT varorobotmodelTargets
    LIBRARY COMPONENT runtime NAMELINK_COMPONENT development)
install(EXPORT varorobotmodelTargets NAMESPACE varorobotmodel:: DESTINATION ${package_folder})
configure_package_config_file(${PROJECT_SOURCE_DIR}/cmake/varorobotmodelConfig.cmake.in varorobotmodelConfig.cmake
    INSTALL_DESTINATION ${package_folder})
write_basic_package_version_file(varorobotmodelConfigVersion.cmake COMPATIBILITY SameMinorVersion)
install(
    FILES
        ${CMAKE_CURRENT_BINARY_DIR}/varorobotmodelConfig.cmake
        ${CMAKE_CURRENT_BINARY_DIR}/varorobotmodelConfigVersion.cmake
    DESTINATION ${package_folder}
)
# Relative to the file itself, so that the installed tree may be moved.
file(RELATIVE_PATH up_to_prefix /${CMAKE_INSTALL_LIBDIR}/pkgconfig /)
set(PKGCONFIG_PREFIX "\${pcfiledir}/${up_to_prefix}")
configure_file(${PROJECT_SOURCE_DIR}/cmake/varorobotmodel.pc.in varorobotmodel.pc @ONLY)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/varorobotmodel.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
