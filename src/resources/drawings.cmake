# Lays the drawings of the skin out for rendering: a drawing finds other drawings and pictures only
# beside it, and the grounds differ from scale to scale, so each scale has a folder of copies.

# Drawings that others take their definitions from.
set(skin_shared materials faces ornaments mouse bars dialogs messagebox)
# Grain that drawings lay over their colours: a picture, since making it takes long.
set(skin_grains leather forged)
# Drawings whose ground is the same in all states. It is rendered once, for the same reason.
set(skin_grounds main leftbar rightbar bottombar popup warnone warntwo macrowarn macro about charinfo)
set(drawings ${CMAKE_CURRENT_BINARY_DIR}/drawings)
file(MAKE_DIRECTORY ${skin_out} ${drawings}/1x ${drawings}/2x)

function(kyrgm_copy file to)
    add_custom_command(OUTPUT ${to} COMMAND ${CMAKE_COMMAND} -E copy ${file} ${to}
                       DEPENDS ${file} VERBATIM)
endfunction()

foreach(grain IN LISTS skin_grains)
    add_custom_command(
        OUTPUT ${drawings}/2x/${grain}.png
        COMMAND ${RSVG_CONVERT} -z 2 -o ${drawings}/2x/${grain}.png ${skin_dir}/${grain}.svg
        DEPENDS ${skin_dir}/${grain}.svg
        COMMENT "Rendering ${grain}"
        VERBATIM)
    kyrgm_copy(${drawings}/2x/${grain}.png ${drawings}/1x/${grain}.png)
endforeach()

foreach(scale 1 2)
    set(folder ${drawings}/${scale}x)
    set(skin_shared_${scale})
    foreach(name IN LISTS skin_shared)
        kyrgm_copy(${skin_dir}/${name}.svg ${folder}/${name}.svg)
        list(APPEND skin_shared_${scale} ${folder}/${name}.svg)
    endforeach()
    foreach(grain IN LISTS skin_grains)
        list(APPEND skin_shared_${scale} ${folder}/${grain}.png)
    endforeach()
    foreach(row IN LISTS kyrgm_pictures)
        separate_arguments(row UNIX_COMMAND "${row}")
        list(GET row 1 name)
        list(APPEND skin_drawings_${scale} ${name})
    endforeach()
    list(REMOVE_DUPLICATES skin_drawings_${scale})
    foreach(name IN LISTS skin_drawings_${scale})
        kyrgm_copy(${skin_dir}/${name}.svg ${folder}/${name}.svg)
    endforeach()
    foreach(name IN LISTS skin_grounds)
        add_custom_command(
            OUTPUT ${folder}/${name}-ground.png
            COMMAND ${RSVG_CONVERT} --stylesheet=${skin_dir}/ground.css -z ${scale}
                    -o ${folder}/${name}-ground.png ${folder}/${name}.svg
            DEPENDS ${folder}/${name}.svg ${skin_dir}/ground.css ${skin_shared_${scale}}
            COMMENT "Rendering the ground of ${name}@${scale}x"
            VERBATIM)
    endforeach()
endforeach()
