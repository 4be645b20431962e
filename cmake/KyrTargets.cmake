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

# kyr_room(NAME SOURCES ... LINK ...): a static library of one folder's sources.
function(kyr_room name)
    cmake_parse_arguments(ROOM "" "" "SOURCES;LINK" ${ARGN})
    add_library(kyr_${name} STATIC ${ROOM_SOURCES})
    target_link_libraries(kyr_${name} PUBLIC kyr_flags ${ROOM_LINK})
endfunction()

# Qt's headers are most of what a source file compiles. The first widget room compiles them once;
# the others, made with the very same flags, share the result.
function(kyr_share_headers target)
    target_link_libraries(${target} PUBLIC Qt6::Widgets Qt6::DBus)
    if(target STREQUAL "kyr_view")
        target_precompile_headers(${target} PRIVATE <QtCore> <QtGui> <QtWidgets> <QtDBus>
            <array> <functional> <optional> <string>)
    else()
        target_precompile_headers(${target} REUSE_FROM kyr_view)
    endif()
endfunction()
