# GTest::gtest from Debian's sources, built once per configuration; elsewhere from an installed package.
set(WIDGETS_GOOGLETEST_DIR /usr/src/googletest CACHE PATH "Sources of GoogleTest")

if(EXISTS ${WIDGETS_GOOGLETEST_DIR}/CMakeLists.txt)
    set(BUILD_GMOCK OFF)
    set(INSTALL_GTEST OFF)
    set(gtest_force_shared_crt ON)
    add_subdirectory(${WIDGETS_GOOGLETEST_DIR} ${PROJECT_BINARY_DIR}/googletest EXCLUDE_FROM_ALL SYSTEM)
    if(NOT TARGET GTest::gtest)
        add_library(GTest::gtest ALIAS gtest)
    endif()
else()
    find_package(GTest REQUIRED)
endif()
