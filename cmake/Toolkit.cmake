# cvlang_toolkit: wxWidgets 3.2, for the rooms that show windows.
find_package(wxWidgets 3.2 REQUIRED COMPONENTS core base)
add_library(cvlang_toolkit INTERFACE)
target_include_directories(cvlang_toolkit SYSTEM INTERFACE ${wxWidgets_INCLUDE_DIRS})
target_compile_definitions(cvlang_toolkit INTERFACE ${wxWidgets_DEFINITIONS})
target_link_libraries(cvlang_toolkit INTERFACE ${wxWidgets_LIBRARIES})
