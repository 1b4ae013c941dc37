include(GNUInstallDirs)
string(TOLOWER ${PROJECT_NAME} package)
set(documentation_folder ${CMAKE_INSTALL_DATADIR}/doc/${package})

install(TARGETS CVLangTranslator RUNTIME)
# The windows are a module of their own, which nobody but the program loads. Not below lib/: for that CPack
# would have ldconfig run at each installation.
install(TARGETS CVLangTranslatorWindow LIBRARY DESTINATION libexec/${package})
# For the build folder too: CMake would pad its path with empty entries, for which the loader looks in the
# current folder.
set_target_properties(CVLangTranslator PROPERTIES INSTALL_RPATH "$ORIGIN:$ORIGIN/../libexec/${package}"
    BUILD_WITH_INSTALL_RPATH ON)

install(FILES linux/${package}.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
set(icons ${CMAKE_INSTALL_DATADIR}/icons/hicolor)
foreach(size IN ITEMS 16 24 32 48 64 128 256)
    install(FILES icon/${size}.png DESTINATION ${icons}/${size}x${size}/apps RENAME ${package}.png)
endforeach()
install(FILES icon/CVLangTranslator.svg DESTINATION ${icons}/scalable/apps RENAME ${package}.svg)

set(CPACK_GENERATOR DEB TGZ)
set(CPACK_PACKAGE_FILE_NAME ${PROJECT_NAME}-${PROJECT_VERSION}-linux-${CMAKE_SYSTEM_PROCESSOR})
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_NAME ${package})
set(CPACK_DEBIAN_PACKAGE_MAINTAINER "${CVLANG_MAKER} <packages@corvane.example>")
set(CPACK_DEBIAN_PACKAGE_SECTION utils)
# What the program itself needs is depended on; what only the window needs is recommended.
set(CPACK_PROJECT_CONFIG_FILE ${CMAKE_CURRENT_SOURCE_DIR}/linux/Dependencies.cmake)
set(CPACK_CVLANG_BUILD ${CMAKE_BINARY_DIR})

# The manual and Debian's change log are installed compressed.
string(TIMESTAMP commit_date "%a, %d %b %Y %H:%M:%S +0000" UTC)
foreach(text IN ITEMS CVLangTranslator.1 changelog)
    configure_file(linux/${text}.in ${text} @ONLY)
    set(text ${CMAKE_CURRENT_BINARY_DIR}/${text})
    add_custom_command(OUTPUT ${text}.gz DEPENDS ${text} COMMAND gzip -9nkf ${text} VERBATIM)
    list(APPEND compressed ${text}.gz)
endforeach()
add_custom_target(cvlang_compressed DEPENDS ${compressed})
add_dependencies(CVLangTranslator cvlang_compressed)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/CVLangTranslator.1.gz DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/changelog.gz DESTINATION ${documentation_folder})
install(FILES COPYRIGHT DESTINATION ${documentation_folder} RENAME copyright)
