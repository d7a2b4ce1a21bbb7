# What is installed beside library and tool: the data for programs, and the documents for people, which keep the places
# that they have to each other, so that their links lead somewhere.
file(MAKE_DIRECTORY ${CMAKE_CURRENT_BINARY_DIR}/documents)
set(data_folder ${CMAKE_INSTALL_DATADIR}/varorobotmodel)
install(DIRECTORY robots schema DESTINATION ${data_folder})
install(FILES package.xml DESTINATION ${data_folder})  # by which workspaces of colcon know it

install(FILES README.md CONTRIBUTING.md CHANGELOG.md SECURITY.md LICENSE DESTINATION ${CMAKE_INSTALL_DOCDIR})
install(DIRECTORY docs DESTINATION ${CMAKE_INSTALL_DOCDIR} FILES_MATCHING PATTERN *.md PATTERN *.svg PATTERN *.png)
install(DIRECTORY examples DESTINATION ${CMAKE_INSTALL_DOCDIR} FILES_MATCHING PATTERN *.cpp PATTERN *.hpp)
file(RELATIVE_PATH data_from_documents /${CMAKE_INSTALL_DOCDIR} /${data_folder})
foreach(folder robots schema)
    file(CREATE_LINK ${data_from_documents}/${folder} ${CMAKE_CURRENT_BINARY_DIR}/documents/${folder} SYMBOLIC)
    install(FILES ${CMAKE_CURRENT_BINARY_DIR}/documents/${folder} DESTINATION ${CMAKE_INSTALL_DOCDIR})
endforeach()
