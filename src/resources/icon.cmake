# The program's icon, as desktops look for it; those of the sizes shown are among the resources too,
# for the desktops that ask the window for it.
set(icon_sizes 16 22 24 32 48 64 128 256 512)
set(icon_sizes_shown 16 24 32 48 64 128 256)
# Up to this size a drawing of few points serves.
set(icon_small 32)

set(icon_qrc ${skin_out}/icon.qrc)
set(icon_cpp ${CMAKE_CURRENT_BINARY_DIR}/qrc_icon.cpp)
set(icon_files)
set(icon_rows)

foreach(name icon iconpicture iconsmall)
    kyrgm_drawing(${name})
endforeach()
add_custom_command(
    OUTPUT ${drawings}/icon.png
    COMMAND ${RSVG_CONVERT} -z 8 -o ${drawings}/icon.png ${drawings}/icon.svg
    DEPENDS ${drawings}/icon.svg ${skin_definitions}
    COMMENT "Rendering the icon"
    VERBATIM)

foreach(size IN LISTS icon_sizes)
    set(drawing ${drawings}/iconpicture.svg)
    if(size LESS_EQUAL icon_small)
        set(drawing ${drawings}/iconsmall.svg)
    endif()
    set(folder ${CMAKE_BINARY_DIR}/share/icons/hicolor/${size}x${size}/apps)
    set(png ${folder}/KyrGM.png)
    file(MAKE_DIRECTORY ${folder})
    add_custom_command(
        OUTPUT ${png}
        COMMAND ${RSVG_CONVERT} -w ${size} -h ${size} -o ${png} ${drawing}
        DEPENDS ${drawing} ${drawings}/icon.png ${skin_definitions}
        COMMENT "Rendering the icon of ${size}"
        VERBATIM)
    list(APPEND icon_files ${png})
    if(size IN_LIST icon_sizes_shown)
        string(APPEND icon_rows "    <file alias=\"icon${size}\">${png}</file>\n")
    endif()
endforeach()

kyrgm_qrc(${icon_qrc} icon "${icon_rows}")
add_custom_command(
    OUTPUT ${icon_cpp}
    COMMAND Qt6::rcc --no-compress --name icon -o ${icon_cpp} ${icon_qrc}
    DEPENDS ${icon_qrc} ${icon_files}
    COMMENT "Packing the icon"
    VERBATIM)
add_custom_target(kyrgm_icon_files ALL DEPENDS ${icon_files})

add_library(kyrgm_icon OBJECT ${icon_cpp})
target_link_libraries(kyrgm_icon PRIVATE Qt6::Core)
target_sources(kyrgm_skin INTERFACE $<TARGET_OBJECTS:kyrgm_icon>)
