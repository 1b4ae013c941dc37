# The icon, the manifest and the version go into the executable, which is one of the GUI subsystem.
configure_file(windows/CVLangTranslator.rc.in CVLangTranslator.rc @ONLY)
add_library(cvlang_resources OBJECT ${CMAKE_CURRENT_BINARY_DIR}/CVLangTranslator.rc)
target_compile_options(cvlang_resources PRIVATE -c 65001)
target_include_directories(cvlang_resources PRIVATE icon windows)
target_link_libraries(cvlang_resources PRIVATE cvlang_toolkit)
set_source_files_properties(${CMAKE_CURRENT_BINARY_DIR}/CVLangTranslator.rc PROPERTIES OBJECT_DEPENDS
    "${CMAKE_CURRENT_SOURCE_DIR}/icon/CVLangTranslator.ico;${CMAKE_CURRENT_SOURCE_DIR}/windows/CVLangTranslator.manifest")
target_link_libraries(CVLangTranslator PRIVATE cvlang_resources)
set_target_properties(CVLangTranslator PROPERTIES WIN32_EXECUTABLE ON)

install(TARGETS CVLangTranslator RUNTIME DESTINATION .)
install(FILES COPYRIGHT DESTINATION . RENAME COPYRIGHT.txt)
set(documentation_folder docs)

set(CPACK_GENERATOR NSIS ZIP)
set(CPACK_PACKAGE_FILE_NAME ${PROJECT_NAME}-${PROJECT_VERSION}-windows-x64)
set(CPACK_PROJECT_CONFIG_FILE ${CMAKE_CURRENT_SOURCE_DIR}/windows/PerGenerator.cmake)
set(CPACK_PACKAGE_ICON ${CMAKE_CURRENT_SOURCE_DIR}/icon/CVLangTranslator.ico)
# The installer's script is windows/NSIS.template.in.
list(PREPEND CMAKE_MODULE_PATH ${CMAKE_CURRENT_SOURCE_DIR}/windows)
