# desk_library(<name> SOURCES … LINK …): a static library of the desk with the common headers precompiled.
# A logic library names only Qt Core/Network/Sql (and other logic libraries) under LINK, so it cannot reach Widgets.
function(desk_library name)
    cmake_parse_arguments(ARG "" "" "SOURCES;LINK" ${ARGN})
    add_library(${name} STATIC ${ARG_SOURCES})
    target_include_directories(${name} PUBLIC ${CMAKE_SOURCE_DIR}/src)
    target_link_libraries(${name} PUBLIC ${ARG_LINK} PRIVATE strict)
    if(name MATCHES "_ui$")
        target_precompile_headers(${name} PRIVATE <QtCore> <QtWidgets>)
    else()
        target_precompile_headers(${name} PRIVATE <QtCore> <functional> <memory> <vector>)
    endif()
endfunction()
