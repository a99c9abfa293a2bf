# Lays out an empty station and walks through the desk in it.
file(REMOVE_RECURSE ${STATION})
file(MAKE_DIRECTORY ${STATION}/Database)
file(COPY ${TEMPLATE} DESTINATION ${STATION}/Database)
# Its lock of the single instance is its own too.
file(MAKE_DIRECTORY ${STATION}/runtime)
file(CHMOD ${STATION}/runtime PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE)
set(ENV{XDG_RUNTIME_DIR} ${STATION}/runtime)
execute_process(COMMAND ${PROGRAM} ${STATION} RESULT_VARIABLE result)
if(NOT result EQUAL 0)
    message(FATAL_ERROR "walkthrough failed")
endif()
