# The headers that most files read, read once for each kind of code: `core`, `gui`, and the tests of both. Headers of our own
# are not among them, so that a change of one compiles only what includes it. A folder's kind is VIEWER_PRECOMPILED; empty,
# it goes without (code that needs other macros than its kind, say). The linters read each file without them, which
# finds a header that a file forgot to include.
set(headers <QByteArray> <QDir> <QFile> <QFileInfo> <QHash> <QList> <QMap> <QSet> <QString> <QStringList> <QVariant>
    <algorithm> <array> <cmath> <functional> <memory> <optional> <stdexcept> <utility> <vector>)
set(window_headers <QApplication> <QComboBox> <QDialog> <QLabel> <QLineEdit> <QMouseEvent> <QPainter> <QScrollBar> <QTableView>
    <QTimer> <QToolBar> <QToolButton> <QTreeView> <QVBoxLayout> <QWidget>)
set(test_headers <gmock/gmock.h> <gtest/gtest.h> <QTemporaryDir>)

# The compiler cache asks for it.
if(CMAKE_CXX_COMPILER_ID STREQUAL GNU AND NOT CMAKE_DISABLE_PRECOMPILE_HEADERS)
    add_compile_options(-fpch-preprocess)
endif()

# viewer_precompiled(KIND LIBS ... HEADERS ...): the object that holds them, pch_KIND.
function(viewer_precompiled kind)
    cmake_parse_arguments(A "" "" "LIBS;HEADERS" ${ARGN})
    file(GENERATE OUTPUT ${CMAKE_CURRENT_BINARY_DIR}/pch_${kind}.cpp CONTENT "// Only its precompiled headers are of use.\n")
    add_library(pch_${kind} OBJECT ${CMAKE_CURRENT_BINARY_DIR}/pch_${kind}.cpp)
    target_link_libraries(pch_${kind} PRIVATE ${A_LIBS} viewer_warnings)
    target_precompile_headers(pch_${kind} PRIVATE ${A_HEADERS})
endfunction()

# viewer_use_precompiled(TARGET): those of the folder's kind.
function(viewer_use_precompiled target)
    if(VIEWER_PRECOMPILED)
        target_precompile_headers(${target} REUSE_FROM pch_${VIEWER_PRECOMPILED})
    endif()
endfunction()
