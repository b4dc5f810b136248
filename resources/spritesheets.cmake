# Draws the frames of our Lottie files into sprite sheets, with at most 256 colours each: a quarter
# of the memory once they are cut.

if(CMAKE_CROSSCOMPILING)
    scan_native_tool(spritesheet "${CMAKE_CURRENT_SOURCE_DIR}/spritesheet")
else()
    add_subdirectory(spritesheet)
endif()

# scan_sprite_sheet(ANIMATION NAME SIDE FRAMES PER_ROW)
# lottie/ANIMATION/data.json becomes ":/NAME.png".
function(scan_sprite_sheet animation name side frames per_row)
    set(source "${CMAKE_CURRENT_SOURCE_DIR}/lottie/${animation}/data.json")
    set(output "${picture_folder}/${name}.png")
    set(whole "${CMAKE_CURRENT_BINARY_DIR}/sheets/${animation}.png")
    get_filename_component(folder "${output}" DIRECTORY)
    file(MAKE_DIRECTORY "${folder}" "${CMAKE_CURRENT_BINARY_DIR}/sheets")
    add_custom_command(OUTPUT "${output}"
        COMMAND spritesheet "${source}" ${side} ${frames} ${per_row} "${whole}"
        COMMAND "${PNGQUANT}" --force --speed 4 --strip --output "${output}" 256 -- "${whole}"
        DEPENDS "${source}" spritesheet
        COMMENT "Drawing the frames of ${animation}" VERBATIM)
    set(picture_files "${picture_files}" "${name}.png" PARENT_SCOPE)
endfunction()
