# The common headers are precompiled once for the logic libraries, once for the windows and once for the tests, and
# shared: a target whose flags differ from theirs fails to build instead of falling back silently.
# desk_precompiled(<name> LINK … HEADERS …)
function(desk_precompiled name)
    cmake_parse_arguments(ARG "" "" "LINK;HEADERS" ${ARGN})
    set(source ${CMAKE_CURRENT_BINARY_DIR}/${name}.cpp)
    file(CONFIGURE OUTPUT ${source} CONTENT "")
    add_library(${name} STATIC ${source})
    set_target_properties(${name} PROPERTIES AUTOMOC OFF AUTOUIC OFF AUTORCC OFF)
    target_link_libraries(${name} PRIVATE ${ARG_LINK} strict)
    target_precompile_headers(${name} PRIVATE ${ARG_HEADERS})
endfunction()
# Kept to what most files include: a compiler reads the whole of it for every file, and <QtCore> is three times that.
set(DESK_LOGIC_HEADERS <QAbstractTableModel> <QDateTime> <QFile> <QPointer> <QStringList> <QTimer> <QVariant>
    <algorithm> <array> <functional> <map> <memory> <optional> <span> <stdexcept> <vector>)
set(DESK_UI_HEADERS ${DESK_LOGIC_HEADERS} <QApplication> <QCheckBox> <QComboBox> <QDialog> <QHeaderView> <QLabel>
    <QLineEdit> <QPainter> <QPushButton> <QSortFilterProxyModel> <QStackedWidget> <QTableView> <QVBoxLayout>)
desk_precompiled(precompiled_logic LINK Qt6::Core HEADERS ${DESK_LOGIC_HEADERS})
desk_precompiled(precompiled_ui LINK Qt6::Widgets HEADERS ${DESK_UI_HEADERS})

# desk_library(<name> LOGIC|WINDOWS SOURCES … LINK …): a static library of the desk with the common headers precompiled.
# A LOGIC library names only Qt Core/Network/Sql (and other logic libraries) under LINK, so it cannot reach Widgets.
function(desk_library name kind)
    cmake_parse_arguments(ARG "" "" "SOURCES;LINK" ${ARGN})
    add_library(${name} STATIC ${ARG_SOURCES})
    target_include_directories(${name} PUBLIC ${CMAKE_SOURCE_DIR}/src)
    target_link_libraries(${name} PUBLIC ${ARG_LINK} PRIVATE strict)
    if(kind STREQUAL "WINDOWS")
        target_precompile_headers(${name} REUSE_FROM precompiled_ui)
    elseif(kind STREQUAL "LOGIC")
        target_precompile_headers(${name} REUSE_FROM precompiled_logic)
    else()
        message(FATAL_ERROR "desk_library(${name} …): LOGIC or WINDOWS, not '${kind}'")
    endif()
endfunction()
