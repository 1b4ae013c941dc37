# Read by CPack for each package: what the .deb depends on and recommends, as Debian's own tool finds it out.
if(CPACK_GENERATOR STREQUAL "DEB")
    set(folder ${CPACK_CVLANG_BUILD}/packaging/dependencies)
    file(WRITE ${folder}/debian/control "Source: cvlangtranslator\n\nPackage: cvlangtranslator\nArchitecture: any\n")
    execute_process(
        COMMAND dpkg-shlibdeps -O
            -dDepends ${CPACK_CVLANG_BUILD}/src/app/CVLangTranslator
            -dRecommends ${CPACK_CVLANG_BUILD}/src/app/libCVLangTranslatorWindow.so
        WORKING_DIRECTORY ${folder} OUTPUT_VARIABLE found
        ERROR_QUIET COMMAND_ERROR_IS_FATAL ANY)
    foreach(field IN ITEMS Depends Recommends)
        string(TOUPPER ${field} kind)
        string(REGEX MATCH "shlibs:${field}=([^\n]+)" line "${found}")
        set(CPACK_DEBIAN_PACKAGE_${kind} "${CMAKE_MATCH_1}")
    endforeach()
endif()
