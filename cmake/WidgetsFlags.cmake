# Compiler flags of every target: widgets_flags for the product and its programs, widgets_test_flags for GoogleTest
# programs, which need exceptions. The native configuration sets its sanitizers here for everything, GoogleTest too.

# The name of this configuration in test names: x64, x86, native-asan or native-asan-m32.
math(EXPR bits "8 * ${CMAKE_SIZEOF_VOID_P}")
if(WIN32 AND bits EQUAL 64)
    set(WIDGETS_CONFIG x64)
elseif(WIN32)
    set(WIDGETS_CONFIG x86)
elseif(bits EQUAL 64)
    set(WIDGETS_CONFIG native-asan)
else()
    set(WIDGETS_CONFIG native-asan-m32)
endif()

find_program(CCACHE ccache)
if(CCACHE)
    # What ccache has to overlook for sources with a precompiled header. Clones of this folder share their objects:
    # paths in them begin here.
    set(CMAKE_C_COMPILER_LAUNCHER ${CMAKE_COMMAND} -E env CCACHE_BASEDIR=${PROJECT_SOURCE_DIR} CCACHE_NOHASHDIR=1
        CCACHE_SLOPPINESS=pch_defines,time_macros ${CCACHE})
    set(CMAKE_CXX_COMPILER_LAUNCHER ${CMAKE_C_COMPILER_LAUNCHER})
endif()

if(NOT MSVC)
    # Equal sources give equal files, wherever they lie.
    add_compile_options(-ffile-prefix-map=${PROJECT_SOURCE_DIR}=.)
endif()
if(NOT WIN32)
    if(NOT CMAKE_CXX_COMPILER_ID STREQUAL Clang)
        message(FATAL_ERROR "The native configuration needs clang++: its sanitizers and libFuzzer. Use the presets.")
    endif()
    add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
    add_link_options(-fsanitize=address,undefined)
endif()

add_library(widgets_common_flags INTERFACE)
target_compile_features(widgets_common_flags INTERFACE cxx_std_20)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_C_EXTENSIONS OFF)

# Windows XP's functions and styles; texts are single-byte, so UNICODE stays off.
target_compile_definitions(widgets_common_flags INTERFACE
    STRICT NOMINMAX WINVER=0x0501 _WIN32_WINNT=0x0501 _WIN32_IE=0x0600)

if(MSVC)
    target_compile_options(widgets_common_flags INTERFACE $<$<COMPILE_LANGUAGE:CXX>:/W4;/WX;/permissive-;/utf-8>)
    target_compile_definitions(widgets_common_flags INTERFACE _CRT_SECURE_NO_WARNINGS)
else()
    # Records that share a beginning are reached through each other's type: -fno-strict-aliasing.
    target_compile_options(widgets_common_flags INTERFACE
        $<$<COMPILE_LANGUAGE:CXX>:-Wall;-Wextra;-Wconversion;-Wshadow;-Werror;-fno-strict-aliasing>)
    if(WIDGETS_CONFIG STREQUAL x86)
        # Doubles are computed as on x64 (and by MSVC), not on the x87 stack. Callers align the stack to 4 only.
        target_compile_options(widgets_common_flags INTERFACE
            $<$<COMPILE_LANGUAGE:CXX>:-msse2;-mfpmath=sse;-mstackrealign>)
    endif()
endif()
if(MINGW)
    # The compiler's runtime goes into the program; the linker writes no time, so equal sources give equal files.
    target_link_options(widgets_common_flags INTERFACE
        -static -static-libgcc -static-libstdc++ -Wl,--no-insert-timestamp)
endif()

add_library(widgets_flags INTERFACE)
target_link_libraries(widgets_flags INTERFACE widgets_common_flags)
if(MSVC)
    target_compile_options(widgets_flags INTERFACE $<$<COMPILE_LANGUAGE:CXX>:/GR-;/EHs-c->)
    target_compile_definitions(widgets_flags INTERFACE _HAS_EXCEPTIONS=0)
else()
    target_compile_options(widgets_flags INTERFACE $<$<COMPILE_LANGUAGE:CXX>:-fno-exceptions;-fno-rtti>)
endif()

add_library(widgets_test_flags INTERFACE)
target_link_libraries(widgets_test_flags INTERFACE widgets_common_flags)
if(MSVC)
    target_compile_options(widgets_test_flags INTERFACE $<$<COMPILE_LANGUAGE:CXX>:/EHsc>)
else()
    # Tests are compiled more often than they run, and what they test has the flags of the product.
    target_compile_options(widgets_test_flags INTERFACE $<$<COMPILE_LANGUAGE:CXX>:-O0;-g0>)
    if(NOT WIN32)
        target_compile_options(widgets_test_flags INTERFACE $<$<COMPILE_LANGUAGE:CXX>:SHELL:-Xclang -fno-pch-timestamp>)
    endif()
endif()
