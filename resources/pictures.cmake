# Renders the SVG masters into the compiled resources.

find_program(RSVG_CONVERT rsvg-convert)
if(NOT RSVG_CONVERT)
    message(FATAL_ERROR "rsvg-convert is missing; it draws the pictures (Debian package librsvg2-bin)")
endif()
execute_process(COMMAND "${RSVG_CONVERT}" --version OUTPUT_VARIABLE rsvg_version)
if(NOT rsvg_version MATCHES "([0-9]+\\.[0-9]+)" OR CMAKE_MATCH_1 VERSION_LESS 2.54)
    message(FATAL_ERROR "rsvg-convert 2.54 or newer is needed to draw the pictures; '${RSVG_CONVERT}' is older")
endif()
find_program(PNGQUANT pngquant)
if(NOT PNGQUANT)
    message(FATAL_ERROR "pngquant is missing; it packs large pictures and the sprite sheets (Debian package pngquant)")
endif()

set(picture_folder "${CMAKE_CURRENT_BINARY_DIR}/rendered")
set(picture_css "${CMAKE_CURRENT_BINARY_DIR}/css")
set(picture_files "") # what has been declared so far, relative to picture_folder

# scan_picture(MASTER NAME [THEME light|dark] [SIZE side] [MARGIN pixels] [PACKED])
# art/MASTER.svg becomes ":/NAME.png" and ":/NAME@2x.png": in the master's own size, or drawn SIZE
# wide and high with MARGIN free pixels around it. A master that the build has made is given
# whole. PACKED is for large pictures of flat colours: 256 of them, a third of the size.
function(scan_picture master name)
    cmake_parse_arguments(arg "PACKED" "THEME;SIZE;MARGIN" "" ${ARGN})
    if(NOT arg_THEME)
        set(arg_THEME light)
    endif()
    if(NOT arg_MARGIN)
        set(arg_MARGIN 0)
    endif()
    set(source "${CMAKE_CURRENT_SOURCE_DIR}/art/${master}.svg")
    if(IS_ABSOLUTE "${master}")
        set(source "${master}")
    endif()
    set(commands "")
    set(outputs "")
    foreach(scale 1 2)
        set(file "${name}.png")
        if(scale EQUAL 2)
            set(file "${name}@2x.png")
        endif()
        set(css "${picture_css}/${arg_THEME}.css")
        set(size "--zoom=${scale}")
        if(arg_SIZE)
            math(EXPR side "${arg_SIZE} * ${scale}")
            math(EXPR margin "${arg_MARGIN} * ${scale}")
            math(EXPR page "${side} + 2 * ${margin}")
            set(size "--width=${side}" "--height=${side}" "--page-width=${page}"
                "--page-height=${page}" "--left=${margin}" "--top=${margin}")
            if(side LESS_EQUAL 32)
                set(css "${picture_css}/${arg_THEME}-small.css")
            endif()
        endif()
        list(APPEND outputs "${picture_folder}/${file}")
        list(APPEND commands COMMAND "${RSVG_CONVERT}" ${size} "--stylesheet=${css}"
             -o "${picture_folder}/${file}" "${source}")
        if(arg_PACKED)
            list(APPEND commands COMMAND "${PNGQUANT}" --force --strip --speed 3
                 --output "${picture_folder}/${file}" 256 "${picture_folder}/${file}")
        endif()
        list(APPEND picture_files "${file}")
    endforeach()
    get_filename_component(folder "${picture_folder}/${name}" DIRECTORY)
    file(MAKE_DIRECTORY "${folder}")
    add_custom_command(OUTPUT ${outputs} ${commands}
        DEPENDS "${source}" "${picture_css}/${arg_THEME}.css"
        COMMENT "Drawing ${name}" VERBATIM)
    set(picture_files "${picture_files}" PARENT_SCOPE)
endfunction()

# One master, both themes, under the same name.
function(scan_themed_picture name)
    scan_picture("themed/${name}" "Images/${name}")
    scan_picture("themed/${name}" "Images/Dark/${name}" THEME dark)
    set(picture_files "${picture_files}" PARENT_SCOPE)
endfunction()

# A kind of file: drawn on a grid of 32, shown at 32, 64 and 140 pixels. 140 is four times the grid
# with a margin, so that no edge falls between pixels.
function(scan_file_pictures kind)
    scan_picture("files/${kind}" "Images/icon32/icon32_File_${kind}" SIZE 32)
    scan_picture("files/${kind}" "Images/icon64_File_${kind}" SIZE 64)
    scan_picture("files/${kind}" "Images/icon140_File_${kind}" SIZE 128 MARGIN 6)
    set(picture_files "${picture_files}" PARENT_SCOPE)
endfunction()

# scan_add_pictures(TARGET): an object library with everything declared above.
function(scan_add_pictures target)
    set(entries "")
    set(depends "")
    foreach(file IN LISTS picture_files)
        string(APPEND entries "    <file alias=\"${file}\">${picture_folder}/${file}</file>\n")
        list(APPEND depends "${picture_folder}/${file}")
    endforeach()
    set(qrc "${CMAKE_CURRENT_BINARY_DIR}/${target}.qrc")
    set(code "${CMAKE_CURRENT_BINARY_DIR}/qrc_${target}.cpp")
    file(CONFIGURE OUTPUT "${qrc}" @ONLY
         CONTENT "<RCC>\n  <qresource prefix=\"/\">\n${entries}  </qresource>\n</RCC>\n")
    add_custom_command(OUTPUT "${code}"
        COMMAND Qt5::rcc --name ${target} --no-compress -o "${code}" "${qrc}"
        DEPENDS "${qrc}" ${depends}
        COMMENT "Packing the pictures" VERBATIM)
    add_library(${target} OBJECT "${code}")
    set_target_properties(${target} PROPERTIES AUTOMOC OFF AUTOUIC OFF AUTORCC OFF)
endfunction()
