# cvlang_toolkit: wxWidgets 3.2, for the rooms that show windows. On Windows it is the static library that
# scripts/build-wxwidgets makes, found through wxWidgets_DIR.
if(WIN32)
    find_package(wxWidgets 3.2 CONFIG REQUIRED COMPONENTS core base)
else()
    find_package(wxWidgets 3.2 REQUIRED COMPONENTS core base)
endif()
add_library(cvlang_toolkit INTERFACE)
target_include_directories(cvlang_toolkit SYSTEM INTERFACE ${wxWidgets_INCLUDE_DIRS})
target_compile_definitions(cvlang_toolkit INTERFACE ${wxWidgets_DEFINITIONS})
target_link_libraries(cvlang_toolkit INTERFACE ${wxWidgets_LIBRARIES})
if(NOT WIN32)
    # What the toolkit leaves to GTK.
    find_package(PkgConfig REQUIRED)
    pkg_check_modules(GTK REQUIRED IMPORTED_TARGET gtk+-3.0)
    target_link_libraries(cvlang_toolkit INTERFACE PkgConfig::GTK)
else()
    # Asserts in headers name their file: not by where it lies on the machine that built the program.
    cmake_path(SET toolkit_folder NORMALIZE ${wxWidgets_DIR}/../../..)
    target_compile_options(cvlang_toolkit INTERFACE
        $<$<COMPILE_LANGUAGE:CXX>:-ffile-prefix-map=${toolkit_folder}=wxwidgets/>)
endif()
