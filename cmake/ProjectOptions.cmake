# What every target of the project is compiled with: the language level, warnings and, when asked for,
# the sanitizers. A target takes part by linking cvlang_options.
add_library(cvlang_options INTERFACE)
target_compile_features(cvlang_options INTERFACE cxx_std_20)
set(CMAKE_CXX_EXTENSIONS OFF)
# The rooms go into the program and into its window module alike.
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
target_compile_options(cvlang_options INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Wnon-virtual-dtor)
if(CMAKE_BUILD_TYPE STREQUAL "Release")
    # A mistake in the use of memory ends the program, so that nobody can make use of it.
    target_compile_options(cvlang_options INTERFACE
        -fstack-protector-strong -U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=2 -fcf-protection=full)
    target_link_options(cvlang_options INTERFACE -fstack-protector-strong)
    if(WIN32)
        target_link_options(cvlang_options INTERFACE -Wl,--dynamicbase,--nxcompat,--high-entropy-va)
    else()
        target_compile_options(cvlang_options INTERFACE -fstack-clash-protection)
        target_link_options(cvlang_options INTERFACE -Wl,-z,relro,-z,now)
    endif()
endif()
if(CVLANG_SANITIZE)
    target_compile_options(cvlang_options INTERFACE
        -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_compile_definitions(cvlang_options INTERFACE _GLIBCXX_ASSERTIONS)
    target_link_options(cvlang_options INTERFACE -fsanitize=address,undefined)
endif()
if(CVLANG_FUZZ)
    target_compile_options(cvlang_options INTERFACE -fsanitize=fuzzer-no-link)
endif()
if(WIN32)
    # The release is one file that needs nothing but what Windows ships.
    target_link_options(cvlang_options INTERFACE -static -Wl,--no-insert-timestamp)
    target_compile_options(cvlang_options INTERFACE -ffile-prefix-map=${PROJECT_SOURCE_DIR}/=)
    target_compile_definitions(cvlang_options INTERFACE
        UNICODE _UNICODE NOMINMAX WIN32_LEAN_AND_MEAN _WIN32_WINNT=0x0A00)
endif()
