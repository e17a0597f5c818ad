# Tests of the source tree and of the finished library that no GoogleTest program does.

if(WIDGETS_CONFIG STREQUAL native-asan)
    add_test(NAME ${WIDGETS_CONFIG}.include_layers COMMAND ${PROJECT_SOURCE_DIR}/tools/check_layers.sh)
    find_program(WIDGETS_PYTHON python3 REQUIRED)
    add_test(NAME ${WIDGETS_CONFIG}.edge_cases COMMAND ${WIDGETS_PYTHON} tools/check_edge_cases.py
        WORKING_DIRECTORY ${PROJECT_SOURCE_DIR})
    # Files that scripts have written are what the scripts write.
    add_test(NAME ${WIDGETS_CONFIG}.reference
        COMMAND ${WIDGETS_PYTHON} tools/make_reference.py --check include/widgets/widgets.h docs/reference.md
        WORKING_DIRECTORY ${PROJECT_SOURCE_DIR})
    add_test(NAME ${WIDGETS_CONFIG}.resources_from_pictures
        COMMAND ${WIDGETS_PYTHON} tools/make_resources.py --check
        WORKING_DIRECTORY ${PROJECT_SOURCE_DIR})
    add_test(NAME ${WIDGETS_CONFIG}.demo_definition
        COMMAND ${WIDGETS_PYTHON} tools/make_definition.py --check
            examples/demo/birdstrikes.grs.txt examples/demo/birdstrikes.grs
        WORKING_DIRECTORY ${PROJECT_SOURCE_DIR})
endif()

# Exports are the .def's names, imports the documented libraries: read by objdump, so with binutils only.
if(MINGW AND TARGET widgets)
    add_test(NAME ${WIDGETS_CONFIG}.dll_tables
        COMMAND ${PROJECT_SOURCE_DIR}/tools/check_dll.sh ${CMAKE_OBJDUMP} $<TARGET_FILE:widgets>
            ${PROJECT_SOURCE_DIR}/src/widgets.def)
endif()
