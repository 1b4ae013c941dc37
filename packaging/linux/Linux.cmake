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

# Manuals are installed compressed.
configure_file(linux/CVLangTranslator.1.in CVLangTranslator.1 @ONLY)
set(manual ${CMAKE_CURRENT_BINARY_DIR}/CVLangTranslator.1)
add_custom_command(OUTPUT ${manual}.gz DEPENDS ${manual} COMMAND gzip -9nkf ${manual} VERBATIM)
add_custom_target(cvlang_manual DEPENDS ${manual}.gz)
add_dependencies(CVLangTranslator cvlang_manual)
install(FILES ${manual}.gz DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)

set(CPACK_GENERATOR DEB TGZ)
set(CPACK_PACKAGE_FILE_NAME ${PROJECT_NAME}-${PROJECT_VERSION}-linux-${CMAKE_SYSTEM_PROCESSOR})
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_NAME ${package})
set(CPACK_DEBIAN_PACKAGE_MAINTAINER "${CVLANG_MAKER} <packages@corvane.example>")
set(CPACK_DEBIAN_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
