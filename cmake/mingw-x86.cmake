# 32-bit Windows by mingw-w64 on Linux, programs run under Wine. On Windows itself the native tools are taken.
set(WIDGETS_MINGW i686-w64-mingw32)
set(WIDGETS_ARCH x86)
include(${CMAKE_CURRENT_LIST_DIR}/mingw.cmake)
