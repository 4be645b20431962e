# The one set of flags and the few functions that every target of the project is made with.

# The meta-object compiler reads headers only: it need not wait for other libraries.
set(CMAKE_AUTOGEN_ORIGIN_DEPENDS OFF)

add_library(kyr_flags INTERFACE)
target_include_directories(kyr_flags INTERFACE ${PROJECT_SOURCE_DIR}/src)
target_compile_options(kyr_flags INTERFACE
    -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Werror)
target_compile_definitions(kyr_flags INTERFACE QT_NO_KEYWORDS QT_NO_CAST_FROM_ASCII
    QT_NO_CAST_TO_ASCII)
if(KYR_SANITIZE)
    set(sanitizers -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_compile_options(kyr_flags INTERFACE ${sanitizers})
    target_link_options(kyr_flags INTERFACE ${sanitizers})
endif()

option(KYR_TOGETHER "Compile the sources of a room in one go" ON)

# kyr_room(NAME SOURCES ... [APART ...] LINK ...): a static library of one folder's sources. They are
# compiled in one go, which takes half the time, but for those APART: files with names of their own
# that others of the room have too.
function(kyr_room name)
    cmake_parse_arguments(ROOM "" "" "SOURCES;APART;LINK" ${ARGN})
    add_library(kyr_${name} STATIC ${ROOM_SOURCES} ${ROOM_APART})
    set_target_properties(kyr_${name} PROPERTIES
        UNITY_BUILD ${KYR_TOGETHER} UNITY_BUILD_BATCH_SIZE 0)
    set_source_files_properties(${ROOM_APART} PROPERTIES SKIP_UNITY_BUILD_INCLUSION ON)
    target_link_libraries(kyr_${name} PUBLIC kyr_flags ${ROOM_LINK})
    kyr_share_headers(kyr_${name} source)
endfunction()

# Qt's headers are most of what a source file compiles. kyr_share_headers(TARGET GROUP) lets the
# targets of a group (source, test) share the headers that most of them include, compiled once: by
# the first target of the group, with the flags that all of them have. To write down what was
# compiled takes longer than to compile it: so the rooms that show nothing have no group of their
# own, but see headers of libraries that they do not link.
set(kyr_headers_source
    <array> <functional> <memory> <optional> <string> <vector>
    <QtCore/QByteArray> <QtCore/QObject> <QtCore/QString> <QtCore/QVariantMap>
    <QtGui/QKeyEvent> <QtGui/QMouseEvent> <QtGui/QPainter> <QtGui/QPixmap>
    <QtWidgets/QAbstractButton> <QtWidgets/QApplication> <QtWidgets/QWidget>)
set(kyr_headers_test ${kyr_headers_source} <QtTest/QSignalSpy> <QtTest/QTest>)
add_library(kyr_qtheaders INTERFACE)
target_include_directories(kyr_qtheaders SYSTEM INTERFACE
    $<TARGET_PROPERTY:Qt6::Widgets,INTERFACE_INCLUDE_DIRECTORIES>)
target_compile_definitions(kyr_qtheaders INTERFACE
    $<TARGET_PROPERTY:Qt6::Widgets,INTERFACE_COMPILE_DEFINITIONS>)
# The test library's own target defines a macro that differs from folder to folder, with which no
# two folders could share headers.
add_library(kyr_qttest INTERFACE)
target_include_directories(kyr_qttest SYSTEM INTERFACE
    $<TARGET_PROPERTY:Qt6::Test,INTERFACE_INCLUDE_DIRECTORIES>)
target_link_libraries(kyr_qttest INTERFACE Qt6::Widgets $<TARGET_LINKER_FILE:Qt6::Test>)
# What a test says is not what is measured: it need not be fast, it must be compiled fast.
target_compile_options(kyr_qttest INTERFACE -O0)
set(kyr_modules_source kyr_qtheaders)
set(kyr_modules_test kyr_qttest)

function(kyr_share_headers target group)
    set(owner kyr_headers_of_${group})
    if(NOT TARGET ${owner})
        file(CONFIGURE OUTPUT ${CMAKE_BINARY_DIR}/${owner}.cpp CONTENT "")
        add_library(${owner} OBJECT ${CMAKE_BINARY_DIR}/${owner}.cpp)
        set_target_properties(${owner} PROPERTIES POSITION_INDEPENDENT_CODE ON)
        target_link_libraries(${owner} PRIVATE kyr_flags ${kyr_modules_${group}})
        target_precompile_headers(${owner} PRIVATE ${kyr_headers_${group}})
    endif()
    target_link_libraries(${target} PRIVATE ${kyr_modules_${group}})
    target_precompile_headers(${target} REUSE_FROM ${owner})
endfunction()
