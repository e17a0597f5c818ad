# Runs the demo and looks at the file that it saved: cmake -DDEMO=... -DARGUMENTS=... -DFILE=... -DEXPECTED=...
#   -DEMULATOR=  what runs the demo where Windows doesn't, a list
#   -DORIGINAL=  a file that FILE begins as; without it there is no FILE before
#   -DEXPECTED=  the file that FILE must be byte for byte afterwards; without it there must be no FILE
#   -DRESULT=    the exit code
#   -DMESSAGE=   what the output must match
file(REMOVE "${FILE}")
if(ORIGINAL)
    configure_file("${ORIGINAL}" "${FILE}" COPYONLY)
endif()
execute_process(COMMAND ${EMULATOR} "${DEMO}" --report ${ARGUMENTS}
    RESULT_VARIABLE result OUTPUT_FILE "${FILE}.log" ERROR_FILE "${FILE}.errors")
file(READ "${FILE}.log" output)
file(READ "${FILE}.errors" errors)
if(NOT result EQUAL RESULT)
    message(FATAL_ERROR "the exit code is ${result}, not ${RESULT}:\n${output}${errors}")
endif()
if(NOT "${output}${errors}" MATCHES "${MESSAGE}")
    message(FATAL_ERROR "there is no \"${MESSAGE}\" in:\n${output}${errors}")
endif()
if(NOT EXPECTED)
    if(EXISTS "${FILE}")
        message(FATAL_ERROR "${FILE} was written")
    endif()
    return()
endif()
execute_process(COMMAND ${CMAKE_COMMAND} -E compare_files "${FILE}" "${EXPECTED}" RESULT_VARIABLE differs)
if(differs)
    message(FATAL_ERROR "${FILE} isn't ${EXPECTED}")
endif()
# Nothing temporary stays beside the file.
get_filename_component(folder "${FILE}" DIRECTORY)
file(GLOB temporary "${folder}/csv*.tmp")
if(temporary)
    message(FATAL_ERROR "left over: ${temporary}")
endif()
