# Draws the frames of our Lottie files into sprite sheets, with at most 256 colours each: a quarter
# of the memory once they are cut.

find_path(RLOTTIE_INCLUDE_DIR rlottie.h REQUIRED)
find_library(RLOTTIE_LIBRARY rlottie REQUIRED)

set(lottie_code "${PROJECT_SOURCE_DIR}/platform/lottie")
add_executable(spritesheet spritesheet/main.cpp
    "${lottie_code}/lottieanimation.cpp" "${lottie_code}/lottieanimation.h")
target_include_directories(spritesheet PRIVATE "${lottie_code}")
target_include_directories(spritesheet SYSTEM PRIVATE "${RLOTTIE_INCLUDE_DIR}")
target_link_libraries(spritesheet PRIVATE Qt5::Gui "${RLOTTIE_LIBRARY}" scan_warnings)
if(QUARVO_SANITIZE)
    # a step of the build, and rlottie keeps threads and memory to the end
    target_compile_options(spritesheet PRIVATE -fno-sanitize=all)
    target_link_options(spritesheet PRIVATE -fno-sanitize=all)
endif()
# not beside the programs that are shipped
set_target_properties(spritesheet PROPERTIES
    RUNTIME_OUTPUT_DIRECTORY "${CMAKE_CURRENT_BINARY_DIR}")

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
