# widgets.dll from the objects of all subsystems, its import library, and the package for find_package(widgets).

# The product's block allocator stands alone, because test programs put a guarded one in its place.
if(EXISTS ${PROJECT_SOURCE_DIR}/src/foundation/block_memory.cpp)
    widgets_object_library(widgets_block_memory src/foundation/block_memory.cpp)
endif()

if(NOT WIN32)
    return()
endif()

set(resources ${PROJECT_SOURCE_DIR}/src/resources)
if(EXISTS ${resources}/widgets.rc)
    file(GLOB images CONFIGURE_DEPENDS ${resources}/*.bmp ${resources}/*.cur ${resources}/*.ico ${resources}/*.h)
    add_library(widgets_rc OBJECT ${resources}/widgets.rc)
    target_include_directories(widgets_rc PRIVATE ${PROJECT_SOURCE_DIR}/include ${PROJECT_SOURCE_DIR}/src ${resources})
    set_source_files_properties(${resources}/widgets.rc PROPERTIES
        OBJECT_DEPENDS "${images};${PROJECT_SOURCE_DIR}/include/widgets/widgets.h")
endif()

# The header compiles for hosts in C11 and C++17, with none of our definitions.
if(EXISTS ${PROJECT_SOURCE_DIR}/include/widgets/widgets.h)
    file(CONFIGURE OUTPUT ${PROJECT_BINARY_DIR}/alone/host_c11.c CONTENT "#include <widgets/widgets.h>\n")
    file(CONFIGURE OUTPUT ${PROJECT_BINARY_DIR}/alone/host_cxx17.cpp CONTENT "#include <widgets/widgets.h>\n")
    add_library(widgets_host_header OBJECT
        ${PROJECT_BINARY_DIR}/alone/host_c11.c ${PROJECT_BINARY_DIR}/alone/host_cxx17.cpp)
    target_include_directories(widgets_host_header PRIVATE ${PROJECT_SOURCE_DIR}/include)
    set_target_properties(widgets_host_header PROPERTIES
        C_STANDARD 11 C_STANDARD_REQUIRED ON CXX_STANDARD 17 CXX_STANDARD_REQUIRED ON)
    target_compile_options(widgets_host_header PRIVATE
        $<IF:$<BOOL:${MSVC}>,/W4;/WX,-Wall;-Wextra;-Wpedantic;-Werror>)
endif()

if(NOT EXISTS ${PROJECT_SOURCE_DIR}/src/foundation/dll_main.cpp OR NOT EXISTS ${PROJECT_SOURCE_DIR}/src/widgets.def)
    message(WARNING "No widgets.dll: src/foundation/dll_main.cpp or src/widgets.def is missing")
    return()
endif()

add_library(widgets SHARED src/foundation/dll_main.cpp src/widgets.def)
add_library(widgets::widgets ALIAS widgets)
set_property(GLOBAL APPEND PROPERTY WIDGETS_PRODUCTS widgets)
target_link_libraries(widgets PRIVATE widgets_flags)
widgets_include_folders(widgets PRIVATE)
widgets_link_objects(widgets widgets_block_memory)
target_include_directories(widgets INTERFACE
    $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}/include> $<INSTALL_INTERFACE:include>)
set_target_properties(widgets PROPERTIES
    PREFIX "" OUTPUT_NAME widgets
    RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/bin
    ARCHIVE_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/lib)

# One list of undecorated names serves both architectures. On x86 GNU ld then exports Foo for _Foo@8, but its import
# library lacks _Foo@8, which a host refers to; so that library is made anew. MSVC does all of it by itself.
if(MINGW AND WIDGETS_CONFIG STREQUAL x86)
    target_link_options(widgets PRIVATE -Wl,--enable-stdcall-fixup)
    set_property(TARGET widgets APPEND PROPERTY LINK_DEPENDS ${PROJECT_SOURCE_DIR}/cmake/ImportLibrary.cmake)
    find_program(WIDGETS_DLLTOOL NAMES i686-w64-mingw32-dlltool dlltool REQUIRED)
    add_custom_command(TARGET widgets POST_BUILD
        COMMAND ${CMAKE_COMMAND} -D NM=${CMAKE_NM} -D DLLTOOL=${WIDGETS_DLLTOOL}
            -D DLL=$<TARGET_FILE:widgets> -D DEF=${PROJECT_SOURCE_DIR}/src/widgets.def
            -D IMPLIB=$<TARGET_LINKER_FILE:widgets> -P ${PROJECT_SOURCE_DIR}/cmake/ImportLibrary.cmake
        VERBATIM)
endif()

include(GNUInstallDirs)
include(CMakePackageConfigHelpers)
install(TARGETS widgets EXPORT widgets)
install(DIRECTORY include/widgets TYPE INCLUDE FILES_MATCHING PATTERN *.h)
install(EXPORT widgets NAMESPACE widgets:: FILE widgets-targets.cmake DESTINATION lib/cmake/widgets)
configure_package_config_file(cmake/widgets-config.cmake.in ${PROJECT_BINARY_DIR}/widgets-config.cmake
    INSTALL_DESTINATION lib/cmake/widgets)
write_basic_package_version_file(${PROJECT_BINARY_DIR}/widgets-config-version.cmake COMPATIBILITY SameMinorVersion)
install(FILES ${PROJECT_BINARY_DIR}/widgets-config.cmake ${PROJECT_BINARY_DIR}/widgets-config-version.cmake
    DESTINATION lib/cmake/widgets)
