# Makes the x86 import library of a DLL whose .def lists undecorated names: looks up how each function is decorated
# (_Foo@8) among the DLL's symbols, and lets dlltool import it as Foo. Needs NM, DLLTOOL, DLL, DEF and IMPLIB.
cmake_minimum_required(VERSION 3.25)

execute_process(COMMAND ${NM} --defined-only --extern-only ${DLL}
    OUTPUT_VARIABLE symbols COMMAND_ERROR_IS_FATAL ANY)
get_filename_component(dll ${DLL} NAME)

# Lines of the .def after EXPORTS that begin with a name, without comments.
file(STRINGS ${DEF} lines)
set(names "")
set(exports FALSE)
foreach(line IN LISTS lines)
    string(REGEX REPLACE ";.*" "" line "${line}")
    if(line MATCHES "^[ \t]*EXPORTS[ \t]*$")
        set(exports TRUE)
    elseif(exports AND line MATCHES "^[ \t]*([A-Za-z_][A-Za-z0-9_]*)")
        list(APPEND names ${CMAKE_MATCH_1})
    endif()
endforeach()

set(decorated "LIBRARY ${dll}\nEXPORTS\n")
foreach(name IN LISTS names)
    # The linker's fixup leaves the undecorated name among the symbols too, so the decorated one is looked for first.
    if(symbols MATCHES " T _(${name}@[0-9]+)[\r\n]")
        string(APPEND decorated "    ${CMAKE_MATCH_1}\n")
    elseif(symbols MATCHES " T _${name}[\r\n]")
        string(APPEND decorated "    ${name}\n")
    else()
        message(FATAL_ERROR "${DEF} lists ${name}, which ${dll} doesn't define")
    endif()
endforeach()
file(WRITE ${IMPLIB}.def "${decorated}")

execute_process(COMMAND ${DLLTOOL} --kill-at --input-def ${IMPLIB}.def --output-lib ${IMPLIB}
    COMMAND_ERROR_IS_FATAL ANY)
