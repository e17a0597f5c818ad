# Tests of the source tree and of the finished library that no GoogleTest program does.

if(WIDGETS_CONFIG STREQUAL native-asan)
    add_test(NAME ${WIDGETS_CONFIG}.include_layers COMMAND ${PROJECT_SOURCE_DIR}/tools/check_layers.sh)
endif()

# Exports are the .def's names, imports the documented libraries: read by objdump, so with binutils only.
if(MINGW AND TARGET widgets)
    add_test(NAME ${WIDGETS_CONFIG}.dll_tables
        COMMAND ${PROJECT_SOURCE_DIR}/tools/check_dll.sh ${CMAKE_OBJDUMP} $<TARGET_FILE:widgets>
            ${PROJECT_SOURCE_DIR}/src/widgets.def)
endif()
