# Lays out an empty station and walks through the desk in it.
file(REMOVE_RECURSE ${STATION})
file(MAKE_DIRECTORY ${STATION}/Database)
file(COPY ${TEMPLATE} DESTINATION ${STATION}/Database)
execute_process(COMMAND ${PROGRAM} ${STATION} RESULT_VARIABLE result)
if(NOT result EQUAL 0)
    message(FATAL_ERROR "walkthrough failed")
endif()
