# Read by CPack once for each kind of package: the installer's name says what it is.
if(CPACK_GENERATOR STREQUAL "NSIS")
    string(APPEND CPACK_PACKAGE_FILE_NAME -setup)
endif()
