# Lays the drawings of the skin out for rendering: a drawing finds other drawings and pictures only
# beside it, so they are copied into a folder, to those that the build makes.

# Drawings that others take their definitions from.
set(skin_shared materials faces ornaments mouse bars dialogs messagebox)
# Grain that drawings lay over their colours: a picture, since making it takes long.
set(skin_grains leather forged)
# Drawings whose ground is the same in all states. It is rendered once, for the same reason.
set(skin_grounds main leftbar rightbar bottombar popup warnone warntwo macrowarn macro about charinfo)
# Drawings whose faces stand where the program's tables say.
set(skin_placed main leftbar bottombar popup warnone warntwo macrowarn macro about charinfo)
set(drawings ${CMAKE_CURRENT_BINARY_DIR}/drawings)
set(skin_drawings)
set(skin_definitions)
file(MAKE_DIRECTORY ${skin_out} ${drawings})

# kyrgm_drawing(NAME [FILE]): copies a drawing, once a file is there that only this one includes.
function(kyrgm_drawing name)
    add_custom_command(
        OUTPUT ${drawings}/${name}.svg
        COMMAND ${CMAKE_COMMAND} -E copy ${skin_dir}/${name}.svg ${drawings}/${name}.svg
        DEPENDS ${skin_dir}/${name}.svg ${ARGN}
        VERBATIM)
endfunction()

# A change in a table that leaves the places as they are renders nothing anew.
function(kyrgm_places name to)
    add_custom_command(
        OUTPUT ${to}
        COMMAND facelist ${name} ${to}.new
        COMMAND ${CMAKE_COMMAND} -E copy_if_different ${to}.new ${to}
        DEPENDS facelist
        COMMENT "Placing the faces of ${name}"
        VERBATIM)
endfunction()

foreach(name IN LISTS skin_shared)
    kyrgm_drawing(${name})
    list(APPEND skin_definitions ${drawings}/${name}.svg)
endforeach()

foreach(name IN LISTS skin_grains)
    add_custom_command(
        OUTPUT ${drawings}/${name}.png
        COMMAND ${RSVG_CONVERT} -z 2 -o ${drawings}/${name}.png ${skin_dir}/${name}.svg
        DEPENDS ${skin_dir}/${name}.svg
        COMMENT "Rendering ${name}"
        VERBATIM)
    list(APPEND skin_definitions ${drawings}/${name}.png)
endforeach()

foreach(row IN LISTS kyrgm_pictures)
    separate_arguments(row UNIX_COMMAND "${row}")
    list(GET row 1 name)
    list(APPEND skin_drawings ${name})
endforeach()
list(REMOVE_DUPLICATES skin_drawings)
foreach(name IN LISTS skin_drawings)
    set(places)
    if(name IN_LIST skin_placed)
        set(places ${drawings}/${name}-places.svg)
        kyrgm_places(${name} ${places})
    endif()
    kyrgm_drawing(${name} ${places})
endforeach()

# Always at scale 2: lit at fewer points the relief of the metal has steps, so at scale 1 the same
# picture serves, made smaller.
foreach(name IN LISTS skin_grounds)
    set(ground ${drawings}/${name}-ground.png)
    add_custom_command(
        OUTPUT ${ground}
        COMMAND ${RSVG_CONVERT} --stylesheet=${skin_dir}/ground.css -z 2
                -o ${ground} ${drawings}/${name}.svg
        DEPENDS ${drawings}/${name}.svg ${skin_dir}/ground.css ${skin_definitions}
        COMMENT "Rendering the ground of ${name}"
        VERBATIM)
endforeach()
